// SPDX-License-Identifier: MIT
#include "Utf8.h"

#include <algorithm>

namespace {

bool isContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

// By its first byte; 0 for one that begins no character.
std::size_t lengthOf(unsigned char first) {
    if (first < 0x80) return 1;
    if (first >= 0xC2 && first <= 0xDF) return 2;
    if (first >= 0xE0 && first <= 0xEF) return 3;
    return first >= 0xF0 && first <= 0xF4 ? 4 : 0;
}

// What the second byte rules out beyond the general form.
bool isForbidden(unsigned char first, unsigned char second) {
    return (first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F) || (first == 0xF0 && second < 0x90) ||
           (first == 0xF4 && second > 0x8F);
}

}  // namespace

bool isUtf8(const std::string& text) {
    for (std::size_t i = 0; i < text.size();) {
        const auto first = static_cast<unsigned char>(text[i]);
        const std::size_t length = lengthOf(first);
        if (length == 0 || length > text.size() - i) return false;
        if (length > 1 && isForbidden(first, static_cast<unsigned char>(text[i + 1]))) return false;
        const auto rest = text.begin() + static_cast<std::ptrdiff_t>(i);
        if (!std::all_of(rest + 1, rest + static_cast<std::ptrdiff_t>(length), isContinuation)) return false;
        i += length;
    }
    return true;
}

std::size_t characterCount(const std::string& text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char byte) { return !isContinuation(byte); }));
}

std::size_t fittingLength(const std::string& text, std::size_t space) {
    if (text.size() <= space) return text.size();
    std::size_t length = space;
    while (length > 0 && isContinuation(text[length])) --length;
    return length;
}
