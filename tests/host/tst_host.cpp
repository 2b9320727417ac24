// SPDX-License-Identifier: MIT
// The host's classes in one process, with the fake settings plug-in and the real dial-up plug-in.
#include <vrks_simulated.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLayout>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QPluginLoader>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QtTest>
#include <memory>

#include "Change.h"
#include "CommonUtils.h"
#include "ConnectionView.h"
#include "DataUsage.h"
#include "FakeProfiles.h"
#include "Host.h"
#include "HostSettings.h"
#include "HostText.h"
#include "IDialupUIService.h"
#include "Languages.h"
#include "Rows.h"
#include "SettingsPages.h"
#include "Startup.h"
#include "TestFolder.h"

namespace {

constexpr int FakeRow = 0;
constexpr int HostRow = 1;

// Presses the first button of the message on screen and answers its text.
QString clickMessage() {
    auto* message = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!message) return QString();
    const QString text = message->text();
    QTest::mouseClick(message->buttons().first(), Qt::LeftButton);
    return text;
}

// A listener that notes the events, and when told of one takes another listener away.
struct Listener : INotify {
    int Notify(unsigned int event, unsigned int param1, unsigned int param2) override {
        events.append({event, param1, param2});
        if (service) service->RemoveListener(other);
        return 0;
    }

    QVector<QVector<unsigned int>> events;
    NotifyService* service = nullptr;
    INotify* other = nullptr;
};

int ussdState() {
    VRKS_Ussd ussd{};
    ussd.size = sizeof ussd;
    return VRKS_NetSrv_GetUssd(&ussd) == 0 ? ussd.state : -1;
}

}  // namespace

class tst_host : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_Folder = std::make_unique<TestFolder>();
        QDir().rmdir(m_Folder->path("library/lang"));
        QVERIFY(QFile::link(TEXTS_DIR, m_Folder->path("library/lang")));
        install("DialupPlugin", DIALUP_PLUGIN);
        install("FakeSettingsPlugin", FAKE_PLUGIN);
        vrks_simulated_reset();
        vrks_simulated_set("DIAL_MS", "40");
        Change::SetLanguage("en");
        Fake::reset();
        start();
    }

    void cleanup() {
        m_Host.reset();
        Change::SetLanguage("en");
    }

    void notifies() {
        NotifyService service;
        Listener host, target, gone, remover;
        remover.service = &service;
        remover.other = &gone;
        service.AddListener(ORBISDIAL_HOST_LISTENER_CLSID, &host);
        for (Listener* listener : {&remover, &gone, &target}) service.AddListener("target", listener);
        QCOMPARE(service.SendNotify("target", 512, 1, 2), 0);
        QCOMPARE(service.SendNotify("nobody", 514, 0, 0), -1);
        QCOMPARE(service.SendNotify(ORBISDIAL_HOST_LISTENER_CLSID, 515, 0, 0), 0);
        QCOMPARE(target.events, (QVector<QVector<unsigned int>>{{512, 1, 2}}));
        QVERIFY(host.events.size() == 3 && gone.events.isEmpty());
    }

    void startsAndStops() {
        QVERIFY(find(ORBISDIAL_DIALUP_CLSID, DialupPluginKind) && profiles());
        QVERIFY(!child<QLabel>("Host_Problems")->isVisible());
        m_Host.reset();
        QCOMPARE(Startup::GetPluginContainer()->GetPluginCount(), 0);
        QVERIFY(!CommonUtils::GetMainWindow());
        QCOMPARE(Fake::calls(), (QStringList{"Init", "QueryInterface 4098", "QueryInterface 28689",
                                             "UnSDKRegisterEvent", "OnDestroy"}));
        start();  // the entry objects are made anew
        QVERIFY(!child<QWidget>("Fake_Edit"));
        m_Host->window()->openSettings();
        QVERIFY(child<QLineEdit>("Fake_Edit")->isVisible());
    }

    void goesOnWithoutBrokenPlugins() {
        m_Host.reset();
        install("Foreign", QPluginLoader("platforms/qminimal").fileName());
        TestFolder::write(plugin("Broken/libBroken.so"), "no library at all");
        TestFolder::write(plugin("Broken/readme.txt"), "no library by its name");
        QVERIFY(QDir().mkpath(plugin("SameAgain")));
        QVERIFY(QFile::copy(DIALUP_PLUGIN, plugin("SameAgain/libSameAgain.so")));
        Fake::reset();
        Fake::set("fake.initFails", true);
        start();
        const QStringList lines = child<QLabel>("Host_Problems")->text().split('\n');
        const QStringList expected = {"libBroken.so can't be used: it can't be loaded",
                                      "libqminimal.so can't be used: it is not a plug-in",
                                      "libSameAgain.so can't be used: another plug-in",
                                      "libFakeSettingsPlugin.so can't be used: it could not start"};
        QCOMPARE(lines.size(), expected.size());
        for (int i = 0; i < lines.size(); ++i) QVERIFY2(lines[i].startsWith(expected[i]), qPrintable(lines[i]));
        QVERIFY(child<QLabel>("Host_Problems")->isVisible());
        QCOMPARE(Fake::calls(), (QStringList{"Init", "UnSDKRegisterEvent", "OnDestroy"}));
        click("Host_ConnectButton");
        QVERIFY(child<QLabel>("Host_FailureText")->text().contains("not loaded"));
        m_Host->window()->openSettings();
        QCOMPARE(pageList()->count(), 1);
    }

    void keepsAPageThatRefusesToGo() {
        SettingsPages* pages = m_Host->window()->pages();
        m_Host->window()->openSettings();
        Fake::set("fake.refuse", true);
        clickRow(HostRow);
        QCOMPARE(pageList()->currentRow(), FakeRow);
        QVERIFY(child<QLineEdit>("Fake_Edit")->isVisible());
        QVERIFY(!pages->showPage("Host"));
        QVERIFY(!m_Host->window()->close() && m_Host->window()->isVisible());

        Fake::set("fake.refuse", false);
        clickRow(HostRow);
        QVERIFY(child<QWidget>("Host_SettingsPage")->isVisible() && !child<QLineEdit>("Fake_Edit")->isVisible());
        clickRow(FakeRow);
        QCOMPARE(Fake::calls().mid(3), (QStringList{"Show", "Hide", "Hide", "OK", "Hide", "Show"}));
        QVERIFY(!child<QWidget>("Host_SettingsPage")->isVisible());
        QVERIFY(!pages->showPage("no such page") && pages->showPage("Host") && pages->showPage("Fake page"));
        QVERIFY(m_Host->window()->close() && !dialog()->isVisible());
    }

    // OK and Cancel close the dialog, and so do Escape and the cross, which ask as OK does.
    void answersOkAndCancel_data() {
        const Rows<QString, QStringList, bool> row("by", "calls", "staysWhenRefused");
        row("OK", "Host_OkButton", {"OK"}, true);
        row("Cancel", "Host_CancelButton", {"Cancel"}, false);
        row("Escape", "Escape", {"OK"}, true);
        row("cross", "cross", {"OK"}, true);
    }
    void answersOkAndCancel() {
        QFETCH(QString, by);
        QFETCH(QStringList, calls);
        QFETCH(bool, staysWhenRefused);
        const auto end = [&] {
            if (by == "Escape") return QTest::keyClick(child<QWidget>("Fake_Edit"), Qt::Key_Escape);
            if (by == "cross") return void(dialog()->close());
            click(qPrintable(by));
        };
        m_Host->window()->openSettings();
        QTRY_VERIFY(child<QWidget>("Fake_Edit")->hasFocus());
        QTest::keyClick(child<QWidget>("Fake_Edit"), Qt::Key_Return);  // is the page's own
        Fake::set("fake.refuse", true);
        end();
        QCOMPARE(dialog()->isVisible(), staysWhenRefused);
        Fake::set("fake.refuse", false);
        if (staysWhenRefused) end();
        QVERIFY(!dialog()->isVisible() && m_Host->window()->isVisible());
        m_Host->window()->openSettings();
        const QStringList twice = staysWhenRefused ? calls + calls : calls;
        QCOMPARE(Fake::calls().mid(3), QStringList("Show") + twice + QStringList("Show"));
    }

    void staysOpenWhileAPageAsks() {
        m_Host->window()->openSettings();
        Fake::set("fake.ask", true);
        bool closed = true;
        QTimer::singleShot(50, this, [&] {
            closed = m_Host->window()->close();
            clickRow(HostRow);
            clickMessage();
        });
        click("Host_OkButton");
        QVERIFY(!closed);
        QCOMPARE(Fake::calls().mid(3), (QStringList{"Show", "OK"}));
        QCOMPARE(pageList()->currentRow(), FakeRow);
    }

    // Choices wait for OK while another page is on show; Cancel forgets them.
    void changesLanguage() {
        chooseLanguage("de");
        clickRow(FakeRow);
        click("Host_CancelButton");
        chooseLanguage("ar");
        auto* keepDefault = child<QCheckBox>("Host_KeepDefaultBox");
        keepDefault->click();
        clickRow(FakeRow);
        clickRow(HostRow);
        QVERIFY(keepDefault->isChecked());
        clickRow(FakeRow);
        QVERIFY(!Fake::calls().contains("Notify 320"));
        QCOMPARE(CommonUtils::GetSettings("Host", "language"), QString());
        click("Host_OkButton");
        QCOMPARE(CommonUtils::GetSettings("ConnectionSetting", "load"), QString("true"));
        QCOMPARE(Fake::calls().count("Notify 320"), 1);
        QCOMPARE(Change::GetLangName(), QString("ar"));
        QCOMPARE(pageList()->item(HostRow)->text(), hostText("IDS_HOST_SETTINGS_NAME"));

        // At the next start: English when the stored one is no longer shipped.
        QVERIFY(Languages::store("xx"));
        Languages::useStored();
        QCOMPARE(Change::GetLangName(), QString("en"));
    }

    // The limit is that of the card in the modem; what is not chosen stays as it is stored, to the byte.
    void limitsWhatACardMoves() {
        const quint64 stored = 1234567890;
        QVERIFY(DataUsage().setLimit("262011234567890", stored));
        for (const char* imsi : {"262011234567890", "262019999999999", ""}) {
            vrks_simulated_set("IMSI", *imsi ? imsi : nullptr);
            for (const char* button : {"Host_OkButton", "Host_CancelButton"}) {
                m_Host->window()->openSettings();
                clickRow(HostRow);
                auto* box = child<QDoubleSpinBox>("Host_LimitBox");
                QCOMPARE(box->isVisible(), *imsi != 0);
                if (QByteArray(imsi).endsWith('9')) QTest::keyClick(box, Qt::Key_Up);
                click(button);
            }
        }
        QCOMPARE(DataUsage().limit("262011234567890"), stored);
        QCOMPARE(DataUsage().limit("262019999999999"), quint64(500000000));
        QCOMPARE(DataUsage().limit(QString()), quint64(0));
    }

    // The dialog goes to the page that can't be stored.
    void tabsFromTheListIntoThePage() {
        m_Host->window()->openSettings();
        for (const int row : {FakeRow, HostRow}) {
            clickRow(row);
            pageList()->setFocus();
            QTest::keyClick(pageList(), Qt::Key_Tab);
            QVERIFY(child<QWidget>("Host_PageFrame")->isAncestorOf(QApplication::focusWidget()));
            child<QWidget>("Host_CancelButton")->setFocus();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), pageList());
        }
    }

    void makesRoomForEachPage() {
        for (const int row : {FakeRow, HostRow, HostRow}) {
            m_Host->window()->openSettings();
            clickRow(row);
            QTRY_COMPARE(dialog()->findChild<QScrollArea*>()->horizontalScrollBar()->maximum(), 0);
            if (row == HostRow) dialog()->close();
        }
    }

    // Also where a language has no letters on a keyboard's keys, and when its texts change.
    void givesEachEntryALetter() {
        for (const char* language : {"ar", "de"}) {
            QVERIFY(m_Host->changeLanguage(language));
            for (const QAction* title : m_Host->window()->menuBar()->actions()) {
                QMenu* const menu = title->menu();
                QMetaObject::invokeMethod(menu, "aboutToShow");
                QStringList letters;
                for (const QAction* action : menu->actions())
                    if (!action->isSeparator()) letters.append(QKeySequence::mnemonic(action->text()).toString());
                QVERIFY2(letters.size() > 2 && !letters.contains(QString()), qPrintable(letters.join(' ')));
                QCOMPARE(letters.removeDuplicates(), 0);
            }
        }
    }

    void saysWhenSettingsAreNotStored() {
        TestFolder::write(m_Folder->path("file"), "");
        qputenv("ORBISDIAL_CONFIG_DIR", QFile::encodeName(m_Folder->path("file/config")));
        chooseLanguage("fr");
        clickRow(FakeRow);
        QString said;
        QTimer::singleShot(50, this, [&said] { said = clickMessage(); });
        click("Host_OkButton");
        QCOMPARE(said, hostText("IDS_HOST_SETTINGS_NOT_SAVED"));
        QCOMPARE(Change::GetLangName(), QString("en"));
        QVERIFY(dialog()->isVisible() && pageList()->currentRow() == HostRow);
        QCOMPARE(child<QComboBox>("Host_LanguageBox")->currentData().toString(), QString("fr"));
    }

    void showsWhatTheCardSelected() {
        const QVariant known("26201"), none("");
        const struct {
            const char* imsi;
            QVariant prefix, preset, provider;
            const char* line;
        } rows[] = {
            {"262011234567890", known, "100%3 <b>&", none,
             "SIM card 262011234567890: preset \"100%3 <b>&\", selected by its prefix 26201"},
            {"262011234567890", known, "A", "B",
             "SIM card 262011234567890: preset \"A\", selected by its prefix 26201 and the name of its operator, B"},
            {"262011234567890", none, none, none, "SIM card 262011234567890: no preset matches it"},
            {"", known, "A", none, ""}};
        auto* edit = child<QLineEdit>("ModemPanel_Imsi");
        for (const auto& row : rows) {
            profiles()->setProperty(ORBISDIAL_MATCHED_IMSI_PREFIX, row.prefix);
            profiles()->setProperty(ORBISDIAL_PROPOSED_DEFAULT, row.preset);
            profiles()->setProperty(ORBISDIAL_PROPOSED_OPERATOR, row.provider);
            edit->selectAll();
            QTest::keyClick(edit, Qt::Key_Delete);
            QTest::keyClicks(edit, row.imsi);
            QTest::keyClick(edit, Qt::Key_Return);
            QTRY_COMPARE(child<QLabel>("Host_SimSummary")->text(), QString(row.line));
        }
    }

    // What has no control of its own is set by its name; a value that is none gives way to the one in force.
    void setsTheModemByName() {
        auto* box = child<QComboBox>("ModemPanel_Setting");
        auto* value = child<QLineEdit>("ModemPanel_Value");
        box->setCurrentText("SIGNAL");
        emit box->activated(box->currentIndex());
        QCOMPARE(value->text(), QString("70"));
        const struct { const char *typed, *shown; } rows[] = {{"101", "70"}, {"33", "33"}};
        for (const auto& row : rows) {
            value->selectAll();
            QTest::keyClicks(value, row.typed);
            QTest::keyClick(value, Qt::Key_Return);
            QCOMPARE(value->text(), QString(row.shown));
        }
        VRKS_ModemInfo info{};
        info.size = sizeof info;
        QCOMPARE(VRKS_DevSrv_GetModemInfo(&info), 0L);
        QCOMPARE(info.signal, 33);
    }

    void showsStorageProblems() {
        auto* label = child<QLabel>("Host_StorageProblem");
        QVERIFY(!label->isVisible());
        profiles()->setProperty(ORBISDIAL_LAST_STORAGE_PROBLEM, "UserProfile.prof:3:1: broken");
        QTRY_VERIFY(label->isVisible());
        QVERIFY(label->text().endsWith("UserProfile.prof:3:1: broken"));
        profiles()->setProperty(ORBISDIAL_LAST_STORAGE_PROBLEM, "");
        QTRY_VERIFY(!label->isVisible());
    }

    void connects() {
        auto* label = child<QLabel>("Host_ConnectionState");
        auto* failure = child<QLabel>("Host_FailureText");
        QTest::keyClick(child<QComboBox>("ModemPanel_Outcome"), Qt::Key_Down);
        click("Host_ConnectButton");
        QTRY_VERIFY(failure->isVisible() && failure->text().contains("no carrier"));
        QCOMPARE(label->text(), QString("Not connected"));
        QTest::keyClick(child<QComboBox>("ModemPanel_Outcome"), Qt::Key_Up);
        QTest::qWait(50);
        QVERIFY(failure->isVisible());  // until the next attempt
        click("Host_TryAgainButton");
        QVERIFY(!failure->isVisible());
        QTRY_COMPARE(label->text(), QString("Connected with Home"));
        QCOMPARE(child<QPushButton>("Host_ConnectButton")->text(), QString("Disconnect"));
        QVERIFY(child<QWidget>("Host_Transfer")->isVisible());
        QVERIFY(Fake::calls().contains("Notify 528"));
    }

    // Whichever modem is chosen meanwhile.
    void showsTheVolumeOfTheConnectionsCard() {
        const QString card = "262011234567890";
        vrks_simulated_set("IMSI", card.toLatin1());
        vrks_simulated_set("2_PRESENT", "1");
        click("Host_ConnectButton");
        QTRY_COMPARE(child<QLabel>("Host_ConnectionState")->text(), QString("Connected with Home"));
        QCOMPARE(VRKS_DevSrv_SelectModem("/simulated/2"), 0L);
        QVERIFY(DataUsage().setLimit(card, 7000000000));
        QTRY_VERIFY(child<QLabel>("Host_Month")->text().endsWith("of 7.0 GB"));
        m_Host->window()->openSettings();
        clickRow(HostRow);
        QCOMPARE(child<QDoubleSpinBox>("Host_LimitBox")->value(), 7.0);
        click("Host_CancelButton");
    }

    // The last attempt is spent only after somebody agreed, and a PUK needs a new PIN twice.
    // However narrow the window is when a text comes, and however narrow it is made then.
    void cutsNoText() {
        MainWindow* const window = m_Host->window();
        auto* card = child<QLabel>("Host_SimSummary");
        const auto isWhole = [card] { return card->height() >= card->heightForWidth(card->width()); };
        window->resize(window->minimumSizeHint());
        QTRY_VERIFY(card->isVisible() && isWhole());
        const int before = card->height();
        card->setText(card->text().repeated(8));
        QTRY_VERIFY(card->height() > before && isWhole());
        window->resize(window->width() / 2, 1);
        QTRY_VERIFY(isWhole());
        card->setText(hostText("IDS_HOST_SIM", {QString(255, 'm')}));
        QVERIFY(card->minimumSizeHint().width() < window->width());
    }

    void unlocks() {
        vrks_simulated_set("UNLOCK_MS", "1");
        vrks_simulated_set("PIN_ATTEMPTS", "2");
        vrks_simulated_change("LOCK", "pin");
        QTRY_COMPARE(child<QPushButton>("Host_ConnectButton")->text(), QString("Unlock\u2026"));
        click("Host_ConnectButton");
        auto* code = child<QLineEdit>("Unlock_Code");
        auto* result = child<QLabel>("Unlock_Result");
        auto* left = child<QLabel>("Unlock_Attempts");
        auto* unlock = child<QDialog>("Host_UnlockDialog");
        auto* ok = unlock->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        QCOMPARE(unlock->height(), unlock->layout()->totalHeightForWidth(unlock->width()));
        QTest::keyClicks(code, "9x9");
        QVERIFY(code->text() == "99" && !ok->isEnabled());
        QTest::keyClicks(code, "99");
        QTest::mouseClick(ok, Qt::LeftButton);
        QTRY_COMPARE(result->text(), QString("That was wrong."));
        QVERIFY(code->text().isEmpty() && left->text().contains("PUK"));
        QTest::keyClicks(code, "9999");
        QVERIFY(!ok->isEnabled());
        child<QCheckBox>("Unlock_UseLast")->click();
        QTest::mouseClick(ok, Qt::LeftButton);
        auto* pin = child<QLineEdit>("Unlock_NewPin");
        QTRY_VERIFY(pin->isVisible());
        QTest::keyClicks(code, "12345678");
        QTest::keyClicks(pin, "4321");
        QTest::keyClicks(child<QLineEdit>("Unlock_RepeatPin"), "432");
        QVERIFY(!ok->isEnabled());
        QTest::keyClicks(child<QLineEdit>("Unlock_RepeatPin"), "1");
        QTest::mouseClick(ok, Qt::LeftButton);
        QTRY_COMPARE(child<QPushButton>("Host_ConnectButton")->text(), QString("Connect"));
        QTRY_VERIFY(!child<QWidget>("Host_UnlockDialog"));
    }

    // Nothing is sent unasked; what the network asks back can be answered, and a session does not outlive the dialog.
    void asksForTheBalance() {
        m_Folder->ship("Operators.xml",
                       "<Operators><operator country='de' name='Guest'><preset name='Home'/>"
                       "<balance way='ussd' number='*100#'/></operator></Operators>");
        vrks_simulated_set("USSD", "asks");
        vrks_simulated_set("USSD_MS", "1");
        m_Host->window()->findChild<QAction*>("IDS_HOST_BALANCE")->trigger();
        auto* answer = child<QLabel>("Balance_Answer");
        QVERIFY(child<QLabel>("Balance_Way")->text().contains("Guest"));
        QCOMPARE(child<QLineEdit>("Balance_Command")->text(), QString("*100#"));
        QTest::qWait(30);
        QCOMPARE(ussdState(), int(VRKS_USSD_IDLE));
        click("Balance_Ask");
        QTRY_VERIFY(child<QLineEdit>("Balance_Reply")->isVisible());
        QCOMPARE(answer->text(), QString("1 Balance\n2 Tariff"));
        QTest::keyClicks(child<QLineEdit>("Balance_Reply"), "1\r");
        QTRY_COMPARE(answer->text(), QString("Your balance: 12.34"));
        QVERIFY(!child<QLineEdit>("Balance_Reply")->isVisible());
        vrks_simulated_set("USSD_PATIENCE_MS", "20");
        click("Balance_Ask");
        QTRY_VERIFY(child<QLabel>("Balance_State")->text().contains("ended the session"));
        QVERIFY(!child<QLineEdit>("Balance_Reply")->isVisible());
        vrks_simulated_set("USSD_PATIENCE_MS", "0");
        click("Balance_Ask");
        QTRY_VERIFY(child<QLineEdit>("Balance_Reply")->isVisible());
        click("Balance_Close");
        QTRY_COMPARE(ussdState(), int(VRKS_USSD_FAILED));
    }

    // Closing while connected says what happens; no answer keeps the window.
    void asksBeforeAConnectionEnds() {
        click("Host_ConnectButton");
        QTRY_COMPARE(child<QLabel>("Host_ConnectionState")->text(), QString("Connected with Home"));
        QSignalSpy closed(m_Host->window(), &MainWindow::closed);
        QTimer::singleShot(50, this, [] { QApplication::activeModalWidget()->close(); });
        QVERIFY(!m_Host->window()->quit() && closed.isEmpty());
        QString said;
        QTimer::singleShot(50, this, [&said] { said = clickMessage(); });
        QVERIFY(m_Host->window()->quit());
        QVERIFY2(said.startsWith("You are connected. The connection ends"), qPrintable(said));
        QCOMPARE(closed.size(), 1);
        QVERIFY(!HostSettings::windowGeometry().isEmpty());
    }

    void startsWithTheSession() {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_Folder->path("xdg")));
        QVERIFY(!HostSettings::startsWithSession() && HostSettings::setStartsWithSession(true));
        const QByteArray entry = TestFolder::read(m_Folder->path("xdg/autostart/orbisdial.desktop"));
        QVERIFY2(entry.contains("\" --tray\n") && HostSettings::startsWithSession(), entry);
        QVERIFY(HostSettings::setStartsWithSession(false) && !HostSettings::startsWithSession());
    }

    // Events of the modem reach the window and the plug-ins, and nothing is polled.
    void followsTheModem() {
        auto* detail = child<QLabel>("Host_ConnectionDetail");
        vrks_simulated_change("SIGNAL", "20");
        QTRY_VERIFY2(detail->text().contains("20\u00a0%"), qPrintable(detail->text()));
        // LTE, UMTS, none, UMTS: nothing to read again; CDMA, its eHRPD.
        const struct {
            const char *mode, *subMode;
            int told;
        } modes[] = {{"4", "16", 0}, {"3", "9", 0}, {"0", "0", 0}, {"3", "9", 0}, {"2", "6", 1}, {"2", "31", 2}};
        for (const auto& row : modes) {
            vrks_simulated_change("SYS_SUBMODE", row.subMode);
            vrks_simulated_change("SYS_MODE", row.mode);
            vrks_simulated_wait_events();
            QCoreApplication::processEvents();
            QCOMPARE(Fake::calls().count("Notify 4101"), row.told);
        }
        vrks_simulated_change("PRESENT", "0");
        QTRY_COMPARE(child<QLabel>("Host_ConnectionState")->text(), QString("No modem"));
        QVERIFY(!child<QPushButton>("Host_ConnectButton")->isEnabled());
    }

private:
    template <class T>
    T* child(const char* name) {
        return m_Host->window()->findChild<T*>(name);
    }
    QWidget* dialog() { return child<QWidget>("Host_SettingsDialog"); }
    QListWidget* pageList() { return child<QListWidget>("Host_PageList"); }
    static QObject* find(const char* clsid, int kind) { return Startup::GetPluginContainer()->FindPlugin(clsid, kind); }
    static QObject* profiles() { return find(ORBISDIAL_NETCONNECT_CLSID, NetConnectSettingKind); }
    QString plugin(const QString& name) const { return m_Folder->path("library/plugins/" + name); }

    void install(const QString& folder, const QString& library) const {
        QVERIFY(QDir().mkpath(plugin(folder)));
        QVERIFY(QFile::link(library, plugin(folder) + '/' + QFileInfo(library).fileName()));
    }

    void start() {
        m_Host = std::make_unique<Host>();
        m_Host->start();
        m_Host->window()->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_Host->window()));
    }

    void click(const char* name) { QTest::mouseClick(child<QWidget>(name), Qt::LeftButton); }

    void clickRow(int row) {
        const QRect place = pageList()->visualItemRect(pageList()->item(row));
        QTest::mouseClick(pageList()->viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
        QCoreApplication::processEvents();
    }

    void chooseLanguage(const char* code) {
        m_Host->window()->openSettings();
        clickRow(HostRow);
        auto* box = child<QComboBox>("Host_LanguageBox");
        box->setCurrentIndex(box->findData(code));
    }

    std::unique_ptr<TestFolder> m_Folder;
    std::unique_ptr<Host> m_Host;
};

QTEST_MAIN(tst_host)
#include "tst_host.moc"
