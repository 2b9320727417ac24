// SPDX-License-Identifier: MIT
#include "Spelling.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace {

// Levenshtein's distance: letters to put in, to take out or to change.
int distance(const QString& one, const QString& other) {
    std::vector<int> row(std::size_t(other.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 0; i < one.size(); ++i) {
        int diagonal = std::exchange(row[0], i + 1);
        for (int j = 0; j < other.size(); ++j) {
            const int changed = diagonal + (one.at(i) == other.at(j) ? 0 : 1);
            diagonal = row[std::size_t(j) + 1];
            row[std::size_t(j) + 1] = std::min({changed, diagonal + 1, row[std::size_t(j)] + 1});
        }
    }
    return row.back();
}

}  // namespace

QString Spelling::nearest(const QString& word, const QStringList& known) {
    constexpr int longest = 64;  // the time grows with the product of the lengths
    constexpr int most = 5000;
    if (word.size() > longest || known.size() > most) return QString();
    QString best;
    int least = 3;
    for (const QString& candidate : known) {
        if (qAbs(candidate.size() - word.size()) >= least) continue;
        const int letters = distance(word.toLower(), candidate.toLower());
        if (letters >= least || letters >= candidate.size()) continue;
        least = letters;
        best = candidate;
    }
    return best;
}

QString Spelling::advice(const QString& word, const QStringList& known) {
    const QString meant = nearest(word, known);
    if (!meant.isNull()) return "write " + meant;
    return known.isEmpty() ? QString("take it out") : "known are " + known.join(", ");
}
