// The host's classes in one process, with the fake settings plug-in and the real dial-up plug-in.
#include <vrks_simulated.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLibraryInfo>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>
#include <QtTest>
#include <atomic>
#include <memory>

#include "Change.h"
#include "CommonUtils.h"
#include "FakeProfiles.h"
#include "Host.h"
#include "HostText.h"
#include "IDialupUIService.h"
#include "Languages.h"
#include "SettingsPages.h"
#include "Startup.h"
#include "TestFolder.h"

namespace {

constexpr int FakeRow = 0;
constexpr int HostRow = 1;

std::atomic<int> lastEvent{0};

int noteEvent(int event, void*) {
    lastEvent = event;
    return 1;
}

// Presses the first button of the message on screen and answers its text.
QString clickMessage() {
    auto* message = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!message) return QString();
    const QString text = message->text();
    QTest::mouseClick(message->buttons().first(), Qt::LeftButton);
    return text;
}

// A listener that notes the events, and when told of one takes another listener away.
class Listener : public INotify {
public:
    explicit Listener(NotifyService* service = nullptr, INotify* other = nullptr)
        : m_Service(service), m_Other(other) {}
    int Notify(unsigned int event, unsigned int param1, unsigned int param2) override {
        events.append({event, param1, param2});
        if (m_Service) m_Service->RemoveListener(m_Other);
        return 0;
    }
    QVector<QVector<unsigned int>> events;

private:
    NotifyService* m_Service;
    INotify* m_Other;
};

}  // namespace

class tst_host : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void notifies();
    void startsAndStops();
    void goesOnWithoutBrokenPlugins();
    void goesOnWithoutAPluginThatFails();
    void keepsAPageThatRefusesToGo();
    void answersOkAndCancel_data();
    void answersOkAndCancel();
    void asksBeforeItCloses_data();
    void asksBeforeItCloses();
    void staysOpenWhileAPageAsks();
    void pageFollowsTheWindow();
    void changesLanguage_data();
    void changesLanguage();
    void dropsAChosenLanguage();
    void keepsTheSwitch();
    void saysWhenSettingsAreNotStored();
    void showsWhatTheCardSelected_data();
    void showsWhatTheCardSelected();
    void showsStorageProblems();
    void connects_data();
    void connects();
    void drivesTheModem();
    void raisesModemEvents();

private:
    template <class T>
    T* child(const char* name) {
        return m_Host->window()->findChild<T*>(name);
    }
    void start();
    void click(const char* name) { QTest::mouseClick(child<QWidget>(name), Qt::LeftButton); }
    void clickRow(int row);
    QObject* profiles() { return find(ORBISDIAL_NETCONNECT_CLSID, NetConnectSettingKind); }
    static QObject* find(const char* clsid, int kind) { return Startup::GetPluginContainer()->FindPlugin(clsid, kind); }
    QString plugin(const QString& name) { return m_Folder->path("library/plugins/" + name); }
    void install(const QString& folder, const QString& library);

    std::unique_ptr<TestFolder> m_Folder;
    std::unique_ptr<Host> m_Host;
};

void tst_host::init() {
    m_Folder = std::make_unique<TestFolder>();
    QDir().rmdir(m_Folder->path("library/lang"));
    QVERIFY(QFile::link(TEXTS_DIR, m_Folder->path("library/lang")));
    install("DialupPlugin", DIALUP_PLUGIN);
    install("FakeSettingsPlugin", FAKE_PLUGIN);
    vrks_simulated_reset();
    Change::SetLanguage("en");
    Fake::set("fake.calls", QStringList());
    Fake::set("fake.refuse", false);
    Fake::set("fake.ask", false);
    Fake::set("fake.initFails", false);
    Fake::set("fake.profiles", QStringList{"Home"});
    Fake::set("fake.default", "Home");
}

void tst_host::cleanup() {
    m_Host.reset();
    Change::SetLanguage("en");
}

void tst_host::install(const QString& folder, const QString& library) {
    QVERIFY(QDir().mkpath(plugin(folder)));
    QVERIFY(QFile::link(library, plugin(folder) + '/' + QFileInfo(library).fileName()));
}

void tst_host::start() {
    m_Host = std::make_unique<Host>();
    m_Host->window()->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_Host->window()));
    if (QObject* dialer = find(ORBISDIAL_DIALUP_CLSID, DialupPluginKind)) {
        dialer->setProperty(ORBISDIAL_SIMULATED_DELAY, 1);
    }
}

void tst_host::clickRow(int row) {
    auto* list = child<QListWidget>("Host_PageList");
    const QRect place = list->visualItemRect(list->item(row));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    QCoreApplication::processEvents();
}

void tst_host::notifies() {
    NotifyService service;
    Listener host, target, other, gone, remover(&service, &gone);
    service.AddListener(ORBISDIAL_HOST_LISTENER_CLSID, &host);
    service.AddListener("target", &remover);
    service.AddListener("target", &gone);
    service.AddListener("target", &target);
    service.AddListener("other", &other);

    QCOMPARE(service.SendNotify("target", 512, 1, 2), 0);
    QCOMPARE(service.SendNotify("nobody", 514, 0, 0), -1);
    QCOMPARE(service.SendNotify(ORBISDIAL_HOST_LISTENER_CLSID, 515, 0, 0), 0);
    QCOMPARE(target.events, (QVector<QVector<unsigned int>>{{512, 1, 2}}));
    QCOMPARE(host.events.size(), 3);
    QVERIFY(gone.events.isEmpty());
    QVERIFY(other.events.isEmpty());
}

void tst_host::startsAndStops() {
    start();
    QVERIFY(find(ORBISDIAL_DIALUP_CLSID, DialupPluginKind));
    QVERIFY(profiles());
    QVERIFY(!child<QLabel>("Host_Problems")->isVisible());
    m_Host.reset();
    QCOMPARE(Startup::GetPluginContainer()->GetPluginCount(), 0);
    QVERIFY(!CommonUtils::GetMainWindow());
    QCOMPARE(Fake::calls(), (QStringList{"Init", "QueryInterface 4098", "QueryInterface 28689", "Show",
                                         "UnSDKRegisterEvent", "OnDestroy"}));

    start();  // the entry objects are made anew
    QVERIFY(child<QLineEdit>("Fake_Edit")->isVisible());
}

void tst_host::goesOnWithoutBrokenPlugins() {
    const QDir qtPlugins(QLibraryInfo::location(QLibraryInfo::PluginsPath) + "/platforms");
    install("Foreign", qtPlugins.filePath("libqminimal.so"));
    install("SameAgain", DIALUP_PLUGIN);
    TestFolder::write(plugin("Broken/libBroken.so"), "no library at all");
    TestFolder::write(plugin("Broken/readme.txt"), "no library by its name");
    QFile::remove(plugin("SameAgain/libDialupPlugin.so"));
    QVERIFY(QFile::copy(DIALUP_PLUGIN, plugin("SameAgain/libSameAgain.so")));
    start();
    const QStringList lines = child<QLabel>("Host_Problems")->text().split('\n');
    QCOMPARE(lines.size(), 3);
    QVERIFY2(lines[0].startsWith("libBroken.so can't be used: it can't be loaded"), qPrintable(lines[0]));
    QVERIFY2(lines[1].startsWith("libqminimal.so can't be used: it is not a plug-in"), qPrintable(lines[1]));
    QVERIFY2(lines[2].startsWith("libSameAgain.so can't be used: another plug-in"), qPrintable(lines[2]));
    QVERIFY(child<QLabel>("Host_Problems")->isVisible());
    QCOMPARE(child<QListWidget>("Host_PageList")->count(), 2);
}

void tst_host::goesOnWithoutAPluginThatFails() {
    Fake::set("fake.initFails", true);
    start();
    QCOMPARE(Fake::calls(), (QStringList{"Init", "UnSDKRegisterEvent", "OnDestroy"}));
    QVERIFY(child<QLabel>("Host_Problems")->text().contains("could not start"));
    QCOMPARE(child<QListWidget>("Host_PageList")->count(), 1);
    click("Host_ConnectButton");
    QVERIFY(child<QLabel>("Host_ConnectionState")->text().contains("not loaded"));
}

void tst_host::keepsAPageThatRefusesToGo() {
    start();
    Fake::set("fake.refuse", true);
    clickRow(HostRow);
    QCOMPARE(child<QListWidget>("Host_PageList")->currentRow(), FakeRow);
    QVERIFY(child<QLineEdit>("Fake_Edit")->isVisible());
    QVERIFY(!m_Host->window()->pages()->showPage("Host"));

    Fake::set("fake.refuse", false);
    clickRow(HostRow);
    QVERIFY(child<QWidget>("Host_SettingsPage")->isVisible());
    QVERIFY(!child<QLineEdit>("Fake_Edit")->isVisible());
    clickRow(FakeRow);
    QCOMPARE(Fake::calls().mid(3), (QStringList{"Show", "Hide", "Hide", "Hide", "Show"}));
    QVERIFY(!child<QWidget>("Host_SettingsPage")->isVisible());
    QVERIFY(!m_Host->window()->pages()->showPage("no such page"));
    QVERIFY(m_Host->window()->pages()->showPage("Host"));
    QVERIFY(m_Host->window()->pages()->showPage("Fake page"));
}

void tst_host::answersOkAndCancel_data() {
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<bool>("refuses");
    QTest::addColumn<QStringList>("calls");
    QTest::newRow("OK") << QByteArray("Host_OkButton") << false << QStringList{"OK", "Show"};
    QTest::newRow("OK refused") << QByteArray("Host_OkButton") << true << QStringList{"OK"};
    QTest::newRow("Cancel") << QByteArray("Host_CancelButton") << true << QStringList{"Cancel", "Show"};
}

void tst_host::answersOkAndCancel() {
    QFETCH(QByteArray, button);
    QFETCH(bool, refuses);
    QFETCH(QStringList, calls);
    start();
    QTest::keyClicks(child<QLineEdit>("Fake_Edit"), "typed");
    Fake::set("fake.calls", QStringList());
    Fake::set("fake.refuse", refuses);
    click(button);
    QCOMPARE(Fake::calls(), calls);
    QVERIFY(m_Host->window()->isVisible());
    QCOMPARE(child<QLineEdit>("Fake_Edit")->text(), QString("typed"));
}

void tst_host::asksBeforeItCloses_data() {
    QTest::addColumn<bool>("refuses");
    QTest::newRow("agrees") << false;
    QTest::newRow("refuses") << true;
}

void tst_host::asksBeforeItCloses() {
    QFETCH(bool, refuses);
    start();
    Fake::set("fake.refuse", refuses);
    QCOMPARE(m_Host->window()->close(), !refuses);
    QCOMPARE(m_Host->window()->isVisible(), refuses);
    QCOMPARE(Fake::calls().last(), QString("OK"));
}

void tst_host::staysOpenWhileAPageAsks() {
    start();
    Fake::set("fake.ask", true);
    bool closed = true;
    QTimer::singleShot(50, this, [&] {
        closed = m_Host->window()->close();
        clickRow(HostRow);
        clickMessage();
    });
    click("Host_OkButton");
    QVERIFY(!closed);
    QCOMPARE(Fake::calls().mid(3), (QStringList{"Show", "OK", "Show"}));
    QCOMPARE(child<QListWidget>("Host_PageList")->currentRow(), FakeRow);
}

void tst_host::pageFollowsTheWindow() {
    start();
    const QSize before = child<QLineEdit>("Fake_Edit")->size();
    m_Host->window()->resize(m_Host->window()->size() + QSize(120, 0));
    QTRY_COMPARE(child<QLineEdit>("Fake_Edit")->width(), before.width() + 120);
}

void tst_host::changesLanguage_data() {
    QTest::addColumn<QString>("code");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("German") << "de" << Qt::LeftToRight;
    QTest::newRow("Arabic") << "ar" << Qt::RightToLeft;
}

void tst_host::changesLanguage() {
    QFETCH(QString, code);
    QFETCH(Qt::LayoutDirection, direction);
    start();
    clickRow(HostRow);
    const QString english = child<QListWidget>("Host_PageList")->item(HostRow)->text();
    auto* box = child<QComboBox>("Host_LanguageBox");
    box->setCurrentIndex(box->findData(code));
    QVERIFY(!Fake::calls().contains("Notify 320"));
    click("Host_OkButton");

    QCOMPARE(Fake::calls().count("Notify 320"), 1);
    QCOMPARE(Change::GetLangName(), code);
    QCOMPARE(m_Host->window()->layoutDirection(), direction);
    QVERIFY(child<QListWidget>("Host_PageList")->item(HostRow)->text() != english);
    QCOMPARE(child<QListWidget>("Host_PageList")->currentRow(), HostRow);
    QVERIFY(child<QPushButton>("Host_ConnectButton")->text() != "Connect");
    QVERIFY(child<QCheckBox>("ModemPanel_Ready")->text() != "Ready");

    // At the next start: the stored one, and English when that is no longer shipped.
    Change::SetLanguage("fr");
    Languages::useStored();
    QCOMPARE(Change::GetLangName(), code);
    QVERIFY(Languages::store("xx"));
    Languages::useStored();
    QCOMPARE(Change::GetLangName(), QString("en"));
}

void tst_host::dropsAChosenLanguage() {
    start();
    clickRow(HostRow);
    auto* box = child<QComboBox>("Host_LanguageBox");
    box->setCurrentIndex(box->findData("fr"));
    click("Host_CancelButton");
    QCOMPARE(box->currentData().toString(), QString("en"));
    clickRow(FakeRow);
    QCOMPARE(Change::GetLangName(), QString("en"));
}

void tst_host::keepsTheSwitch() {
    start();
    clickRow(HostRow);
    for (const QString& value : QStringList{"true", "false"}) {
        QTest::mouseClick(child<QCheckBox>("Host_KeepDefaultBox"), Qt::LeftButton, Qt::NoModifier, QPoint(8, 12));
        clickRow(FakeRow);
        QCOMPARE(CommonUtils::GetSettings("ConnectionSetting", "load"), value);
        clickRow(HostRow);
        QCOMPARE(child<QCheckBox>("Host_KeepDefaultBox")->isChecked(), value == "true");
    }
}

void tst_host::saysWhenSettingsAreNotStored() {
    start();
    clickRow(HostRow);
    TestFolder::write(m_Folder->path("file"), "");
    qputenv("ORBISDIAL_CONFIG_DIR", QFile::encodeName(m_Folder->path("file/config")));
    auto* box = child<QComboBox>("Host_LanguageBox");
    box->setCurrentIndex(box->findData("fr"));
    QString said;
    QTimer::singleShot(50, this, [&said] { said = clickMessage(); });
    click("Host_OkButton");
    QCOMPARE(said, hostText("IDS_HOST_SETTINGS_NOT_SAVED"));
    QCOMPARE(Change::GetLangName(), QString("en"));
    QCOMPARE(box->currentData().toString(), QString("fr"));
}

void tst_host::showsWhatTheCardSelected_data() {
    QTest::addColumn<QString>("imsi");
    QTest::addColumn<QVariant>("prefix");
    QTest::addColumn<QVariant>("preset");
    QTest::addColumn<QString>("line");
    const QString imsi = "262011234567890";
    QTest::newRow("matched") << imsi << QVariant("26201") << QVariant("100%3 <b>&")
                             << "SIM card 262011234567890: preset \"100%3 <b>&\", selected by its prefix 26201";
    QTest::newRow("no default") << imsi << QVariant("26201") << QVariant("")
                                << "SIM card 262011234567890: prefix 26201 is known, but none of its presets is the "
                                   "proposed default";
    QTest::newRow("no match") << imsi << QVariant("") << QVariant("")
                              << "SIM card 262011234567890: no preset matches it";
    QTest::newRow("not told") << imsi << QVariant() << QVariant() << "SIM card 262011234567890";
    QTest::newRow("no card") << "" << QVariant("26201") << QVariant("A") << "No SIM card found";
}

void tst_host::showsWhatTheCardSelected() {
    QFETCH(QString, imsi);
    QFETCH(QVariant, prefix);
    QFETCH(QVariant, preset);
    QFETCH(QString, line);
    start();
    profiles()->setProperty(ORBISDIAL_MATCHED_IMSI_PREFIX, prefix);
    profiles()->setProperty(ORBISDIAL_PROPOSED_DEFAULT, preset);
    auto* edit = child<QLineEdit>("ModemPanel_Imsi");
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, imsi);
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(child<QLabel>("Host_SimSummary")->text(), line);
}

void tst_host::showsStorageProblems() {
    start();
    auto* label = child<QLabel>("Host_StorageProblem");
    QVERIFY(!label->isVisible());
    profiles()->setProperty(ORBISDIAL_LAST_STORAGE_PROBLEM, "UserProfile.prof:3:1: broken");
    QTRY_VERIFY(label->isVisible());
    QVERIFY(label->text().endsWith("UserProfile.prof:3:1: broken"));
    profiles()->setProperty(ORBISDIAL_LAST_STORAGE_PROBLEM, "");
    QTRY_VERIFY(!label->isVisible());
}

void tst_host::connects_data() {
    QTest::addColumn<int>("outcome");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("button");
    QTest::newRow("answers") << 0 << "Connected with Home"
                             << "Disconnect";
    QTest::newRow("no carrier") << 1 << "Not connected: The network does not answer (no carrier)."
                                << "Connect";
}

void tst_host::connects() {
    QFETCH(int, outcome);
    QFETCH(QString, state);
    QFETCH(QString, button);
    start();
    auto* label = child<QLabel>("Host_ConnectionState");
    auto* connect = child<QPushButton>("Host_ConnectButton");
    auto* box = child<QComboBox>("ModemPanel_Outcome");
    QCOMPARE(child<QLabel>("Host_DefaultProfile")->text(), QString("Default profile: Home"));
    QCOMPARE(label->text(), QString("Not connected"));
    for (int i = 0; i < outcome; ++i) QTest::keyClick(box, Qt::Key_Down);
    click("Host_ConnectButton");
    QCOMPARE(label->text(), QString("Connecting…"));
    QTRY_COMPARE(label->text(), state);
    QCOMPARE(connect->text(), button);
    if (button == "Connect") return;
    QVERIFY(Fake::calls().contains("Notify 528"));
    click("Host_ConnectButton");
    QVERIFY(!connect->isEnabled());
    QTRY_COMPARE(label->text(), QString("Not connected"));
    QVERIFY(connect->isEnabled());
}

void tst_host::drivesTheModem() {
    start();
    Fake::set("fake.calls", QStringList());
    child<QSpinBox>("ModemPanel_SystemMode")->setFocus();
    QTest::keyClick(child<QSpinBox>("ModemPanel_SystemMode"), Qt::Key_Up);
    QTest::keyClick(child<QSpinBox>("ModemPanel_SystemMode"), Qt::Key_Up);
    QTest::keyClick(child<QSpinBox>("ModemPanel_SystemSubMode"), Qt::Key_PageUp);
    QTest::keyClick(child<QComboBox>("ModemPanel_CardMode"), Qt::Key_End);
    QTest::keyClick(child<QComboBox>("ModemPanel_ProductType"), Qt::Key_End);
    QTest::keyClick(child<QCheckBox>("ModemPanel_MultiMode"), Qt::Key_Space);
    QTest::keyClick(child<QCheckBox>("ModemPanel_Ready"), Qt::Key_Space);
    QCOMPARE(Fake::calls(), (QStringList{"Notify 4101", "Notify 4101", "Notify 4101"}));

    qint32 systemInfo[VRKS_SYSINFO_SIZE / 4] = {};
    unsigned char isMultiMode = 0;
    unsigned int cardMode = 0;
    int number = 0;
    QCOMPARE(VRKS_NetSrv_GetSysInfoEx(systemInfo), 0L);
    QCOMPARE(systemInfo[1], 2);
    QCOMPARE(systemInfo[5], 10);
    QCOMPARE(VRKS_DevSrv_GetMultiModeCardStatus(&isMultiMode, nullptr, nullptr, &cardMode), 0L);
    QCOMPARE(int(isMultiMode), 1);
    QCOMPARE(cardMode, 2u);
    QCOMPARE(VRKS_DevSrv_GetProductType(&number), 0L);
    QCOMPARE(number, VRKS_PRODUCT_TYPE_CDMA);
    QCOMPARE(VRKS_DevSrv_GetDevStatus(&number), 0L);
    QVERIFY(number != VRKS_DEV_STATUS_READY);
}

void tst_host::raisesModemEvents() {
    start();
    QCOMPARE(VRKS_DevSrv_RegisterDevInitEventCallback(noteEvent), 0L);
    click("ModemPanel_Initialise");
    QTRY_COMPARE(lastEvent.load(), VRKS_EVENT_DEV_DEVICE_INIT_FINISH);
    click("ModemPanel_ChangeCard");
    QTRY_COMPARE(lastEvent.load(), VRKS_EVENT_DEV_CARD_CHANGED);
    VRKS_DevSrv_UnRegisterDevInitEventCallback(noteEvent);
}

QTEST_MAIN(tst_host)
#include "tst_host.moc"
