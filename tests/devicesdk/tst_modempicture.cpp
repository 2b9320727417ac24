// SPDX-License-Identifier: MIT
// What the SDK answers for what ModemManager says: no bus, no daemon.
#include <QtTest>

#include "modemmanager/ModemPicture.h"

namespace {

const std::string Key = "/sys/devices/usb1/1-1";

KnownCard card() { return {true, "460110123456789", "Example", "2A"}; }

// A registered GSM modem, from which the rows differ.
KnownModem gsm() {
    KnownModem modem;
    modem.device = Key;
    modem.state = MM_MODEM_STATE_REGISTERED;
    modem.unlockRequired = MM_MODEM_LOCK_NONE;
    modem.supportedCapabilities = modem.currentCapabilities = MM_MODEM_CAPABILITY_GSM_UMTS | MM_MODEM_CAPABILITY_LTE;
    modem.accessTechnologies = MM_MODEM_ACCESS_TECHNOLOGY_LTE;
    modem.signalQuality = 64;
    modem.card = card();
    modem.registration3gpp = MM_MODEM_3GPP_REGISTRATION_STATE_HOME;
    modem.operatorName = "Example";
    modem.operatorCode = "46011";
    return modem;
}

KnownModem cdma() {
    KnownModem modem = gsm();
    modem.supportedCapabilities = modem.currentCapabilities = MM_MODEM_CAPABILITY_CDMA_EVDO;
    modem.accessTechnologies = MM_MODEM_ACCESS_TECHNOLOGY_EVDOA | MM_MODEM_ACCESS_TECHNOLOGY_1XRTT;
    modem.card.reset();
    modem.registration3gpp.reset();
    modem.operatorName = modem.operatorCode = "";
    modem.registrationCdma1x = MM_MODEM_CDMA_REGISTRATION_STATE_UNKNOWN;
    modem.registrationEvdo = MM_MODEM_CDMA_REGISTRATION_STATE_ROAMING;
    modem.sid = 4139;
    return modem;
}

KnownModem multi(unsigned technologies) {
    KnownModem modem = gsm();
    modem.supportedCapabilities = modem.currentCapabilities =
        MM_MODEM_CAPABILITY_GSM_UMTS | MM_MODEM_CAPABILITY_CDMA_EVDO;
    modem.accessTechnologies = technologies;
    return modem;
}

KnownModem locked(MMModemLock lock) {
    KnownModem modem = gsm();
    modem.state = MM_MODEM_STATE_LOCKED;
    modem.unlockRequired = lock;
    modem.unlockRetries = {{MM_MODEM_LOCK_SIM_PIN, 3}, {MM_MODEM_LOCK_SIM_PUK, 10}};
    modem.card->imsi.clear();
    return modem;
}

KnownModem with(KnownModem modem, MMModemState state) {
    modem.state = state;
    return modem;
}

KnownModem withCard(KnownModem modem, std::optional<KnownCard> card) {
    modem.card = card;
    return modem;
}

KnownModem failed(MMModemStateFailedReason reason) {
    KnownModem modem = withCard(with(gsm(), MM_MODEM_STATE_FAILED), std::nullopt);
    modem.failedReason = reason;
    return modem;
}

KnownModem at(MMModem3gppRegistrationState state) {
    KnownModem modem = gsm();
    modem.registration3gpp = state;
    return modem;
}

KnownModem named(const std::string& device, MMModemState state) {
    KnownModem modem = with(gsm(), state);
    modem.device = device;
    return modem;
}

Picture pictureOf(const std::vector<KnownModem>& modems, const Picture& before = {}, const std::string& wanted = {}) {
    return ::pictureOf({true, true, modems}, wanted, before);
}

int cardModeOf(const Picture& picture) { return static_cast<int>(picture.multiModeStatus->cardMode); }

}  // namespace

Q_DECLARE_METATYPE(KnownModem)

class tst_modempicture : public QObject {
    Q_OBJECT

private slots:
    void status_data() {
        QTest::addColumn<KnownModem>("modem");
        QTest::addColumn<int>("status");
        QTest::addColumn<int>("card");
        QTest::addColumn<int>("lock");
        QTest::addColumn<int>("attempts");
        const auto row = [](const char* name, const KnownModem& modem, int status, int card, int lock, int attempts) {
            QTest::newRow(name) << modem << status << card << lock << attempts;
        };
        const KnownCard unread{};
        KnownCard withoutImsi = card();
        withoutImsi.imsi.clear();
        KnownModem pin2 = gsm();
        pin2.unlockRequired = MM_MODEM_LOCK_SIM_PIN2;

        row("registered", gsm(), VRKS_DEV_STATUS_READY, VRKS_CARD_PRESENT, VRKS_LOCK_NONE, -1);
        row("radio off", with(gsm(), MM_MODEM_STATE_DISABLED), VRKS_DEV_STATUS_READY, VRKS_CARD_PRESENT, 0, -1);
        row("going off", with(gsm(), MM_MODEM_STATE_DISABLING), VRKS_DEV_STATUS_READY, VRKS_CARD_PRESENT, 0, -1);
        row("second PIN asked for", pin2, VRKS_DEV_STATUS_READY, VRKS_CARD_PRESENT, VRKS_LOCK_NONE, -1);
        row("starting", with(gsm(), MM_MODEM_STATE_INITIALIZING), VRKS_DEV_STATUS_STARTING, VRKS_CARD_PRESENT, 0, -1);
        row("card not read", withCard(gsm(), unread), VRKS_DEV_STATUS_STARTING, VRKS_CARD_PRESENT, 0, -1);
        row("no IMSI", withCard(gsm(), withoutImsi), VRKS_DEV_STATUS_FAILED, VRKS_CARD_PRESENT, 0, -1);
        row("GSM without a card", withCard(gsm(), {}), VRKS_DEV_STATUS_FAILED, VRKS_CARD_NONE, 0, -1);
        row("card missing", failed(MM_MODEM_STATE_FAILED_REASON_SIM_MISSING), VRKS_DEV_STATUS_FAILED, VRKS_CARD_NONE, 0,
            -1);
        row("broken", failed(MM_MODEM_STATE_FAILED_REASON_UNKNOWN), VRKS_DEV_STATUS_FAILED, VRKS_CARD_UNKNOWN, 0, -1);
        row("PIN", locked(MM_MODEM_LOCK_SIM_PIN), VRKS_DEV_STATUS_LOCKED, VRKS_CARD_PRESENT, VRKS_LOCK_PIN, 3);
        row("PUK", locked(MM_MODEM_LOCK_SIM_PUK), VRKS_DEV_STATUS_LOCKED, VRKS_CARD_PRESENT, VRKS_LOCK_PUK, 10);
        row("network lock", locked(MM_MODEM_LOCK_PH_NET_PIN), VRKS_DEV_STATUS_LOCKED, VRKS_CARD_PRESENT,
            VRKS_LOCK_OTHER, -1);
        row("unknown lock", locked(MM_MODEM_LOCK_UNKNOWN), VRKS_DEV_STATUS_LOCKED, VRKS_CARD_PRESENT, VRKS_LOCK_OTHER,
            -1);
        row("CDMA without a card", cdma(), VRKS_DEV_STATUS_READY, VRKS_CARD_UNKNOWN, VRKS_LOCK_NONE, -1);
    }

    void status() {
        QFETCH(const KnownModem, modem);
        const Picture picture = pictureOf({modem});
        QTEST(*picture.devStatus, "status");
        QTEST(picture.modem().status, "status");
        QTEST(picture.modem().card, "card");
        QTEST(picture.modem().lock, "lock");
        QTEST(picture.modem().attempts, "attempts");
    }

    void network_data() {
        QTest::addColumn<KnownModem>("modem");
        QTest::addColumn<int>("registration");
        QTest::addColumn<int>("generation");
        QTest::addColumn<QString>("technology");
        QTest::addColumn<QString>("operatorCode");
        QTest::addColumn<int>("systemMode");
        const auto row = [](const char* name, const KnownModem& modem, int registration, int generation,
                            const char* technology, const char* code, int mode) {
            QTest::newRow(name) << modem << registration << generation << QString(technology) << QString(code) << mode;
        };
        KnownModem hspa = gsm();
        hspa.accessTechnologies = MM_MODEM_ACCESS_TECHNOLOGY_UMTS | MM_MODEM_ACCESS_TECHNOLOGY_HSPA;
        KnownModem searchingCdma = cdma();
        searchingCdma.state = MM_MODEM_STATE_SEARCHING;
        searchingCdma.registrationEvdo = MM_MODEM_CDMA_REGISTRATION_STATE_UNKNOWN;
        KnownModem onCdma = multi(MM_MODEM_ACCESS_TECHNOLOGY_EVDO0);
        onCdma.registration3gpp = MM_MODEM_3GPP_REGISTRATION_STATE_SEARCHING;
        onCdma.registrationCdma1x = MM_MODEM_CDMA_REGISTRATION_STATE_HOME;

        row("LTE", gsm(), VRKS_REGISTRATION_HOME, 4, "LTE", "46011", 4);
        row("the better of two", hspa, VRKS_REGISTRATION_HOME, 3, "HSPA", "46011", 3);
        row("roaming", at(MM_MODEM_3GPP_REGISTRATION_STATE_ROAMING), VRKS_REGISTRATION_ROAMING, 4, "LTE", "46011", 4);
        row("denied", at(MM_MODEM_3GPP_REGISTRATION_STATE_DENIED), VRKS_REGISTRATION_DENIED, 0, "", "", 0);
        row("emergency", at(MM_MODEM_3GPP_REGISTRATION_STATE_EMERGENCY_ONLY), VRKS_REGISTRATION_DENIED, 0, "", "", 0);
        row("searching", at(MM_MODEM_3GPP_REGISTRATION_STATE_SEARCHING), VRKS_REGISTRATION_SEARCHING, 0, "", "", 0);
        row("switched off", with(gsm(), MM_MODEM_STATE_DISABLED), VRKS_REGISTRATION_IDLE, 0, "", "", 0);
        row("CDMA", cdma(), VRKS_REGISTRATION_ROAMING, 3, "EV-DO Rev. A", "4139", 2);
        row("CDMA, searching", searchingCdma, VRKS_REGISTRATION_SEARCHING, 0, "", "", 0);
        row("both, on CDMA", onCdma, VRKS_REGISTRATION_HOME, 3, "EV-DO", "46011", 2);
    }

    void network() {
        QFETCH(const KnownModem, modem);
        const Picture picture = pictureOf({modem});
        QTEST(picture.modem().registration, "registration");
        QTEST(picture.modem().generation, "generation");
        QTEST(QString::fromStdString(picture.modem().technology), "technology");
        QTEST(QString::fromStdString(picture.modem().operatorCode), "operatorCode");
        QTEST(picture.systemMode->mode, "systemMode");
        QVERIFY(picture.systemMode->subMode < 31);  // the first of eHRPD's
    }

    void kindOfModem_data() {
        QTest::addColumn<KnownModem>("modem");
        QTest::addColumn<int>("productType");
        QTest::addColumn<int>("isMultiMode");
        QTest::addColumn<int>("cardMode");
        KnownModem switched = multi(MM_MODEM_ACCESS_TECHNOLOGY_UNKNOWN);
        switched.currentCapabilities = MM_MODEM_CAPABILITY_CDMA_EVDO;

        QTest::newRow("GSM") << gsm() << 0 << 0 << 0;
        QTest::newRow("CDMA") << cdma() << VRKS_PRODUCT_TYPE_CDMA << 0 << 0;
        QTest::newRow("both, on UMTS") << multi(MM_MODEM_ACCESS_TECHNOLOGY_UMTS) << 0 << 1 << 1;
        QTest::newRow("both, on 1x") << multi(MM_MODEM_ACCESS_TECHNOLOGY_1XRTT) << 0 << 1 << 2;
        QTest::newRow("both, nowhere yet") << multi(MM_MODEM_ACCESS_TECHNOLOGY_UNKNOWN) << 0 << 1 << 0;
        QTest::newRow("both, switched to CDMA") << switched << VRKS_PRODUCT_TYPE_CDMA << 1 << 2;
    }

    void kindOfModem() {
        QFETCH(const KnownModem, modem);
        const Picture picture = pictureOf({modem});
        QTEST(*picture.productType, "productType");
        QTEST(int(picture.multiModeStatus->isMultiMode), "isMultiMode");
        QTEST(cardModeOf(picture), "cardMode");
    }

    void cardModeStaysWhenTheNetworkIsLost() {
        const Picture before = pictureOf({multi(MM_MODEM_ACCESS_TECHNOLOGY_EVDO0)});
        QCOMPARE(cardModeOf(pictureOf({multi(MM_MODEM_ACCESS_TECHNOLOGY_UNKNOWN)}, before)), 2);
        KnownModem other = multi(MM_MODEM_ACCESS_TECHNOLOGY_UNKNOWN);
        other.device = "another";
        QCOMPARE(cardModeOf(pictureOf({other}, before)), 0);
    }

    void events_data() {
        QTest::addColumn<KnownModem>("before");
        QTest::addColumn<KnownModem>("after");
        QTest::addColumn<int>("event");
        KnownModem onHspa = gsm();
        onHspa.accessTechnologies = MM_MODEM_ACCESS_TECHNOLOGY_HSPA;
        KnownCard other = card();
        other.imsi = "262011234567890";
        KnownModem carrier = gsm();
        carrier.carrierConfiguration = "Example";

        QTest::newRow("unlocked") << locked(MM_MODEM_LOCK_SIM_PIN) << gsm() << 6014;
        QTest::newRow("handover") << gsm() << onHspa << 0;
        QTest::newRow("radio off") << gsm() << with(gsm(), MM_MODEM_STATE_DISABLED) << 0;
        QTest::newRow("other card") << gsm() << withCard(gsm(), other) << 6016;
        QTest::newRow("other customisation") << gsm() << carrier << 6016;
        QTest::newRow("card gone") << gsm() << failed(MM_MODEM_STATE_FAILED_REASON_SIM_MISSING) << 6016;
        QTest::newRow("from UMTS to CDMA")
            << multi(MM_MODEM_ACCESS_TECHNOLOGY_UMTS) << multi(MM_MODEM_ACCESS_TECHNOLOGY_1XRTT) << 6016;
        QTest::newRow("lost on CDMA") << multi(MM_MODEM_ACCESS_TECHNOLOGY_1XRTT)
                                      << multi(MM_MODEM_ACCESS_TECHNOLOGY_UNKNOWN) << 0;
    }

    void events() {
        QFETCH(const KnownModem, before);
        QFETCH(const KnownModem, after);
        QFETCH(const int, event);
        const Picture first = pictureOf({before});
        const std::vector<int> expected(event ? 1 : 0, event);
        QCOMPARE(eventsBetween(first, pictureOf({after}, first)).device, expected);
    }

    void choosesAmongModems() {
        const KnownModem a = named("a", MM_MODEM_STATE_LOCKED);
        const KnownModem b = named("b", MM_MODEM_STATE_REGISTERED);
        const KnownModem c = named("c", MM_MODEM_STATE_REGISTERED);
        const Picture picture = pictureOf({c, b, a});
        QCOMPARE(picture.modems.size(), std::size_t(3));
        QCOMPARE(picture.modems.front().id, std::string("a"));
        QCOMPARE(picture.modemInUse, std::string("b"));
        QCOMPARE(pictureOf({c, b, a}, picture, "a").devStatus, std::optional<int>(VRKS_DEV_STATUS_LOCKED));
        QCOMPARE(pictureOf({b}, picture, "a").devStatus, std::optional<int>(VRKS_DEV_STATUS_NO_MODEM));
    }

    void connectionHasItsOwnModemsCard_data() {
        QTest::addColumn<QString>("modem");
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("imsi");
        const int up = VRKS_CONNECTION_UP;
        QTest::newRow("in use") << "/Modem/0" << up << "460110123456789";
        QTest::newRow("not in use") << "/Modem/1" << up << "26201";
        QTest::newRow("gone") << "/Modem/2" << up << "";
        QTest::newRow("down") << "/Modem/0" << int(VRKS_CONNECTION_DOWN) << "";
    }

    void connectionHasItsOwnModemsCard() {
        KnownModem first = gsm(), second = named("b", MM_MODEM_STATE_REGISTERED);
        first.path = "/Modem/0";
        second.path = "/Modem/1";
        second.card->imsi = "26201";
        QFETCH(const QString, modem);
        QFETCH(const int, state);
        Picture before = pictureOf({first});
        before.connection.modem = modem.toStdString();
        before.connection.state = state;
        const Picture picture = pictureOf({first, second}, before);
        QFETCH(const QString, imsi);
        QCOMPARE(QString::fromStdString(picture.connectionImsi()), imsi);
        const std::vector<int> told = eventsBetween(before, picture).others;
        const bool isTold = std::count(told.begin(), told.end(), VRKS_EVENT_CONNECTION_CHANGED) > 0;
        QCOMPARE(isTold, imsi == "26201");
    }

    void withoutDaemonNothingIsKnown() {
        const Picture before = pictureOf({gsm()});
        const Picture picture = ::pictureOf({}, {}, before);
        QVERIFY(!picture.devStatus && !picture.imsi && !picture.multiModeStatus && picture.modems.empty());
    }

    void keepsWhatTheDaemonDoesNotTellAgain() {
        Picture before = pictureOf({gsm()});
        before.modems.front().unlockResult = VRKS_UNLOCK_WRONG;
        before.connection.state = VRKS_CONNECTION_UP;
        before.ussd.state = VRKS_USSD_ASKS;
        const Picture after = pictureOf({gsm()}, before);
        QCOMPARE(after.modem().unlockResult, int(VRKS_UNLOCK_WRONG));
        QCOMPARE(after.connection.state, int(VRKS_CONNECTION_UP));
        QCOMPARE(after.ussd.state, int(VRKS_USSD_ASKS));
        QCOMPARE(pictureOf({}, before).ussd.failure, int(VRKS_USSD_FAILURE_MODEM_GONE));
        QCOMPARE(::pictureOf({}, {}, before).ussd.failure, int(VRKS_USSD_FAILURE_NO_MODEM_SERVICE));
    }
};

QTEST_APPLESS_MAIN(tst_modempicture)
#include "tst_modempicture.moc"
