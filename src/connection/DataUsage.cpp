// SPDX-License-Identifier: MIT
#include "DataUsage.h"

#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <memory>

#include "DataConnection.h"
#include "UsageFile.h"

namespace {

constexpr quint64 FirstWarningLeaves = 5;  // a fifth of the limit
constexpr qint64 SettledSeconds = 5;       // in which a connection's own program has said from where it counts

// Empty when there is no such directory: then nothing is counted.
QString userDataFile() {
    unsigned short* directory = nullptr;
    if (VRKS_GetUserDataDirectory(&directory) != 0) return QString();
    const std::unique_ptr<unsigned short[]> owner(directory);
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(directory)) + "usage.json";
}

QByteArray contentOf(const QString& file) {
    QFile in(file);
    return in.open(QIODevice::ReadOnly) ? in.readAll().trimmed() : QByteArray();
}

std::optional<quint64> numberIn(const QString& file) {
    bool isNumber = false;
    const quint64 number = contentOf(file).toULongLong(&isNumber);
    return isNumber ? std::optional<quint64>(number) : std::nullopt;
}

// What the kernel counted since the interface came into being.
std::optional<UsageTotals> countersOf(const QString& folder) {
    const auto received = numberIn(folder + "/statistics/rx_bytes");
    const auto sent = numberIn(folder + "/statistics/tx_bytes");
    if (!received || !sent) return std::nullopt;
    return UsageTotals{*received, *sent};
}

// A name comes again with each connection; its number comes once in the life of a kernel. What is no interface of the
// kernel's, as with the simulated modem, belongs to this process.
QString instanceOf(const DataConnection& connection, const QString& folder) {
    const QByteArray index = contentOf(folder + "/ifindex");
    if (index.isEmpty())
        return QStringLiteral("%1 of process %2 since %3")
            .arg(connection.interfaceName)
            .arg(::getpid())
            .arg(connection.since);
    const QByteArray boot = contentOf(QStringLiteral("/proc/sys/kernel/random/boot_id"));
    return connection.interfaceName + ' ' + QString::fromLatin1(index) + ' ' + QString::fromLatin1(boot);
}

UsageTotals operator+(const UsageTotals& a, const UsageTotals& b) { return {a.received + b.received, a.sent + b.sent}; }

UsageTotals larger(const UsageTotals& a, const UsageTotals& b) {
    return {qMax(a.received, b.received), qMax(a.sent, b.sent)};
}

// Nothing where it would be negative.
UsageTotals operator-(const UsageTotals& a, const UsageTotals& b) {
    return {a.received - qMin(a.received, b.received), a.sent - qMin(a.sent, b.sent)};
}

int percentUsed(const UsageCard& card, const QString& month) {
    if (card.limit == 0) return 0;
    const quint64 used = card.months.value(month).all();
    if (used >= card.limit) return 100;
    return card.limit - used <= card.limit / FirstWarningLeaves ? 80 : 0;
}

// What nobody was told of yet.
int warningOf(const UsageCard& card, const QString& month) {
    const int percent = percentUsed(card, month);
    return card.warnedMonth == month && card.warnedPercent >= percent ? 0 : percent;
}

}  // namespace

DataUsage::DataUsage() : DataUsage(userDataFile()) {}

DataUsage::DataUsage(const QString& file, const QString& interfacesFolder)
    : m_File(file), m_Interfaces(interfacesFolder) {}

// The system's own figures would be others with another locale.
QString DataUsage::nameOf(const QDate& day) { return QLocale::c().toString(day, QStringLiteral("yyyy-MM")); }

DataUsage::Followed DataUsage::met(const DataConnection& connection, const QString& imsi) const {
    const QString folder = m_Interfaces + '/' + connection.interfaceName;
    const UsageTotals own{connection.received, connection.sent};
    return {instanceOf(connection, folder), imsi, connection.since, countersOf(folder).value_or(own) - own};
}

// Whether there is anything to count. Another program's connection is not when it is met while it is new: its own
// program says first from where.
bool DataUsage::follow(const DataConnection& connection, const QString& imsi) {
    if (!connection.isUp() || connection.interfaceName.isEmpty()) return m_Followed.has_value();
    const Followed now = met(connection, imsi);
    const bool isKnown = m_Followed && m_Followed->instance == now.instance && m_Followed->since == now.since;
    if (!isKnown) m_Followed = now;
    if (!connection.imsi.isEmpty()) m_Followed->imsi = connection.imsi;
    if (m_Followed->imsi.isEmpty()) m_Followed->imsi = imsi;
    return isKnown || connection.isOwn || connection.seconds >= SettledSeconds;
}

// Another program may have counted a part. What the interface moved before the connection is not its.
bool DataUsage::count(const DataConnection& connection, const QString& imsi, const QDate& today) {
    if (!follow(connection, imsi)) return true;
    const UsageTotals now = m_Followed->base + UsageTotals{connection.received, connection.sent};
    const bool isCounted = UsageFile::edit(m_File, [&](UsageRecords& records) {
        const UsageTotals before = records.countedOf(m_Followed->instance);
        const UsageTotals counted = larger(before, m_Followed->base);
        const UsageTotals more = now - counted;
        if (more.all() == 0 && (counted - before).all() == 0) return false;
        UsageTotals& total = records.cards[records.cardOf(m_Followed->imsi)].months[nameOf(today)];
        total = total + more;
        records.mark(m_Followed->instance, counted + more);
        return true;
    });
    const bool hasEnded = connection.isDown() || connection.state == VRKS_CONNECTION_DIALLING;
    if (isCounted && hasEnded) m_Followed.reset();
    return isCounted;
}

bool DataUsage::isReadable() const { return UsageFile::isSound(m_File); }

UsageTotals DataUsage::month(const QString& imsi, const QDate& day) const {
    UsageRecords records;
    UsageFile::read(m_File, &records);
    return records.cards.value(records.cardOf(imsi)).months.value(nameOf(day));
}

UsageTotals DataUsage::monthWith(const DataConnection& connection, const QString& imsi, const QDate& day) const {
    return months(connection, imsi, day).value(nameOf(day));
}

QMap<QString, UsageTotals> DataUsage::months(const DataConnection& connection, const QString& imsi,
                                             const QDate& day) const {
    UsageRecords records;
    UsageFile::read(m_File, &records);
    QMap<QString, UsageTotals> months = records.cards.value(records.cardOf(imsi)).months;
    if (!connection.isUp() || connection.interfaceName.isEmpty()) return months;
    const Followed now = met(connection, imsi);
    const UsageTotals moved = now.base + UsageTotals{connection.received, connection.sent};
    UsageTotals& month = months[nameOf(day)];
    month = month + (moved - larger(records.countedOf(now.instance), now.base));
    return months;
}

quint64 DataUsage::limit(const QString& imsi) const {
    UsageRecords records;
    UsageFile::read(m_File, &records);
    return records.cards.value(records.cardOf(imsi)).limit;
}

bool DataUsage::setLimit(const QString& imsi, quint64 bytes) {
    return UsageFile::edit(m_File, [&](UsageRecords& records) {
        UsageCard& card = records.cards[records.cardOf(imsi)];
        if (card.limit == bytes) return false;
        card.limit = bytes;
        card.warnedMonth.clear();
        return true;
    });
}

int DataUsage::takeWarning(const QString& imsi, const QDate& today) {
    const QString month = nameOf(today);
    UsageRecords seen;
    UsageFile::read(m_File, &seen);
    if (warningOf(seen.cards.value(seen.cardOf(imsi)), month) == 0) return 0;  // as nearly always: no lock for it

    int percent = 0;
    const bool isKept = UsageFile::edit(m_File, [&](UsageRecords& records) {
        UsageCard& card = records.cards[records.cardOf(imsi)];
        percent = warningOf(card, month);
        if (percent == 0) return false;
        card.warnedMonth = month;
        card.warnedPercent = percent;
        return true;
    });
    return isKept ? percent : 0;
}
