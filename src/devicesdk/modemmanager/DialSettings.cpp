// SPDX-License-Identifier: MIT
#include "DialSettings.h"

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

// Keys of a connection's user data; NetworkManager wants a dot in each.
constexpr char NameKey[] = "orbisdial.profile";
constexpr char EndsWithProcessKey[] = "orbisdial.ends-with-process";

constexpr char DialledKey[] = "orbisdial.dialled";  // Unix time and boot time

// Registering takes a minute at most, and then a modem dials.
constexpr std::int64_t LongestDialling = 180;

constexpr char CdmaNumber[] = "#777";  // what NetworkManager wants to see; it dials this whatever stands there

template <class... Properties>
void add(NMConnection* connection, NMSetting* setting, Properties... properties) {
    g_object_set(setting, properties..., nullptr);
    nm_connection_add_setting(connection, setting);
}

void addConnection(NMConnection* connection, const DialRequest& request, const DialTarget& target) {
    const Text uuid(nm_utils_uuid_generate());
    NMSetting* setting = nm_setting_connection_new();
    add(connection, setting, NM_SETTING_CONNECTION_ID, request.name.c_str(), NM_SETTING_CONNECTION_UUID, uuid.get(),
        NM_SETTING_CONNECTION_TYPE, target.isCdma ? NM_SETTING_CDMA_SETTING_NAME : NM_SETTING_GSM_SETTING_NAME,
        NM_SETTING_CONNECTION_AUTOCONNECT, FALSE);
    if (target.user.empty()) return;
    // Without an owner an administrator would have to allow it.
    nm_setting_connection_add_permission(NM_SETTING_CONNECTION(setting), "user", target.user.c_str(), nullptr);
}

void addMark(NMConnection* connection, const DialRequest& request, const DialStamp& stamp) {
    NMSetting* setting = nm_setting_user_new();
    const std::string dialled = std::to_string(stamp.unixTime) + ' ' + std::to_string(stamp.bootTime);
    nm_setting_user_set_data(NM_SETTING_USER(setting), DialledKey, dialled.c_str(), nullptr);
    nm_setting_user_set_data(NM_SETTING_USER(setting), NameKey, request.name.c_str(), nullptr);
    if (request.endsWithProcess) nm_setting_user_set_data(NM_SETTING_USER(setting), EndsWithProcessKey, "yes", nullptr);
    nm_connection_add_setting(connection, setting);
}

std::optional<DialStamp> stampIn(const char* text) {
    long long unixTime = 0, bootTime = 0;
    if (!text || std::sscanf(text, "%lld %lld", &unixTime, &bootTime) != 2 || unixTime <= 0) return std::nullopt;
    return DialStamp{unixTime, bootTime};
}

const char* orNull(const std::string& text) { return text.empty() ? nullptr : text.c_str(); }

// Without a password that is expected to be missing, the call would wait for an agent that asks for it.
NMSettingSecretFlags passwordFlags(const DialRequest& request) {
    return request.password.empty() ? NM_SETTING_SECRET_FLAG_NOT_REQUIRED : NM_SETTING_SECRET_FLAG_NONE;
}

// An empty APN leaves the choice to the modem and the network. NetworkManager's own automatic choice would take user
// name and password from a database too.
void addGsm(NMConnection* connection, const DialRequest& request) {
    add(connection, nm_setting_gsm_new(), NM_SETTING_GSM_APN, orNull(request.apn), NM_SETTING_GSM_USERNAME,
        orNull(request.user), NM_SETTING_GSM_PASSWORD, orNull(request.password), NM_SETTING_GSM_PASSWORD_FLAGS,
        passwordFlags(request));
}

void addCdma(NMConnection* connection, const DialRequest& request) {
    add(connection, nm_setting_cdma_new(), NM_SETTING_CDMA_NUMBER,
        request.number.empty() ? CdmaNumber : request.number.c_str(), NM_SETTING_CDMA_USERNAME, orNull(request.user),
        NM_SETTING_CDMA_PASSWORD, orNull(request.password), NM_SETTING_CDMA_PASSWORD_FLAGS, passwordFlags(request));
}

void addAuthentication(NMConnection* connection, const DialRequest& request) {
    const bool chapAlone = request.allowsChap && !request.allowsPap;
    const bool papAlone = request.allowsPap && !request.allowsChap;
    add(connection, nm_setting_ppp_new(), NM_SETTING_PPP_REFUSE_EAP, request.allowsChap || request.allowsPap,
        NM_SETTING_PPP_REFUSE_PAP, chapAlone, NM_SETTING_PPP_REFUSE_CHAP, papAlone, NM_SETTING_PPP_REFUSE_MSCHAP,
        papAlone, NM_SETTING_PPP_REFUSE_MSCHAPV2, papAlone);
}

void addIpv4(NMConnection* connection, const DialRequest& request) {
    NMSetting* setting = nm_setting_ip4_config_new();
    add(connection, setting, NM_SETTING_IP_CONFIG_METHOD, NM_SETTING_IP4_CONFIG_METHOD_AUTO,
        NM_SETTING_IP_CONFIG_IGNORE_AUTO_DNS, gboolean(!request.dns.empty()));
    for (const std::string& server : request.dns)
        nm_setting_ip_config_add_dns(NM_SETTING_IP_CONFIG(setting), server.c_str());
}

// Name servers of the profile's stand for all of the network's.
void addIpv6(NMConnection* connection, const DialRequest& request, const DialTarget& target) {
    add(connection, nm_setting_ip6_config_new(), NM_SETTING_IP_CONFIG_METHOD,
        target.isIpv4Only ? NM_SETTING_IP6_CONFIG_METHOD_DISABLED : NM_SETTING_IP6_CONFIG_METHOD_AUTO,
        NM_SETTING_IP_CONFIG_IGNORE_AUTO_DNS, gboolean(!request.dns.empty()));
}

}  // namespace

Ref<NMConnection> dialSettings(const DialRequest& request, const DialTarget& target) {
    Ref<NMConnection> connection(nm_simple_connection_new());
    addConnection(connection.get(), request, target);
    addMark(connection.get(), request, target.stamp);
    target.isCdma ? addCdma(connection.get(), request) : addGsm(connection.get(), request);
    addAuthentication(connection.get(), request);
    addIpv4(connection.get(), request);
    addIpv6(connection.get(), request, target);
    return connection;
}

Variant activationOptions(const DialRequest& request) {
    GVariantDict options;
    g_variant_dict_init(&options, nullptr);
    g_variant_dict_insert(&options, "persist", "s", "volatile");
    if (request.endsWithProcess) g_variant_dict_insert(&options, "bind-activation", "s", "dbus-client");
    return Variant(g_variant_ref_sink(g_variant_dict_end(&options)));
}

DialMark markOf(NMConnection* connection) {
    auto* setting = connection ? nm_connection_get_setting(connection, NM_TYPE_SETTING_USER) : nullptr;
    if (!setting) return {};
    NMSettingUser* data = NM_SETTING_USER(setting);
    return {textOf(nm_setting_user_get_data(data, NameKey)),
            nm_setting_user_get_data(data, EndsWithProcessKey) != nullptr,
            stampIn(nm_setting_user_get_data(data, DialledKey))};
}

DialStamp DialStamp::now() {
    timespec sinceBoot{};
    ::clock_gettime(CLOCK_BOOTTIME, &sinceBoot);
    return {std::time(nullptr), sinceBoot.tv_sec};
}

std::optional<std::int64_t> secondsUp(const DialStamp& dialled, std::int64_t sessionStart, std::int64_t bootTime) {
    const std::int64_t sinceDialled = bootTime - dialled.bootTime;
    const std::int64_t dialling = sessionStart - dialled.unixTime;
    if (dialling < 0 || dialling > std::min(sinceDialled + 1, LongestDialling)) return std::nullopt;
    return std::max<std::int64_t>(sinceDialled - dialling, 0);
}
