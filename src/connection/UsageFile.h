// SPDX-License-Identifier: MIT
// The file of DataUsage: what stands in it, read and replaced whole.
#ifndef ORBISDIAL_USAGEFILE_H
#define ORBISDIAL_USAGEFILE_H

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QVector>
#include <memory>

#include "DataUsage.h"

struct UsageCard {
    quint64 limit = 0;
    QString warnedMonth;
    int warnedPercent = 0;
    QMap<QString, UsageTotals> months;  // by "2026-11"
};

// How far an interface is counted.
struct UsageMark {
    QString instance;
    UsageTotals counted;
};

struct UsageRecords {
    QByteArray key;                  // of the cards' hashes
    QMap<QString, UsageCard> cards;  // by hash
    QVector<UsageMark> marks;        // the last used first

    QString cardOf(const QString& imsi) const;
    UsageTotals countedOf(const QString& instance) const;
    void mark(const QString& instance, const UsageTotals& counted);
};

namespace UsageFile {

// What the file holds; empty records with a new key when there is none, or when it is damaged. False: it is there and
// can't be opened, so it must not be replaced.
bool read(const QString& file, UsageRecords* records);

// Whether read() takes what there is: the file is missing, or whole.
bool isSound(const QString& file);

// Reads, changes and replaces, under a lock that every program of ours takes. The change answers whether there is
// anything to write. False: it could not be done. A damaged file is moved aside first.
template <class Change>
bool edit(const QString& file, Change change);

// For edit() alone.
class Edit {
public:
    explicit Edit(const QString& file);
    ~Edit();
    bool begin(UsageRecords* records);
    bool end(const UsageRecords& records);

private:
    Q_DISABLE_COPY(Edit)
    struct State;
    std::unique_ptr<State> m_State;
};

}  // namespace UsageFile

template <class Change>
bool UsageFile::edit(const QString& file, Change change) {
    Edit edit(file);
    UsageRecords records;
    if (!edit.begin(&records)) return false;
    return !change(records) || edit.end(records);
}

#endif
