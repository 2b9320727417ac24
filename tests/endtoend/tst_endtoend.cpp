// SPDX-License-Identifier: MIT
// The host's window as a person drives it, from the first start to the second: every step builds on the ones
// before it. The first start is in the system's language, English or Arabic, the second in the other.
#include <QLabel>
#include <QListWidget>
#include <memory>

#include "Answers.h"
#include "Change.h"
#include "Host.h"
#include "HostText.h"
#include "IDialupUIService.h"
#include "INetConnectSetting.h"
#include "Languages.h"
#include "SettingsPages.h"
#include "Startup.h"
#include "TestFolder.h"

namespace {

const QString Name = "B\u00fcro & \"\u0645\u0643\u062a\u0628\"";
const QStringList Entered = {"static", "office.example", "*99***2#", "tom", "p\u00e4ss & <secret>"};

constexpr int ProfilesRow = 0;
constexpr int HostRow = 1;

QString text(const char* id) { return Change::tr(id, "NetConnectPlugin"); }
QString marked(const QString& name) { return name + ' ' + text("IDS_STC_NETCONNECTSETTINGDLG_DEFAULT"); }

QObject* plugin(const char* clsid, int kind) { return Startup::GetPluginContainer()->FindPlugin(clsid, kind); }

// QTest::keyClicks() knows ASCII alone.
void typeInto(QWidget* field, const QString& text) {
    for (QChar c : text) QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, c, Qt::NoModifier);
}

bool isPrivate(const QString& file) {
    return QFile::permissions(file) == (QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser);
}

}  // namespace

class tst_endtoend : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        // The shipped files stand where the library is; the file dialogs keep their own settings in the home folder.
        qunsetenv("ORBISDIAL_LIBRARY_PATH");
        qunsetenv("XDG_CONFIG_HOME");
        qputenv("LANGUAGE", TestFolder::language());
        qputenv("HOME", QFile::encodeName(m_Folder.path("home")));
        QDir().mkpath(m_Folder.path("home"));
        start();
    }

    void init() {
        if (m_Failed) QSKIP("an earlier step failed");
    }

    void cleanup() {
        if (QTest::currentTestFailed()) m_Failed = true;
        QVERIFY(m_Failed || m_Answers.allGiven());
    }

    void offersThePresetsOfTheCard() {
        QCOMPARE(Change::GetLangName(), m_Language);
        QCOMPARE(isMirrored(), m_Language == "ar");
        QObject* const profiles = plugin(ORBISDIAL_NETCONNECT_CLSID, NetConnectSettingKind);
        m_Preset = profiles->property(ORBISDIAL_PROPOSED_DEFAULT).toString();
        QVERIFY(!m_Preset.isEmpty() && combo()->count() > 1);
        QCOMPARE(listed().filter(marked("")), QStringList(marked(m_Preset)));
        QCOMPARE(combo()->currentText(), marked(m_Preset));
        QVERIFY(!enabled("BtnEditProfile") && !enabled("BtnDeleteProfile"));
        QCOMPARE(offered(), hostText("IDS_HOST_PROFILE_DEFAULT", {m_Preset}));
        QCOMPARE(label("Host_SimSummary"), hostText("IDS_HOST_SIM_PRESET", {"310260123456789", m_Preset, "310260"}));
    }

    void savesAProfile() {
        click("pBtnnewProfile");
        QCOMPARE(find<QLineEdit>("LineEditProfileName")->text(), text("IDS_NETCONNECT_NEW_PROFILE") + '1');
        click("BtnStatic");
        for (const QString& field : Entered.mid(1)) {
            typeInto(QApplication::focusWidget(), field);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        type("LineEditProfileName", Name);
        click("BtnsaveProfile");
        QCOMPARE(combo()->currentText(), Name);
        QCOMPARE(fields(), Entered);
        QVERIFY(!enabled("BtnsaveProfile") && enabled("BtnEditProfile"));
        selectProfile(marked(m_Preset));
        QVERIFY(fields() != Entered);
        selectProfile(Name);
        QCOMPARE(fields(), Entered);
    }

    void makesItTheDefault() {
        click("BtnSetDefaultProfile");
        QCOMPARE(listed().filter(marked("")), QStringList(marked(Name)));
        QTRY_COMPARE(offered(), hostText("IDS_HOST_PROFILE_DEFAULT", {Name}));
    }

    void exportsIt() {
        click("ButtonExportProfile");
        QVERIFY(!find("ButtonImportBrowse")->isVisible());
        tick(Name);
        m_Answers.file(m_File);
        click("ButtonImportOK");
        QVERIFY(!find("DialogImportExport")->isVisible());
        QVERIFY(isPrivate(m_File) && !TestFolder::read(m_File).contains("secret"));
    }

    void deletesIt() {
        m_Answers.yes();
        click("BtnDeleteProfile");
        QCOMPARE(m_Answers.texts.last(), text("IDS_SMSUI_DRAFT_DEL"));
        QCOMPARE(listed().filter(Name), QStringList());
        QTRY_COMPARE(offered(), hostText("IDS_HOST_PROFILE_DEFAULT", {m_Preset}));
    }

    // As a double click in a file manager does; a file that can't be imported is told about.
    void importsIt() {
        m_Answers.ok();
        m_Host->window()->offerImport(m_Folder.path("home/nowhere.prof"));
        QVERIFY(m_Answers.texts.last().contains(text("IDS_NETCONNECT_MSG_IMPORT_MISSING")));
        m_Host->window()->offerImport(m_File);
        click("ButtonImportOK");
        QVERIFY(!find("DialogImportExport")->isVisible());
        selectProfile(Name);
        QCOMPARE(fields(), Entered);
        QVERIFY(listed().contains(marked(m_Preset)));
        click("BtnSetDefaultProfile");
        QCOMPARE(combo()->currentText(), marked(Name));
    }

    void connects() {
        const auto mayChange = [this] {
            selectProfile(m_Preset);
            selectProfile(marked(Name));
            return enabled("BtnEditProfile");
        };
        click("Host_ConnectButton");
        QCOMPARE(label("Host_ConnectionState"), hostText("IDS_HOST_STATE_CONNECTING_TO", {Name}));
        QTRY_COMPARE(label("Host_ConnectionState"), hostText("IDS_HOST_STATE_CONNECTED", {Name}));
        QVERIFY(!mayChange());
        click("Host_ConnectButton");
        QTRY_COMPARE(label("Host_ConnectionState"), hostText("IDS_HOST_STATE_DISCONNECTED"));
        QVERIFY(mayChange());
    }

    void changesTheLanguage() {
        const QString other = m_Language == "en" ? "ar" : "en";
        goTo(HostRow);
        auto* box = find<QComboBox>("Host_LanguageBox");
        select(box, box->findData(other));
        click("Host_OkButton");
        m_Host->window()->openSettings();
        goTo(ProfilesRow);
        QCOMPARE(Change::GetLangName(), other);
        QTRY_COMPARE(isMirrored(), other == "ar");
        QCOMPARE(find<QPushButton>("pBtnnewProfile")->text(), text("IDS_SETTING_BUTTON_NEW"));
        QCOMPARE(combo()->currentText(), marked(Name));
        QCOMPARE(find<QPushButton>("Host_ConnectButton")->text(), hostText("IDS_HOST_CONNECT"));
        QCOMPARE(find<QListWidget>("Host_PageList")->item(ProfilesRow)->text(), text("IDS_SETTING_NAME"));
        QCOMPARE(fields(), Entered);
    }

    void findsAllAtTheSecondStart() {
        const QStringList before = listed();
        QVERIFY(m_Host->window()->close());
        m_Host.reset();
        Change::SetLanguage(m_Language);
        start();
        QCOMPARE(isMirrored(), m_Language == "en");
        QTRY_COMPARE(combo()->currentText(), marked(Name));
        QCOMPARE(listed(), before);
        QCOMPARE(fields(), Entered);
        QCOMPARE(offered(), hostText("IDS_HOST_PROFILE_DEFAULT", {Name}));
        QVERIFY(isPrivate(m_Folder.userFile()) && !TestFolder::read(m_Folder.userFile()).contains("secret"));
    }

private:
    void start() {
        Languages::useStored();
        m_Host = std::make_unique<Host>();
        m_Host->start();
        m_Host->window()->show();
        QVERIFY(QTest::qWaitForWindowActive(m_Host->window()));
        m_Host->window()->openSettings();
        QTRY_COMPARE(QApplication::activeWindow(), m_Host->window()->pages()->window());
        QTRY_VERIFY(combo()->count() > 0 && !find("Host_Problems")->isVisible());
    }

    // The widgets of the profiles' page go by their role.
    template <class W = QWidget>
    W* find(const QString& name) const {
        const QString prefix = name.startsWith("Host_") ? QString() : "NetConnectSettingUIPlugin_";
        return m_Host->window()->findChild<W*>(prefix + name);
    }
    QComboBox* combo() const { return find<QComboBox>("ProfileCombobox"); }
    QString label(const char* name) const { return find<QLabel>(name)->text(); }
    QString offered() const { return find<QComboBox>("Host_ProfileChooser")->currentText(); }
    bool enabled(const char* role) const { return find(role)->isEnabled(); }

    QStringList listed() const { return textsOf(combo()); }

    QStringList fields() const {
        QStringList texts{find<QAbstractButton>("BtnStatic")->isChecked() ? "static" : "dynamic"};
        for (const char* role : {"ApnlineEdit", "AccessNumberlineEdit", "UsernamelineEdit", "PasswordlineEdit"})
            texts.append(find<QLineEdit>(role)->text());
        return texts;
    }

    // The page's buttons stand at the side at which a line ends.
    bool isMirrored() const {
        return find("pBtnnewProfile")->mapToGlobal(QPoint()).x() < combo()->mapToGlobal(QPoint()).x();
    }

    void click(const char* name) const { clickButton(find<QAbstractButton>(name), name); }

    void clickRow(int row) const {
        auto* list = find<QListWidget>("Host_PageList");
        const QPoint middle = list->visualItemRect(list->item(row)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, middle);
    }

    void goTo(int row) const {
        clickRow(row);
        const auto page = [this, row] { return find(row == HostRow ? "Host_SettingsPage" : "netConnectwdg"); };
        QTRY_VERIFY(page() && page()->isVisible());
    }

    void type(const char* role, const QString& text) const {
        auto* field = find<QLineEdit>(role);
        QTest::mouseClick(field, Qt::LeftButton);
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        typeInto(field, text);
    }

    void select(QComboBox* box, int index) const {
        QTest::keyClick(box, Qt::Key_Home);
        for (int i = 0; i < index; ++i) QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(box->currentIndex(), index);
    }

    void selectProfile(const QString& shownName) const { select(combo(), combo()->findText(shownName)); }

    void tick(const QString& profile) const {
        auto* tree = find<QTreeWidget>("TreeWidgetImportExport");
        tickItem(tree->findItems(profile, Qt::MatchExactly | Qt::MatchRecursive).value(0));
    }

    TestFolder m_Folder;
    Answers m_Answers;
    std::unique_ptr<Host> m_Host;
    const QString m_Language = TestFolder::language();
    const QString m_File = m_Folder.path("home/my profiles.prof");  // exported
    QString m_Preset;                                               // the one that the card proposes
    bool m_Failed = false;
};

QTEST_MAIN(tst_endtoend)
#include "tst_endtoend.moc"
