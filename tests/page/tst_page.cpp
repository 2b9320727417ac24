// The page's widgets, texts and locks, and what the host's settings dialog asks of it.
#include <QElapsedTimer>
#include <QLabel>
#include <QTabWidget>

#include "CommonUtils.h"
#include "PageFixture.h"

using F = PageFixture;

class TestPage : public QObject {
    Q_OBJECT

private slots:
    void edits() {
        F f;
        f.newProfile = "autoapn='false'";
        f.start();
        f.click("pBtnnewProfile");
        const struct {
            const char *role, *typed;
            QString kept;
        } rows[] = {{"LineEditProfileName", "a :b", "a :b"},
                    {"ApnlineEdit", "in _ter.n-ET@", "inter.n-ET"},
                    {"AccessNumberlineEdit", "*99***1#*99***1#*99***1#*99", "*99***1#*99***1#*99***1#"}};
        for (const auto& row : rows) {
            F::type(f.edit(row.role), row.typed);
            QCOMPARE(f.edit(row.role)->text(), row.kept);
        }
        QCOMPARE(f.edit("LineEditProfileName")->maxLength(), 48);  // when it is not configured
        QCOMPARE(f.edit("PasswordlineEdit")->echoMode(), QLineEdit::Password);
    }

    void labelsAndLayouts() {
        F f;
        f.functions += "<item name='ProfileNameLength' value='20'/>";
        f.start();
        QCOMPARE(f.edit("LineEditProfileName")->maxLength(), 20);
        for (const char* label : {"Apnlabel", "AccessNumberlabel", "Usernamelabel", "Passwordlabel"})
            QVERIFY2(f.find<QLabel>(label)->buddy(), label);
        QCOMPARE(f.find<QTabWidget>("tabWidget")->widget(0), f.find("DialuptabWdg"));
        // By the tab key from top to bottom, then down the buttons.
        QStringList order;
        for (QWidget* w = f.combo(); !order.contains(w->objectName()); w = w->nextInFocusChain())
            if (w->focusPolicy() != Qt::NoFocus || w == f.combo()) order.append(w->objectName());
        const QString chain = order.join(' ').remove("NetConnectSettingUIPlugin_");
        QCOMPARE(chain, QString("ProfileCombobox LineEditProfileName BtnDynamic BtnStatic ApnlineEdit "
                                "AccessNumberlineEdit UsernamelineEdit PasswordlineEdit CheckBoxAskUserName "));
    }

    void opensAtOnceWithManyNames() {
        F f;
        QByteArray many;
        for (int i = 0; i < 10000; ++i)
            many += F::profile("A profile with a long name, number " + QByteArray::number(i));
        f.start(many);
        QElapsedTimer timer;
        timer.start();
        f.combo()->updateGeometry();
        QVERIFY(f.combo()->sizeHint().width() < 400);
        f.show();
        QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    }

    // The first show of a page whose modem is ready already has its list, with the default marked and selected.
    void firstShow() {
        F f;
        f.start(F::profile("b", "phonenumber='1' user='u' password='p' apn='net' chap='true' pap='false'") +
                    F::profile("A", "autoapn='true'"),
                "<Default name='b' IsUserSet='1'/>");
        QCOMPARE(f.listed(), QStringList({"A", "b (Default)"}));
        QCOMPARE(f.combo()->currentText(), QString("b (Default)"));
        QCOMPARE(f.edit("ApnlineEdit")->text(), QString("net"));
        QVERIFY(f.find<QAbstractButton>("BtnStatic")->isChecked());
        f.select("A");
        QVERIFY(f.find<QAbstractButton>("BtnDynamic")->isChecked());
        QVERIFY(f.setting->IsActiveSetting());
    }

    void locks() {
        const struct {
            const char *selected, *connected, *tip;  // the tip of Edit and Delete, null where they are enabled
        } rows[] = {{"Home", nullptr, nullptr},
                    {"Locked", nullptr, "IDS_NETCONNECT_TIP_PROFILE_READONLY"},
                    {"Preset", nullptr, "IDS_NETCONNECT_TIP_PROFILE_PRESET"},
                    {"Home", "Home", "IDS_NETCONNECT_TIP_PROFILE_CONNECTED"},
                    {"Home", "Locked", nullptr}};
        for (const auto& row : rows) {
            F f;
            f.presets = "<item name='Preset' value=''/>";
            f.library = F::profile("Preset");
            f.dialup.connected = row.connected;
            f.start(F::profile("Home") + F::profile("Locked", "readonly='true'"));
            f.select(row.selected);
            for (const char* role : {"BtnEditProfile", "BtnDeleteProfile"}) {
                QCOMPARE(f.enabled(role), !row.tip);
                QCOMPARE(f.find(role)->toolTip(), row.tip ? Change::tr(row.tip, "NetConnectPlugin") : QString());
            }
            QCOMPARE(f.enabled("BtnSetDefaultProfile"), !row.connected);
        }
    }

    // A connection that came up meanwhile counts as soon as a person turns to the page.
    void locksFollowTheConnection() {
        F f;
        f.start(F::profile("Home"));
        f.select("Home");
        QVERIFY(f.enabled("BtnEditProfile"));
        f.dialup.connected = "Home";
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(f.find("netConnectwdg"), &enter);
        for (const char* role : {"BtnEditProfile", "BtnDeleteProfile", "BtnSetDefaultProfile"})
            QVERIFY2(!f.enabled(role), role);
    }

    void emptyListFills() {
        F f;
        f.start();
        for (const char* role : {"BtnEditProfile", "BtnDeleteProfile", "BtnSetDefaultProfile"})
            QVERIFY2(!f.enabled(role), role);
        DialupProfile profile;
        profile.name = "Home";
        QCOMPARE(f.profiles->SaveDialUpProfile(profile), 0);
        for (const char* role : {"BtnEditProfile", "BtnDeleteProfile", "BtnSetDefaultProfile"})
            QVERIFY2(f.enabled(role), role);
    }

    void configuration() {
        const QByteArray on = "' value='true'/>", ask = "<item name='PromptPwd" + on + "<item name='UserCheck" + on;
        const struct {
            QByteArray functions, prompt;
            const char* shown;
            bool passwordEditable;
        } rows[] = {{"", "", "", true},
                    {"<item name='APN" + on, "", "ApngroupBox", true},
                    {"<item name='IMPORT" + on, "", "ButtonImportProfile ButtonExportProfile", true},
                    {"", ask, "CheckBoxAskUserName", true},
                    {"", "<item name='PromptPwd" + on, "", true},
                    {"", ask + "<item name='DisableNamePwd" + on, "CheckBoxAskUserName", false}};
        for (const auto& row : rows) {
            F f;
            f.functions = row.functions;
            f.prompt = row.prompt;
            f.start(F::profile("Home"));
            QStringList shown;
            for (const char* role :
                 {"ApngroupBox", "ButtonImportProfile", "ButtonExportProfile", "CheckBoxAskUserName"})
                if (f.find(role)->isVisible()) shown.append(role);
            QCOMPARE(shown.join(' '), QString(row.shown));
            f.click("BtnEditProfile");
            QCOMPARE(f.enabled("PasswordlineEdit"), row.passwordEditable);
        }
    }

    void eHrpdShowsTheAPN() {
        F f;
        f.functions.clear();
        f.start();
        QVERIFY(!f.find("ApngroupBox")->isVisible());
        vrks_simulated_set("SYS_MODE", "2");
        vrks_simulated_set("SYS_SUBMODE", "31");
        f.event(NotifySystemModeChanged);
        QVERIFY(f.find("ApngroupBox")->isVisible());
        QCOMPARE(f.notify->sent, QStringList("92804312-432E-401F-96BB-1C20D852815D 512 0 0"));
    }

    void languages() {
        F f;
        f.start(F::profile("Home") + F::profile("Work"), "<Default name='Work' IsUserSet='1'/>");
        for (const char* code : {"de", "fr", "es", "ru", "zh_CN", "ar"}) {
            f.language(code);
            for (QAbstractButton* button : f.window->findChildren<QAbstractButton*>())
                QVERIFY2(!button->text().contains("IDS_"), qPrintable(button->text()));
            const QString mark = Change::tr("IDS_STC_NETCONNECTSETTINGDLG_DEFAULT", "NetConnectPlugin");
            QCOMPARE(f.listed(), QStringList({"Home", "Work " + mark}));
        }
    }

    void passwordHint() {
        const QString keepable = QString::fromUtf8("s\xc3\xa4"), lost = QString::fromUtf8("\xd0\xbf");
        for (bool encrypts : {false, true}) {
            F f;
            if (encrypts) f.functions += "<item name='ENCRYPT' value='true'/>";
            f.start();
            f.click("pBtnnewProfile");
            f.edit("PasswordlineEdit")->insert(keepable);
            QVERIFY(!f.find("PasswordHint")->isVisible());
            f.edit("PasswordlineEdit")->insert(lost);
            QCOMPARE(f.find("PasswordHint")->isVisible(), encrypts);
            f.click("BtnUndoProfile");
            QVERIFY(!f.find("PasswordHint")->isVisible());
        }
    }

    // --- the host's settings dialog ---

    void setDefaultIsHiddenWhenTheHostSaysSo() {
        F f;
        QVERIFY(CommonUtils::SetSettings("ConnectionSetting", "load", "true"));
        f.start();
        QVERIFY(!f.find("BtnSetDefaultProfile")->isVisible());
    }

    void okAsksAboutAnOpenEdit() {
        const struct {
            bool yes;
            const char* number;
            bool goes;
            QStringList stored;
        } rows[] = {{true, "*99#", true, {"Mine"}}, {false, "*99#", true, {}}, {true, "", false, {}}};
        for (const auto& row : rows) {
            F f;
            f.start();
            f.click("pBtnnewProfile");
            F::type(f.edit("LineEditProfileName"), "Mine");
            F::type(f.edit("AccessNumberlineEdit"), row.number);
            row.yes ? f.answers.yes() : f.answers.no();
            if (!row.goes) f.answers.ok();
            QCOMPARE(f.setting->HideSetting(), int(row.goes));
            QVERIFY(f.answers.allGiven());
            QCOMPARE(f.stored(), row.stored);
            QCOMPARE(f.setting->IsActiveSetting(), !row.goes);
            f.show();
            QCOMPARE(f.edit("LineEditProfileName")->isVisible(), !row.goes);
        }
    }

    void cancelUndoesWithoutAsking() {
        F f;
        f.start();
        f.click("pBtnnewProfile");
        QCOMPARE(f.setting->OnClickSettingCancelButton(), 1);
        QVERIFY(!f.setting->IsActiveSetting());
        QVERIFY(!f.combo());  // the page has left the host's window
        f.show();
        QVERIFY(f.combo()->isVisible() && f.enabled("pBtnnewProfile"));
    }

    // A switch between pages keeps the selection; a closed dialog comes back at the default.
    void selectionAcrossShows() {
        F f;
        f.start(F::profile("A") + F::profile("B"), "<Default name='B' IsUserSet='1'/>");
        f.select("A");
        QCOMPARE(f.setting->HideSetting(), 1);
        f.show();
        QCOMPARE(f.combo()->currentText(), QString("A"));
        QCOMPARE(f.setting->OnClickSettingOkButton(), 1);
        f.show();
        QCOMPARE(f.combo()->currentText(), QString("B (Default)"));
        QCOMPARE(f.listed(), QStringList({"A", "B (Default)"}));
    }

    void hostDestroysItsWindowFirst() {
        F f;
        f.start(F::profile("Home"));
        f.click("BtnEditProfile");
        delete f.window;
        QRect place(0, 0, 100, 100);
        QCOMPARE(f.setting->ShowSettingDialog(nullptr, place), 1);
        QCOMPARE(f.setting->OnClickSettingOkButton(), 0);
        f.event(NotifyLanguageChanged);
        F::changeCard();
        DialupProfile profile;
        profile.name = "Work";
        QCOMPARE(f.profiles->SaveDialUpProfile(profile), 0);
        QCOMPARE(f.stored(), QStringList({"Home", "Work"}));
    }

    void notifyServiceMayGo() {
        F f;
        f.start(F::profile("Home"));
        f.notify.reset();
        f.click("BtnSetDefaultProfile");
        QCOMPARE(f.storedDefault(), QString("/"));  // without the service the button does nothing
        F::changeCard();
    }

    void profilesForOthers() {
        F f;
        f.start(F::profile("Home") + F::profile("Work"), "<Default name='Gone' IsUserSet='1'/>");
        QString name = "x";
        QCOMPARE(f.profiles->GetDefaultDialUpProfileName(&name), 0);
        QCOMPARE(name, QString(""));
        QCOMPARE(f.profiles->SetDefaultDialUpProfileName(""), 0);
        QCOMPARE(f.profiles->SetDefaultDialUpProfileName("Home (Default)"), 0);
        QCOMPARE(f.listed(), QStringList({"Home", "Work"}));
        QCOMPARE(f.profiles->SetDefaultDialUpProfileName("Work"), 0);
        QCOMPARE(f.profiles->SetDefaultDialUpProfileName("Home"), 0);
        QCOMPARE(f.listed(), QStringList({"Home (Default)", "Work"}));
        DialupProfile profile;
        profile.name = "Alpha";
        QCOMPARE(f.profiles->SaveDialUpProfile(profile), 0);
        QCOMPARE(f.listed(), QStringList({"Alpha", "Home (Default)", "Work"}));
        QCOMPARE(f.combo()->currentText(), QString("Alpha"));
        QCOMPARE(f.profiles->SetDefaultDialUpProfileName("Work"), 0);
        QCOMPARE(f.listed(), QStringList({"Alpha", "Home", "Work (Default)"}));
        QCOMPARE(f.storedDefault(), QString("Work/1"));
    }
};

QTEST_MAIN(TestPage)
#include "tst_page.moc"
