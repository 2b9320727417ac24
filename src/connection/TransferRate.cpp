// SPDX-License-Identifier: MIT
#include "TransferRate.h"

namespace {

constexpr qint64 Span = 5000;

}

void TransferRate::add(quint64 bytes, qint64 now) {
    if (!m_Samples.empty() && bytes < m_Samples.back().bytes) m_Samples.clear();
    m_Samples.push_back({bytes, now});
    while (m_Samples.size() > 2 && now - m_Samples[1].when >= Span) m_Samples.pop_front();
}

double TransferRate::bytesPerSecond() const {
    if (m_Samples.size() < 2) return 0;
    const qint64 ms = m_Samples.back().when - m_Samples.front().when;
    return ms > 0 ? double(m_Samples.back().bytes - m_Samples.front().bytes) * 1000 / double(ms) : 0;
}
