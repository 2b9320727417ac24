// The page's widgets, texts and locks, and what the host's settings dialog asks of it.
#include "CommonUtils.h"
#include "PageFixture.h"

using F = PageFixture;

class TestPage : public PageTest {
    Q_OBJECT

    enum { ManyNames = 2000 };

private slots:
    void edits() {
        f->newProfile = "autoapn='false'";
        f->functions += "<item name='ProfileNameLength' value='20'/>";
        f->start();
        f->click("pBtnnewProfile");
        const auto kept = [this](const char* role, const QString& text) {
            F::type(f->edit(role), text);
            return f->edit(role)->text();
        };
        QCOMPARE(kept("ApnlineEdit", "in _ter.n-ET@"), QString("inter.n-ET"));
        QCOMPARE(kept("AccessNumberlineEdit", "*99***1#*99***1#*99***1#*99"), QString("*99***1#*99***1#*99***1#"));
        QCOMPARE(f->edit("LineEditProfileName")->maxLength(), 20);
        QCOMPARE(f->edit("PasswordlineEdit")->echoMode(), QLineEdit::Password);
    }

    // Reading many takes longer than a paint may.
    void manyNamesAreReadAfterTheFirstPaint() {
        QByteArray many;
        for (int i = 0; i < ManyNames; ++i) many += F::profile("A name that is long, number " + QByteArray::number(i));
        f->start(many, "<Default name='A name that is long, number 7' IsUserSet='1'/>");
        QTRY_COMPARE(f->combo()->count(), int(ManyNames));
        QVERIFY(f->combo()->currentText().startsWith("A name that is long, number 7 "));
        QVERIFY(f->combo()->sizeHint().width() < 400);
    }

    void manyNamesAreReadWhenNeeded_data() { nameRows("for", {"default", "save", "event", "end", "nobody"}); }
    void manyNamesAreReadWhenNeeded() {
        QByteArray many;
        for (int i = 0; i < ManyNames; ++i) many += F::profile("N" + QByteArray::number(i));
        f->start(many, "<Default name='N7' IsUserSet='1'/>");
        const QByteArray before = TestFolder::read(f->userFile());
        f->plugin()->OnDestroy();

        // A host that shows another page first.
        QObject* service = nullptr;
        QCOMPARE(f->plugin()->QueryInterface(4098, &service), 1);
        QCOMPARE(f->plugin()->Init(), 1);
        QVERIFY(service->property(ORBISDIAL_PROFILES_AWAITED).toBool());
        f->profiles = qobject_cast<INetConnectSetting*>(service);
        const QString reason = cell("for");
        QString name;
        if (reason == "default") f->profiles->GetDefaultDialUpProfileName(&name);
        if (reason == "save") f->save("New");
        if (reason == "event") F::changeCard();
        if (reason == "end") {
            f->plugin()->OnDestroy();
            QCOMPARE(TestFolder::read(f->userFile()), before);
            return;
        }
        QCOMPARE(service->property(ORBISDIAL_PROFILES_AWAITED).toBool(), reason == "nobody");
        QTRY_VERIFY(!service->property(ORBISDIAL_PROFILES_AWAITED).toBool());
        QCOMPARE(f->stored().size(), ManyNames + (reason == "save" ? 1 : 0));
        QCOMPARE(f->profiles->GetDefaultDialUpProfileName(&name), 0);
        QCOMPARE(name, QString("N7"));
    }

    // The tip of Edit and Delete is empty where they are enabled.
    void locks_data() {
        const Rows<QString, QString, QString> row("selected", "connected", "tip");
        const char* const none = nullptr;
        row("own", "Home", none, "");
        row("read-only", "Locked", none, "IDS_NETCONNECT_TIP_PROFILE_READONLY");
        row("preset", "Preset", none, "IDS_NETCONNECT_TIP_PROFILE_PRESET");
        row("connected", "Home", "Home", "IDS_NETCONNECT_TIP_PROFILE_CONNECTED");
        row("another is connected", "Home", "Locked", "");
    }
    void locks() {
        QFETCH(QString, connected);
        QFETCH(QString, tip);
        f->presets = "<item name='Preset' value=''/>";
        f->library = F::profile("Preset");
        f->start(F::profile("Home") + F::profile("Locked", "readonly='true'"));
        f->select(cell("selected"));
        // A connection that came up meanwhile counts as soon as a person turns to the page.
        f->dialup.connected = connected;
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(f->find("netConnectwdg"), &enter);
        for (const char* role : {"BtnEditProfile", "BtnDeleteProfile"}) {
            QCOMPARE(f->enabled(role), tip.isEmpty());
            QCOMPARE(f->find(role)->toolTip(), tip.isEmpty() ? QString() : Change::tr(tip, "NetConnectPlugin"));
        }
        QCOMPARE(f->enabled("BtnSetDefaultProfile"), connected.isNull());
    }

    void configuration() {
        const QByteArray on = "' value='true'/>", ask = "<item name='PromptPwd" + on + "<item name='UserCheck" + on;
        const struct {
            QByteArray functions, prompt;
            const char* shown;
            bool passwordEditable;
        } rows[] = {
            {"<item name='APN" + on, "<item name='PromptPwd" + on, "ApngroupBox", true},
            {"<item name='IMPORT" + on, ask, "ButtonImportProfile ButtonExportProfile CheckBoxAskUserName", true},
            {"", ask + "<item name='DisableNamePwd" + on, "CheckBoxAskUserName", false}};
        for (const auto& row : rows) {
            init();
            f->functions = row.functions;
            f->prompt = row.prompt;
            f->start(F::profile("Home"));
            QStringList shown;
            for (const char* role :
                 {"ApngroupBox", "ButtonImportProfile", "ButtonExportProfile", "CheckBoxAskUserName"})
                if (f->find(role)->isVisible()) shown.append(role);
            QCOMPARE(shown.join(' '), QString(row.shown));
            f->click("BtnEditProfile");
            QCOMPARE(f->enabled("PasswordlineEdit"), row.passwordEditable);
        }
    }

    void eHrpdShowsTheAPN() {
        f->functions.clear();
        f->start();
        QVERIFY(!f->find("ApngroupBox")->isVisible());
        vrks_simulated_set("SYS_MODE", "2");
        vrks_simulated_set("SYS_SUBMODE", "31");
        f->event(NotifySystemModeChanged);
        QVERIFY(f->find("ApngroupBox")->isVisible());
        QCOMPARE(f->notify->sent, QStringList("92804312-432E-401F-96BB-1C20D852815D 512 0 0"));
    }

    void passwordHint() {
        f->functions += "<item name='ENCRYPT' value='true'/>";
        f->start();
        f->click("pBtnnewProfile");
        f->edit("PasswordlineEdit")->insert(QString::fromUtf8("s\xc3\xa4"));
        QVERIFY(!f->find("PasswordHint")->isVisible());
        f->edit("PasswordlineEdit")->insert(QString::fromUtf8("\xd0\xbf"));  // can't be sealed
        QVERIFY(f->find("PasswordHint")->isVisible());
    }

    // --- the host's settings dialog ---

    void setDefaultIsHiddenWhenTheHostSaysSo() {
        QVERIFY(CommonUtils::SetSettings("ConnectionSetting", "load", "true"));
        f->start();
        QVERIFY(!f->find("BtnSetDefaultProfile")->isVisible());
    }

    void okAsksAboutAnOpenEdit_data() {
        const Rows<bool, QString, bool, QString> row("yes", "number", "goes", "stored");
        row("yes", true, "*99#", true, "Mine");
        row("no", false, "*99#", true, "");
        row("yes, but it can't be saved", true, "", false, "");
    }
    void okAsksAboutAnOpenEdit() {
        QFETCH(bool, goes);
        f->start();
        f->click("pBtnnewProfile");
        F::type(f->edit("LineEditProfileName"), "Mine");
        F::type(f->edit("AccessNumberlineEdit"), cell("number"));
        f->answers.box(cell<bool>("yes") ? CommonUtils::FirstButton : CommonUtils::SecondButton);
        if (!goes) f->answers.ok();
        QCOMPARE(f->setting->HideSetting(), int(goes));
        QVERIFY(f->answers.allGiven());
        QTEST(f->stored().join(','), "stored");
        QCOMPARE(f->setting->IsActiveSetting(), !goes);
        f->show();
        QCOMPARE(f->edit("LineEditProfileName")->isVisible(), !goes);
    }

    void cancelUndoesWithoutAsking() {
        f->start();
        f->click("pBtnnewProfile");
        QCOMPARE(f->setting->OnClickSettingCancelButton(), 1);
        QVERIFY(!f->setting->IsActiveSetting());
        QVERIFY(!f->combo());  // the page has left the host's window
        f->show();
        QVERIFY(f->combo()->isVisible() && f->enabled("pBtnnewProfile"));
    }

    // The first show has its list already, with the default marked and selected. A switch between pages keeps the
    // selection; a closed dialog comes back at the default.
    void shows() {
        f->start(F::profile("b", "apn='net'") + F::profile("A", "autoapn='true'"), "<Default name='b' IsUserSet='1'/>");
        QCOMPARE(f->listed(), QStringList({"A", "b (Default)"}));
        QCOMPARE(f->combo()->currentText(), QString("b (Default)"));
        QCOMPARE(f->edit("ApnlineEdit")->text(), QString("net"));
        QVERIFY(f->find<QAbstractButton>("BtnStatic")->isChecked());
        f->select("A");
        QCOMPARE(f->setting->HideSetting(), 1);
        f->show();
        QCOMPARE(f->combo()->currentText(), QString("A"));
        QCOMPARE(f->setting->OnClickSettingOkButton(), 1);
        f->show();
        QCOMPARE(f->combo()->currentText(), QString("b (Default)"));
        f->language("de");
        QCOMPARE(f->listed(),
                 QStringList({"A", "b " + Change::tr("IDS_STC_NETCONNECTSETTINGDLG_DEFAULT", "NetConnectPlugin")}));
    }

    void hostDestroysItsWindowFirst() {
        f->start(F::profile("Home"));
        f->click("BtnEditProfile");
        delete f->window;
        QRect place(0, 0, 100, 100);
        QCOMPARE(f->setting->ShowSettingDialog(nullptr, place), 1);
        QCOMPARE(f->setting->OnClickSettingOkButton(), 0);
        f->event(NotifyLanguageChanged);
        F::changeCard();
        QCOMPARE(f->save("Work"), 0);
        QCOMPARE(f->stored(), QStringList({"Home", "Work"}));
    }

    void notifyServiceMayGo() {
        f->start(F::profile("Home"));
        f->notify.reset();
        f->click("BtnSetDefaultProfile");
        QCOMPARE(f->storedDefault(), QString());  // without the service the button does nothing
        F::changeCard();
    }

    void profilesForOthers() {
        f->start(F::profile("Home") + F::profile("Work"), "<Default name='Gone' IsUserSet='1'/>");
        QString name = "x";
        QCOMPARE(f->profiles->GetDefaultDialUpProfileName(&name), 0);
        QCOMPARE(name, QString(""));
        for (const char* unknown : {"", "Home (Default)"}) {
            QCOMPARE(f->profiles->SetDefaultDialUpProfileName(unknown), 0);
            QCOMPARE(f->listed(), QStringList({"Home", "Work"}));
        }
        QCOMPARE(f->profiles->SetDefaultDialUpProfileName("Home"), 0);
        QCOMPARE(f->save("Alpha"), 0);
        QCOMPARE(f->listed(), QStringList({"Alpha", "Home (Default)", "Work"}));
        QCOMPARE(f->combo()->currentText(), QString("Alpha"));
        QCOMPARE(f->storedDefault(), QString("Home/1"));
    }
};

QTEST_MAIN(TestPage)
#include "tst_page.moc"
