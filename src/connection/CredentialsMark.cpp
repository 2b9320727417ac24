// SPDX-License-Identifier: MIT
#include "CredentialsMark.h"

#include <vrks.h>

#include <QFile>
#include <QMessageAuthenticationCode>
#include <QRandomGenerator>
#include <QSaveFile>
#include <memory>

namespace {

constexpr int KeySize = 32;

// Empty when there is no such folder.
QString keyFile() {
    unsigned short* directory = nullptr;
    if (VRKS_GetUserDataDirectory(&directory) != 0) return QString();
    const std::unique_ptr<unsigned short[]> owner(directory);
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(directory)) + "marks.key";
}

QByteArray newKey() {
    quint32 words[KeySize / sizeof(quint32)];
    QRandomGenerator::system()->fillRange(words);
    return QByteArray(reinterpret_cast<const char*>(words), KeySize);
}

void store(const QString& file, const QByteArray& key) {
    QSaveFile out(file);
    const bool isWritten = out.open(QIODevice::WriteOnly) && out.setPermissions(QFile::ReadOwner | QFile::WriteOwner) &&
                           out.write(key) == key.size();
    if (isWritten) out.commit();
}

QByteArray userKey() {
    static const QByteArray fresh = newKey();
    const QString file = keyFile();
    QFile in(file);
    const QByteArray key = in.open(QIODevice::ReadOnly) ? in.read(KeySize) : QByteArray();
    if (key.size() == KeySize) return key;
    store(file, fresh);
    return fresh;
}

}  // namespace

QString CredentialsMark::of(const DialupProfile& profile) {
    QMessageAuthenticationCode hash(QCryptographicHash::Sha256, userKey());
    for (const QString& field :
         {profile.user, profile.password, profile.autoapn, profile.apn, profile.chap, profile.pap}) {
        hash.addData(field.toUtf8());
        hash.addData(QByteArray(1, '\0'));
    }
    return QString::fromLatin1(hash.result().toHex());
}
