// SPDX-License-Identifier: MIT
// The opening of sealed texts: what was never sealed comes back as it is, and what is sealed opens again.

#include <cstring>
#include <string>

#include "CommonUtilsBase.h"
#include "FuzzFolder.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const char Key[] = "key";
    const std::string text(reinterpret_cast<const char*>(data), size);
    char* opened = nullptr;
    CommonUtilsBase::Decrypt(text.c_str(), Key, opened);
    if (text.rfind("orbis1:", 0) != 0) require(opened && std::strcmp(opened, text.c_str()) == 0);
    CommonUtilsBase::CryptLocalFree(opened);

    char* sealed = nullptr;
    CommonUtilsBase::Encrypt(text.c_str(), Key, sealed);
    require(sealed);
    CommonUtilsBase::Decrypt(sealed, Key, opened);
    require(opened && std::strcmp(opened, text.c_str()) == 0);
    CommonUtilsBase::CryptLocalFree(opened);

    // A seal that was changed opens to nothing.
    sealed[size % std::strlen(sealed)] ^= 1;
    CommonUtilsBase::Decrypt(sealed, Key, opened);
    require(!opened || std::strcmp(opened, text.c_str()) != 0);
    CommonUtilsBase::CryptLocalFree(opened);
    CommonUtilsBase::CryptLocalFree(sealed);
    return 0;
}
