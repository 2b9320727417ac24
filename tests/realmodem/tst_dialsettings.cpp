// SPDX-License-Identifier: MIT
// What NetworkManager is given to dial with, and what its failures mean; without a bus.
#include <NetworkManager.h>

#include "ConnectionFailure.h"
#include "DialSettings.h"
#include "Rows.h"
#include "vrks.h"

namespace {

using Values = QMap<QString, QString>;

// As "setting.property" → value, of the properties that are not at their defaults.
Values valuesOf(NMConnection* connection) {
    Values values;
    nm_connection_for_each_setting_value(
        connection,
        [](NMSetting* setting, const char* key, const GValue* value, GParamFlags, gpointer all) {
            GParamSpec* property = g_object_class_find_property(G_OBJECT_GET_CLASS(setting), key);
            if (!property || g_param_value_defaults(property, value)) return;
            const Text text(G_VALUE_HOLDS_STRING(value) ? g_value_dup_string(value) : g_strdup_value_contents(value));
            (*static_cast<Values*>(all))[QString("%1.%2").arg(nm_setting_get_name(setting), key)] =
                QString::fromUtf8(text.get());
        },
        &values);
    return values;
}

DialRequest plainRequest() {
    DialRequest request;
    request.name = "Home \xc3\xa9";
    return request;
}

// The part of the settings that a row is about: those of the named setting, or properties whose names begin so.
QStringList chosen(const Values& values, const QString& beginning) {
    QStringList lines;
    for (auto value = values.begin(); value != values.end(); ++value)
        if (value.key().startsWith(beginning)) lines.append(value.key().section('.', 1) + "=" + value.value());
    return lines;
}

QByteArray nameServersOf(NMConnection* connection) {
    NMSettingIPConfig* ipv4 = nm_connection_get_setting_ip4_config(connection);
    QByteArray servers;
    for (guint i = 0; i < nm_setting_ip_config_get_num_dns(ipv4); ++i)
        servers += QByteArray(nm_setting_ip_config_get_dns(ipv4, int(i))) + ' ';
    return servers.trimmed();
}

}  // namespace

class tst_dialsettings : public QObject {
    Q_OBJECT

private slots:
    void credentialsAndNumbers_data() {
        const Rows<bool, QStringList, QStringList> row("isCdma", "request", "expected");
        row("gsm with all", false, {"apn", "user", "secret", "*99#"}, {"apn=apn", "password=secret", "username=user"});
        row("gsm with nothing", false, {"", "", "", ""}, {"password-flags=NM_SETTING_SECRET_FLAG_NOT_REQUIRED"});
        row("gsm without password", false, {"apn", "user", "", ""},
            {"apn=apn", "password-flags=NM_SETTING_SECRET_FLAG_NOT_REQUIRED", "username=user"});
        row("cdma with all", true, {"apn", "user", "secret", "#99"},
            {"number=#99", "password=secret", "username=user"});
        row("cdma without number", true, {"", "", "", ""},
            {"number=#777", "password-flags=NM_SETTING_SECRET_FLAG_NOT_REQUIRED"});
    }

    void credentialsAndNumbers() {
        const auto given = cell<QStringList>("request");
        DialRequest request = plainRequest();
        request.apn = given[0].toStdString();
        request.user = given[1].toStdString();
        request.password = given[2].toStdString();
        request.number = given[3].toStdString();
        const bool isCdma = cell<bool>("isCdma");
        const Ref<NMConnection> connection = dialSettings(request, {isCdma, false, ""});
        const QStringList found = chosen(valuesOf(connection.get()), isCdma ? "cdma." : "gsm.");
        const QStringList plain = QStringList(found).replaceInStrings(
            QRegularExpression("^password-flags=.*"), "password-flags=NM_SETTING_SECRET_FLAG_NOT_REQUIRED");
        QCOMPARE(plain.filter(QRegularExpression("^(?!name=)")), cell<QStringList>("expected"));
        QVERIFY(nm_connection_verify(connection.get(), nullptr));
    }

    void authenticationMethods_data() {
        const Rows<bool, bool, QStringList> row("chap", "pap", "refused");
        row("neither leaves it to the network", false, false, {});
        row("both", true, true, {"refuse-eap=TRUE"});
        row("chap alone", true, false, {"refuse-eap=TRUE", "refuse-pap=TRUE"});
        row("pap alone", false, true,
            {"refuse-chap=TRUE", "refuse-eap=TRUE", "refuse-mschap=TRUE", "refuse-mschapv2=TRUE"});
    }

    void authenticationMethods() {
        DialRequest request = plainRequest();
        request.allowsChap = cell<bool>("chap");
        request.allowsPap = cell<bool>("pap");
        const Ref<NMConnection> connection = dialSettings(request, {});
        QCOMPARE(chosen(valuesOf(connection.get()), "ppp.refuse"), cell<QStringList>("refused"));
    }

    void nameServersStandForTheNetworks() {
        DialRequest request = plainRequest();
        QCOMPARE(nameServersOf(dialSettings(request, {}).get()), QByteArray());
        QVERIFY(chosen(valuesOf(dialSettings(request, {}).get()), "ipv4.ignore").isEmpty());
        request.dns = {"192.0.2.1", "192.0.2.2"};
        const Ref<NMConnection> connection = dialSettings(request, {});
        QCOMPARE(nameServersOf(connection.get()), QByteArray("192.0.2.1 192.0.2.2"));
        QCOMPARE(chosen(valuesOf(connection.get()), "ipv4.ignore"), QStringList{"ignore-auto-dns=TRUE"});
        QCOMPARE(chosen(valuesOf(connection.get()), "ipv6.ignore"), QStringList{"ignore-auto-dns=TRUE"});
    }

    void versionsOfIp() {
        const auto method = [](bool isIpv4Only, const char* version) {
            const Ref<NMConnection> connection = dialSettings(plainRequest(), {false, isIpv4Only, ""});
            return valuesOf(connection.get())[QString("%1.method").arg(version)];
        };
        QCOMPARE(method(false, "ipv4"), QString("auto"));
        QCOMPARE(method(false, "ipv6"), QString("auto"));
        QCOMPARE(method(true, "ipv4"), QString("auto"));
        QCOMPARE(method(true, "ipv6"), QString("disabled"));
    }

    void ownerAndLife() {
        DialRequest request = plainRequest();
        const Ref<NMConnection> everybodys = dialSettings(request, {});
        NMSettingConnection* about = nm_connection_get_setting_connection(everybodys.get());
        QCOMPARE(nm_setting_connection_get_num_permissions(about), 0u);
        QVERIFY(!nm_setting_connection_get_autoconnect(about));

        const Ref<NMConnection> anns = dialSettings(request, {false, false, "ann"});
        QVERIFY(
            nm_setting_connection_permissions_user_allowed(nm_connection_get_setting_connection(anns.get()), "ann"));
        QVERIFY(
            !nm_setting_connection_permissions_user_allowed(nm_connection_get_setting_connection(anns.get()), "bob"));

        QCOMPARE(Text(g_variant_print(activationOptions(request).get(), FALSE)).get(), "{'persist': <'volatile'>}");
        request.endsWithProcess = true;
        QVERIFY(strstr(Text(g_variant_print(activationOptions(request).get(), FALSE)).get(),
                       "'bind-activation': <'dbus-client'>"));
    }

    // The clock on the wall may be set while a connection is up, and counts only between dialling and session.
    void howLongItIsUp_data() {
        const Rows<int, int, int> row("sessionAfter", "bootAfter", "seconds");
        row("a minute", 3, 63, 60);
        row("at once", 0, 0, 0);
        row("rounded", 1, 0, 0);
        row("the clock was set back while it dialled", -30, 60, -1);
        row("it was set forth then", 3600, 7200, -1);
        row("a session that had not begun", 20, 10, -1);
    }

    void howLongItIsUp() {
        const DialStamp dialled{1700000000, 5000};
        const auto seconds =
            secondsUp(dialled, dialled.unixTime + cell<int>("sessionAfter"), dialled.bootTime + cell<int>("bootAfter"));
        QCOMPARE(int(seconds.value_or(-1)), cell<int>("seconds"));
        DialTarget target;
        target.stamp = dialled;
        const std::optional<DialStamp> read = markOf(dialSettings(plainRequest(), target).get()).dialled;
        QVERIFY(read && read->unixTime == dialled.unixTime && read->bootTime == dialled.bootTime);
    }

    // What one process of ours writes, another one reads; other programs' connections have no mark.
    void marks() {
        DialRequest request = plainRequest();
        QCOMPARE(markOf(dialSettings(request, {}).get()).name, request.name);
        QVERIFY(!markOf(dialSettings(request, {}).get()).endsWithProcess);
        request.endsWithProcess = true;
        QVERIFY(markOf(dialSettings(request, {}).get()).endsWithProcess);
        const Ref<NMConnection> foreign(nm_simple_connection_new());
        QVERIFY(markOf(foreign.get()).name.empty());
        QVERIFY(markOf(static_cast<NMConnection*>(nullptr)).name.empty());
    }

    void failures_data() {
        const Rows<int, bool, QStringList, int> row("reason", "wasUp", "bearerErrors", "expected");
        row("wrong credentials over PPP", 14, false, {}, VRKS_FAILURE_REFUSED);
        row("the line breaks", 13, true, {}, VRKS_FAILURE_DROPPED);
        row("no link", 12, false, {}, VRKS_FAILURE_LINK);
        row("no carrier", 25, false, {"Connection.NoCarrier"}, VRKS_FAILURE_NO_CARRIER);
        row("carrier lost", 25, true, {}, VRKS_FAILURE_DROPPED);
        row("busy behind no carrier", 25, false, {"Connection.Busy"}, VRKS_FAILURE_BUSY);
        row("no dial tone", 25, false, {"Connection.NoDialtone"}, VRKS_FAILURE_NO_DIAL_TONE);
        row("no answer", 25, false, {"Connection.NoAnswer"}, VRKS_FAILURE_NO_ANSWER);
        row("the network refuses the password", 1, false, {"MobileEquipment.PdpAuthFailure"},
            VRKS_FAILURE_AUTHENTICATION);
        row("the first of several errors tells", 1, false,
            {"MobileEquipment.ServiceOptionNotSubscribed", "MobileEquipment.Ipv4OnlyAllowed"},
            VRKS_FAILURE_NOT_SUBSCRIBED);
        row("a bearer's error explains nothing else", 39, false, {"MobileEquipment.PdpAuthFailure"},
            VRKS_FAILURE_ENDED_OUTSIDE);
        row("an error nobody knows", 1, false, {"MobileEquipment.Phone"}, VRKS_FAILURE_OTHER);
        row("a reason nobody knows", 9999, false, {}, VRKS_FAILURE_OTHER);
        row("APN", 29, false, {}, VRKS_FAILURE_APN);
        row("registration times out", 32, false, {}, VRKS_FAILURE_NOT_REGISTERED);
        row("registration denied", 31, false, {}, VRKS_FAILURE_REGISTRATION_DENIED);
        row("no card", 45, false, {}, VRKS_FAILURE_NO_CARD);
        row("PIN wanted", 46, false, {}, VRKS_FAILURE_LOCKED);
        row("wrong PIN", 59, false, {}, VRKS_FAILURE_WRONG_PIN);
        row("removed", 36, true, {}, VRKS_FAILURE_MODEM_GONE);
        row("ModemManager is gone", 52, true, {}, VRKS_FAILURE_NO_MODEM_SERVICE);
        row("suspended", 37, true, {}, VRKS_FAILURE_SUSPENDED);
        row("another activation", 60, true, {}, VRKS_FAILURE_TAKEN);
        row("no secrets", 7, false, {}, VRKS_FAILURE_CREDENTIALS_MISSING);
    }

    void failures() {
        Ending ending;
        ending.reason = unsigned(cell<int>("reason"));
        ending.wasUp = cell<bool>("wasUp");
        for (const QString& name : cell<QStringList>("bearerErrors"))
            ending.bearerErrors.push_back({"org.freedesktop.ModemManager1.Error." + name.toStdString(), "said so"});
        QCOMPARE(failureOf(ending).kind, cell<int>("expected"));
    }

    // While it is taken away a device says what it also says on other occasions.
    void aDeviceThatIsGone() {
        Ending ending;
        ending.isDeviceGone = true;
        for (unsigned reason : {0u, 1u, 13u, 25u, 39u}) {
            ending.reason = reason;
            QCOMPARE(failureOf(ending).kind, int(VRKS_FAILURE_MODEM_GONE));
        }
        ending.reason = NM_DEVICE_STATE_REASON_SLEEPING;
        QCOMPARE(failureOf(ending).kind, int(VRKS_FAILURE_SUSPENDED));
    }

    void failedCalls() {
        const auto kindOf = [](const char* name) { return failureOf(NamedError{name, ""}).kind; };
        QCOMPARE(kindOf("org.freedesktop.NetworkManager.PermissionDenied"), int(VRKS_FAILURE_NOT_ALLOWED));
        QCOMPARE(kindOf("org.freedesktop.NetworkManager.Settings.PermissionDenied"), int(VRKS_FAILURE_NOT_ALLOWED));
        QCOMPARE(kindOf("org.freedesktop.DBus.Error.ServiceUnknown"), int(VRKS_FAILURE_NO_NETWORK_SERVICE));
        QCOMPARE(kindOf("org.freedesktop.NetworkManager.UnknownDevice"), int(VRKS_FAILURE_MODEM_GONE));
        const Failure other = failureOf(NamedError{"org.freedesktop.NetworkManager.Failed", "its words"});
        QCOMPARE(other.kind, int(VRKS_FAILURE_OTHER));
        QCOMPARE(other.words, std::string("its words"));
    }
};

QTEST_GUILESS_MAIN(tst_dialsettings)
#include "tst_dialsettings.moc"
