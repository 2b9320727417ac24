// SPDX-License-Identifier: MIT
// Bytes a second, from counts that are looked at now and then.
#ifndef ORBISDIAL_TRANSFERRATE_H
#define ORBISDIAL_TRANSFERRATE_H

#include <QtGlobal>
#include <deque>

class TransferRate {
public:
    // A count and its moment, in milliseconds of any clock that only goes forward. A count below the last one begins
    // anew.
    void add(quint64 bytes, qint64 now);

    // Over the last five seconds or so; 0 before the second count.
    double bytesPerSecond() const;

private:
    struct Sample {
        quint64 bytes;
        qint64 when;
    };
    std::deque<Sample> m_Samples;
};

#endif
