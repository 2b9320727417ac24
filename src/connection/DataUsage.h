// SPDX-License-Identifier: MIT
// What each SIM card received and sent, by month, in a small file that every program of ours counts on.
//
// The file holds how far each connection's interface is counted, so that programs which meet the same connection count
// nothing twice and miss nothing. Cards are told by a keyed hash of the IMSI, months are those of the local calendar.
// The file is the user's alone, and replaced whole; a damaged one is kept aside. For one thread.
#ifndef ORBISDIAL_DATAUSAGE_H
#define ORBISDIAL_DATAUSAGE_H

#include <QDate>
#include <QMap>
#include <QString>
#include <optional>

struct DataConnection;

struct UsageTotals {
    quint64 received = 0;
    quint64 sent = 0;
    quint64 all() const { return received + sent; }
};

class DataUsage {
public:
    // The file in the user's data directory.
    DataUsage();

    // Another file, and another folder for the kernel's network interfaces.
    explicit DataUsage(const QString& file, const QString& interfacesFolder = QStringLiteral("/sys/class/net"));

    // Counts what the connection moved since it was last counted, by any program, to its card and the day's month; the
    // given card's where the connection's own is not known. To be called when a connection changed, its end included,
    // and now and then while it is up. False: the file can't be written just now; the next call makes up for it.
    bool count(const DataConnection& connection, const QString& imsi, const QDate& today = QDate::currentDate());

    // Whether what was counted can be read. Of a damaged file, and of one that can't be opened, nothing is known.
    bool isReadable() const;

    // The total of a month, as counted last.
    UsageTotals month(const QString& imsi, const QDate& day = QDate::currentDate()) const;

    // The same with what the connection moved since, if it is up; it is on this card.
    UsageTotals monthWith(const DataConnection& connection, const QString& imsi,
                          const QDate& day = QDate::currentDate()) const;

    // All months that are kept, by "2026-11", and the day's with what the connection moved since.
    QMap<QString, UsageTotals> months(const DataConnection& connection, const QString& imsi,
                                      const QDate& day = QDate::currentDate()) const;

    // A month's name in months().
    static QString nameOf(const QDate& day);

    // The card's limit for a month, both ways together, in bytes; 0: none. A changed limit may warn anew.
    quint64 limit(const QString& imsi) const;
    bool setLimit(const QString& imsi, quint64 bytes);

    // 80 or 100 when that many percent of the limit are used up and nobody was told of it yet in this month, else 0.
    // Whoever asks must show it: it is answered once, whichever program asks.
    int takeWarning(const QString& imsi, const QDate& today = QDate::currentDate());

private:
    // One connection that this process follows.
    struct Followed {
        QString instance;  // of the interface, among all that ever bore its name
        QString imsi;
        qint64 since;
        UsageTotals base;  // what the interface's counters stood at when the connection's were 0
    };

    Followed met(const DataConnection& connection, const QString& imsi) const;
    bool follow(const DataConnection& connection, const QString& imsi);

    QString m_File;
    QString m_Interfaces;
    std::optional<Followed> m_Followed;
};

#endif
