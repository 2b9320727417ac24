// SPDX-License-Identifier: MIT
#include "Reference.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <algorithm>
#include <cstdio>
#include <utility>

#include "Measure.h"

namespace Reference {

static void readProfile(const QXmlStreamAttributes& attributes, DialupProfile* last, DialupProfile* profile) {
    int expected = 0;
    for (const QXmlStreamAttribute& attribute : attributes) {
        while (attribute.qualifiedName() != QLatin1String(DialupProfileFields[expected].attribute))
            expected = (expected + 1) % DialupProfileFieldCount;
        QString& text = last->*DialupProfileFields[expected].member;
        if (text.isNull() || attribute.value() != text) text = attribute.value().toString();
        profile->*DialupProfileFields[expected].member = text;
        expected = (expected + 1) % DialupProfileFieldCount;
    }
}

std::vector<DialupProfile> read(const QByteArray& content) {
    std::vector<DialupProfile> profiles;
    DialupProfile last;
    QXmlStreamReader reader(content);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != QLatin1String("Profile")) continue;
        profiles.emplace_back();
        readProfile(reader.attributes(), &last, &profiles.back());
    }
    Measure::require(!reader.hasError(), "reading");
    return profiles;
}

std::vector<IMSIINFO> readItems(const QByteArray& content) {
    std::vector<IMSIINFO> items;
    QXmlStreamReader reader(content);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != QLatin1String("item")) continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        items.push_back({attributes.value(QLatin1String("name")).toString(),
                         attributes.value(QLatin1String("value")).toString(),
                         attributes.value(QLatin1String("type")).toString()});
    }
    Measure::require(!reader.hasError(), "reading");
    return items;
}

QByteArray write(const QList<DialupProfile>& profiles) {
    // Into a string, since the writer encodes every piece by itself on its way into bytes.
    QString content = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";
    QXmlStreamWriter writer(&content);
    writer.setAutoFormatting(true);
    writer.writeStartElement("vrksdoc");
    writer.writeAttribute("type", "Profile");
    writer.writeStartElement("ProfileGroup");
    writer.writeAttribute("type", "Dailup");
    QStringList attributes;
    for (const DialupProfileField& field : DialupProfileFields) attributes.append(field.attribute);
    const QString element = "Profile";
    for (const DialupProfile& profile : profiles) {
        writer.writeEmptyElement(element);
        for (int i = 0; i < DialupProfileFieldCount; ++i)
            writer.writeAttribute(attributes.at(i), profile.*DialupProfileFields[i].member);
    }
    writer.writeEndDocument();
    return content.toUtf8();
}

void save(const QString& path, const QList<DialupProfile>& profiles) {
    const QByteArray content = write(profiles);
    const QByteArray name = QFile::encodeName(path);
    const QByteArray temporary = name + ".new";
    const int fd = ::open(temporary.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const bool written = fd >= 0 && ::write(fd, content.constData(), size_t(content.size())) == content.size() &&
                         ::fsync(fd) == 0 && ::close(fd) == 0 &&
                         std::rename(temporary.constData(), name.constData()) == 0;
    Measure::require(written, "saving");
}

void sort(QList<QString>* names) {
    std::vector<std::pair<QString, QString>> keyed;
    keyed.reserve(size_t(names->size()));
    for (const QString& name : *names) keyed.emplace_back(name.toCaseFolded(), name);
    std::stable_sort(keyed.begin(), keyed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::transform(keyed.begin(), keyed.end(), names->begin(), [](const auto& entry) { return entry.second; });
}

}  // namespace Reference
