// SPDX-License-Identifier: MIT
// From a profile to a call, what is said of connections, the settings, the rate.
#include <vrks_simulated.h>

#include <QSignalSpy>

#include "AutoConnectPolicy.h"
#include "Change.h"
#include "ConnectionSettings.h"
#include "ConnectionText.h"
#include "DataConnection.h"
#include "DeviceEvents.h"
#include "DialCall.h"
#include "PresetOperator.h"
#include "Rows.h"
#include "TestFolder.h"
#include "TransferRate.h"

using Fields = QMap<QString, QString>;
Q_DECLARE_METATYPE(Fields)

namespace {

DialupProfile profileWith(const Fields& fields) {
    DialupProfile profile;
    for (const DialupProfileField& field : DialupProfileFields) profile.*field.member = fields.value(field.attribute);
    return profile;
}

// The request in one line, its parts in the record's order.
QString lineOf(const VRKS_DialRequest& request) {
    const QStringList flags = {request.allowsChap ? "chap" : "", request.allowsPap ? "pap" : "",
                               request.endsWithProcess ? "ends" : ""};
    const QStringList texts = {request.name,     request.number, request.apn,           request.user,
                               request.password, request.dns,    request.alternativeDns};
    return (flags + texts).join('|');
}

}  // namespace

class tst_connection : public QObject {
    Q_OBJECT

private slots:
    void init() {
        qputenv("ORBISDIAL_LIBRARY_PATH", QFile::encodeName(QFileInfo(TEXTS_DIR).path()));
        QFile::remove(m_Folder.path("config/orbisdial.ini"));
        vrks_simulated_reset();
    }

    void tellsWhoseAPresetIs_data() {
        const Rows<QStringList, QString> row("profiles", "balance");
        row("the first that anybody has", {"Own", "", "Guest", "Host"}, "*100#");
        row("not the next one's way when it has none", {"Host", "Guest"}, "");
        row("nobody's", {"Own"}, "none");
        row("no profile", {}, "none");
    }
    void tellsWhoseAPresetIs() {
        QFETCH(QStringList, profiles);
        qputenv("ORBISDIAL_LIBRARY_PATH", QFile::encodeName(m_Folder.path("library")));
        const QByteArray index =
            "<Operators><operator name='H'><preset name='Host'/></operator><operator name='G'><preset name='Guest'/>"
            "<balance way='ussd' number='*100#'/></operator>";
        m_Folder.ship("Operators.xml", index);
        QVERIFY(!presetOperator(profiles));  // damaged
        m_Folder.ship("Operators.xml", index + "</Operators>");
        const std::optional<OperatorEntry> found = presetOperator(profiles);
        const QString balance = found ? found->balanceQueries.value(0).number : QString("none");
        QTEST(balance, "balance");
        QFile::remove(m_Folder.pluginDir() + "/Operators.xml");
        QVERIFY(!presetOperator(profiles));
    }

    void makesTheRequest_data() {
        const Rows<Fields, bool, QString> row("fields", "ends", "request");
        row("all",
            {{"phonenumber", "*99#"},
             {"apn", "internet"},
             {"user", "ada"},
             {"password", "\u00fcben"},
             {"chap", "true"},
             {"pap", "false"},
             {"dns", "9.9.9.9"},
             {"dnsalt", "1.1.1.1"}},
            true, "chap||ends|Home|*99#|internet|ada|\u00fcben|9.9.9.9|1.1.1.1");
        row("nothing", {}, false, "|||Home||||||");
        row("automatic APN", {{"apn", "internet"}, {"autoapn", "true"}, {"pap", "true"}}, false, "|pap||Home||||||");
        row("no server", {{"dns", "0.0.0.0"}, {"dnsalt", " . . . "}, {"autoapn", "false"}}, false, "|||Home||||||");
        row("only the second", {{"dnsalt", " 1.1.1.1"}}, false, "|||Home||||||1.1.1.1");
    }

    void makesTheRequest() {
        QFETCH(Fields, fields);
        QFETCH(bool, ends);
        const DialCall call(profileWith(fields), "Home", ends);
        QTEST(lineOf(call.request()), "request");
    }

    // Whatever passes is dialled by the SDK, too.
    void tellsBadFields_data() {
        const Rows<QString, QString, bool> row("field", "value", "isBad");
        row("APN", "apn", "a-b.c_D9", false);
        row("blank in the APN", "apn", "two words", true);
        row("other letter in the APN", "apn", "\u0430pn", true);
        row("longest APN", "apn", QString(64, 'a'), false);
        row("too long an APN", "apn", QString(65, 'a'), true);
        row("line end in the APN", "apn", "apn\n", true);
        row("DNS", "dns", "9.9.9.9", false);
        row("unset DNS", "dns", "0.0.0.0", false);
        row("DNS out of range", "dns", "9.9.9.256", true);
        row("second DNS", "dnsalt", "dns.example", true);
        row("IP", "ip", "10.0.0", true);
        row("longest user", "user", QString(255, 'u'), false);
        row("too long a user", "user", QString(128, QChar(0xfc)), true);
        row("too long a password", "password", QString(256, 'p'), true);
    }

    void tellsBadFields() {
        QFETCH(QString, field);
        QFETCH(QString, value);
        QFETCH(bool, isBad);
        const DialupProfile profile = profileWith({{field, value}});
        QCOMPARE(DialCall::badField(profile), isBad ? field : QString());
        if (isBad) {
            QVERIFY(ConnectionText::badField(field, "Home").contains("\"Home\""));
        } else {
            QCOMPARE(DialCall(profile, "Home", true).dial(), 0L);
        }
    }

    void tellsWhatHasNoEffect_data() {
        const Rows<Fields, QStringList> row("fields", "without");
        row("usual", {{"phonenumber", "*99#"}, {"ip", "0.0.0.0"}, {"wins", "..."}}, {});
        row("context", {{"phonenumber", "*99***1#"}}, {});
        row("CDMA", {{"phonenumber", "#777"}}, {});
        row("all", {{"phonenumber", "0800"}, {"ip", "10.0.0.9"}, {"wins", "10.0.0.1"}, {"winsalt", "10.0.0.2"}},
            {"phonenumber", "ip", "wins", "winsalt"});
    }

    void tellsWhatHasNoEffect() {
        QFETCH(Fields, fields);
        QFETCH(QStringList, without);
        const DialupProfile profile = profileWith(fields);
        QCOMPARE(DialCall::fieldsWithoutEffect(profile), without);
        QCOMPARE(ConnectionText::notes(profile).size(), qMin(without.size(), 3));  // WINS is said once
    }

    void everyFailureIsSaid() {
        QSet<QString> sentences;
        for (int failure = 1; failure < VRKS_FAILURE_COUNT; ++failure)
            sentences.insert(ConnectionText::failure(failure, "A%1B", "apn"));
        QVERIFY(!sentences.contains(QString()));
        QCOMPARE(sentences.size(), VRKS_FAILURE_COUNT - 1);
        QCOMPARE(ConnectionText::failure(VRKS_FAILURE_NONE, "Home"), QString());
        QVERIFY(!ConnectionText::failure(VRKS_FAILURE_BAD_REQUEST, "Home", "unheard of").isEmpty());
        QVERIFY(!ConnectionText::automaticHold(AutoConnectMustAsk, "Home").isEmpty());
        QCOMPARE(ConnectionText::automaticHold(AutoConnectIsOff, "Home"), QString());
    }

    void tellsManyEventsOnce() {
        DeviceEvents events;
        QTest::qWait(20);  // what was kept from before
        const QSignalSpy connection(&events, &DeviceEvents::connectionChanged);
        const QSignalSpy modem(&events, &DeviceEvents::modemChanged);
        for (const char* signal : {"11", "12", "13"}) vrks_simulated_change("SIGNAL", signal);
        vrks_simulated_change("USED_BY", "nmcli");
        vrks_simulated_wait_events();
        QCOMPARE(modem.count(), 0);
        QTRY_COMPARE(modem.count(), 1);
        QCOMPARE(connection.count(), 1);
        QCOMPARE(DataConnection::current().usedBy, QString("nmcli"));
        vrks_simulated_change("SIGNAL", "14");
        vrks_simulated_wait_events();
        events.stop();
        QTest::qWait(20);
        QCOMPARE(modem.count(), 1);
    }

    void keepsAutomaticProfiles() {
        using namespace AutoConnectSettings;
        const QString odd = "A/b\\c, \"d\" = \u00fc%";
        QVERIFY(set(odd, true, true) && set("Home", true));
        QCOMPARE(rules().keys(), QList<QString>({odd, "Home"}));
        QVERIFY(rules()[odd].mayRoam && !rules()["Home"].mayRoam);
        QVERIFY(setRefused("Home", "mark") && setRefused("Gone", "mark"));
        QVERIFY(AutoConnectSettings::rename("Home", "House") && AutoConnectSettings::rename("Gone", "Went"));
        QCOMPARE(rules().keys(), QList<QString>({odd, "House"}));
        QCOMPARE(rules()["House"].refused, QString("mark"));
        QVERIFY(set("House", true));
        QCOMPARE(rules()["House"].refused, QString());
        QVERIFY(forget(odd) && set("House", false));
        QVERIFY(rules().isEmpty());
    }

    void followsTheList_data() {
        const Rows<QStringList, QStringList> row("after", "on");
        row("renamed", {"a", "c", "z"}, {"z"});
        row("deleted", {"a", "c"}, {});
        row("another deleted", {"b", "c"}, {"b"});
        row("another came", {"a", "b", "c", "d"}, {"b"});
        row("other presets", {"x", "y", "z"}, {"b"});
        row("none", {}, {"b"});
    }

    void followsTheList() {
        QFETCH(QStringList, after);
        AutoConnectSettings::set("b", true);
        QVERIFY(AutoConnectSettings::follow({"a", "b", "c"}, after));
        QTEST(QStringList(AutoConnectSettings::rules().keys()), "on");
    }

    void measuresTheRate() {
        TransferRate rate;
        rate.add(1000, 0);
        QCOMPARE(rate.bytesPerSecond(), 0.0);
        for (int second = 1; second <= 20; ++second) rate.add(quint64(1000 + 500 * second), 1000 * second);
        QCOMPARE(rate.bytesPerSecond(), 500.0);
        for (int second = 21; second <= 30; ++second) rate.add(11000, 1000 * second);
        QCOMPARE(rate.bytesPerSecond(), 0.0);
        rate.add(10, 31000);
        rate.add(210, 32000);
        QCOMPARE(rate.bytesPerSecond(), 200.0);
    }

private:
    TestFolder m_Folder;
};

QTEST_GUILESS_MAIN(tst_connection)
#include "tst_connection.moc"
