// SPDX-License-Identifier: MIT
// The sealed form of texts: mark, then base64 of nonce and box.
#include <sodium.h>

#include <cstring>
#include <vector>

#include "CommonUtilsBase.h"
#include "SealedText.h"

namespace {

constexpr const char* Mark = SealedTextMark;
constexpr std::size_t MarkLength = sizeof SealedTextMark - 1;
constexpr int Base64 = sodium_base64_VARIANT_ORIGINAL;

constexpr std::size_t NonceSize = crypto_secretbox_NONCEBYTES;
constexpr std::size_t Overhead = NonceSize + crypto_secretbox_MACBYTES;

using Bytes = std::vector<unsigned char>;

// A key of the box's size made from a text of any length; wiped when it goes.
class BoxKey {
public:
    explicit BoxKey(const char* text) {
        crypto_generichash(m_Bytes, sizeof m_Bytes, reinterpret_cast<const unsigned char*>(text), std::strlen(text),
                           nullptr, 0);
    }
    ~BoxKey() { sodium_memzero(m_Bytes, sizeof m_Bytes); }
    const unsigned char* data() const { return m_Bytes; }

private:
    Q_DISABLE_COPY(BoxKey)
    unsigned char m_Bytes[crypto_secretbox_KEYBYTES];
};

char* copyOf(const char* text) {
    const std::size_t size = std::strlen(text) + 1;
    return static_cast<char*>(std::memcpy(new char[size], text, size));
}

bool isSealed(const char* text) { return std::strncmp(text, Mark, MarkLength) == 0; }

char* textOf(const Bytes& sealed) {
    const std::size_t size = sodium_base64_ENCODED_LEN(sealed.size(), Base64);
    char* text = new char[MarkLength + size];
    std::memcpy(text, Mark, MarkLength);
    sodium_bin2base64(text + MarkLength, size, sealed.data(), sealed.size(), Base64);
    return text;
}

// Empty when the text is none that textOf() made.
Bytes sealedOf(const char* text) {
    const char* encoded = text + MarkLength;
    const std::size_t length = std::strlen(encoded);
    Bytes sealed(length + 1);  // more than it takes, and never without memory
    std::size_t size = 0;
    if (sodium_base642bin(sealed.data(), sealed.size(), encoded, length, nullptr, &size, nullptr, Base64) != 0 ||
        size < Overhead)
        return {};
    sealed.resize(size);
    return sealed;
}

char* open(const Bytes& sealed, const char* key) {
    if (sealed.empty()) return nullptr;
    const std::size_t length = sealed.size() - Overhead;
    char* text = new char[length + 1]();
    if (crypto_secretbox_open_easy(reinterpret_cast<unsigned char*>(text), sealed.data() + NonceSize,
                                   sealed.size() - NonceSize, sealed.data(), BoxKey(key).data()) == 0)
        return text;
    delete[] text;
    return nullptr;
}

}  // namespace

void CommonUtilsBase::Encrypt(const char* data, const char* key, char*& out) {
    out = nullptr;
    if (!data || !key || sodium_init() < 0) return;

    const std::size_t length = std::strlen(data);
    Bytes sealed(Overhead + length);
    randombytes_buf(sealed.data(), NonceSize);
    if (crypto_secretbox_easy(sealed.data() + NonceSize, reinterpret_cast<const unsigned char*>(data), length,
                              sealed.data(), BoxKey(key).data()) == 0)
        out = textOf(sealed);
}

void CommonUtilsBase::Decrypt(const char* data, const char* key, char*& out) {
    out = nullptr;
    if (!data || !key) return;
    if (!isSealed(data))
        out = copyOf(data);
    else if (sodium_init() >= 0)  // takes a while, for the many profiles without a password as well
        out = open(sealedOf(data), key);
}

void CommonUtilsBase::CryptLocalFree(char* text) {
    if (!text) return;
    sodium_memzero(text, std::strlen(text));
    delete[] text;
}
