// What a kind of modem must offer; each backend has a folder of its own.
#ifndef ORBISDIAL_BACKEND_H
#define ORBISDIAL_BACKEND_H

#include <cstdint>
#include <optional>
#include <string>

class EventDispatcher;

struct MultiModeStatus {
    unsigned char isMultiMode;
    unsigned int cardMode;
};

struct SystemMode {
    std::int32_t mode;
    std::int32_t subMode;
};

struct DataServiceProfile {
    std::string user;
    std::string password;
};

// Every operation is safe from any thread. A query that fails answers nothing; texts are UTF-8 of any length,
// since the C interface fits them into its buffers. What a backend does not override fails.
class Backend {
public:
    virtual ~Backend() = default;

    // Who delivers the backend's events; null for one that has none.
    virtual EventDispatcher* events() { return nullptr; }

    virtual std::optional<int> devStatus() { return std::nullopt; }
    virtual std::optional<std::string> customizeName() { return std::nullopt; }
    virtual std::optional<int> productType() { return std::nullopt; }
    virtual std::optional<std::string> imsi() { return std::nullopt; }
    virtual std::optional<MultiModeStatus> multiModeStatus() { return std::nullopt; }
    virtual std::optional<SystemMode> systemMode() { return std::nullopt; }
    virtual std::optional<DataServiceProfile> dataServiceProfile() { return std::nullopt; }
};

#endif
