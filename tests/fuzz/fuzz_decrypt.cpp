// The opening of sealed texts: what was never sealed comes back as it is, and what is sealed opens again.

#include <cstring>
#include <string>

#include "CommonUtils.h"
#include "FuzzFolder.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const char Key[] = "key";
    const std::string text(reinterpret_cast<const char*>(data), size);
    char* opened = nullptr;
    CommonUtils::Decrypt(text.c_str(), Key, opened);
    if (text.rfind("orbis1:", 0) != 0) require(opened && std::strcmp(opened, text.c_str()) == 0);
    CommonUtils::CryptLocalFree(opened);

    char* sealed = nullptr;
    CommonUtils::Encrypt(text.c_str(), Key, sealed);
    require(sealed);
    CommonUtils::Decrypt(sealed, Key, opened);
    require(opened && std::strcmp(opened, text.c_str()) == 0);
    CommonUtils::CryptLocalFree(opened);

    // A seal that was changed opens to nothing.
    sealed[size % std::strlen(sealed)] ^= 1;
    CommonUtils::Decrypt(sealed, Key, opened);
    require(!opened || std::strcmp(opened, text.c_str()) != 0);
    CommonUtils::CryptLocalFree(opened);
    CommonUtils::CryptLocalFree(sealed);
    return 0;
}
