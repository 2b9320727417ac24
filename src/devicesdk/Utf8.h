// SPDX-License-Identifier: MIT
// UTF-8 texts that come from elsewhere.
#ifndef ORBISDIAL_UTF8_H
#define ORBISDIAL_UTF8_H

#include <cstddef>
#include <string>

// Well formed, RFC 3629: no overlong form, no surrogate, nothing above U+10FFFF.
bool isUtf8(const std::string& text);

// The characters of a well-formed text.
std::size_t characterCount(const std::string& text);

// The longest start that fits into so many bytes without halving a character.
std::size_t fittingLength(const std::string& text, std::size_t space);

#endif
