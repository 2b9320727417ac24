// SPDX-License-Identifier: MIT
// The page's widgets, texts and locks, and what the host's settings dialog asks of it.
#include <QElapsedTimer>
#include <QLabel>

#include "CommonUtils.h"
#include "PageFixture.h"

using F = PageFixture;

class tst_page : public PageTest {
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

    // A connection that comes up while the pointer rests on a button, and one that the dialler tells of.
    void connectionUnderThePointer_data() {
        nameRows("what", {"BtnDeleteProfile", "in the question", "BtnSetDefaultProfile", "BtnEditProfile", "told"});
    }
    void connectionUnderThePointer() {
        f->start(F::profile("Home") + F::profile("Work"), "<Default name='Work' IsUserSet='1'/>");
        f->select("Home");
        const QByteArray what = cell("what").toLatin1();
        const bool isTold = what == "told", isDefault = what == "BtnSetDefaultProfile";
        const char* const clicked = what.startsWith("Btn") ? what.data() : "BtnDeleteProfile";
        QTest::mouseMove(f->find(clicked), QPoint(8, f->find(clicked)->height() / 2));
        QCoreApplication::processEvents();
        if (what == "in the question")
            f->answers.yes([this] { f->dialup.connected = "Home"; });
        else
            f->dialup.connected = "Home";
        const char* reason =
            isDefault ? "IDS_NETCONNECT_TIP_DEFAULT_CONNECTED" : "IDS_NETCONNECT_TIP_PROFILE_CONNECTED";
        if (!isTold) f->answers.ok();
        isTold ? f->notify->connectionChanged() : f->click(clicked);
        QVERIFY(f->answers.allGiven());
        if (!isTold) QCOMPARE(f->answers.texts.last(), Change::tr(reason, "NetConnectPlugin"));
        const QWidget* button = f->find(isDefault ? "BtnSetDefaultProfile" : "BtnDeleteProfile");
        QVERIFY(!button->isEnabled());
        QCOMPARE(button->accessibleDescription(), Change::tr(reason, "NetConnectPlugin"));
        QCOMPARE(f->stored(), QStringList({"Home", "Work"}));
        QCOMPARE(f->storedDefault(), QString("Work/1"));
        QVERIFY(f->notify->sent.isEmpty());
    }

    // --- other programs ---

    void followsOtherPrograms_data() {
        nameRows("how", {"replaced", "written in place", "folder moved away and made anew", "removed"});
    }
    void followsOtherPrograms() {
        f->start(F::profile("Home") + F::profile("Work") + F::profile("Zulu"), "<Default name='Home' IsUserSet='1'/>");
        f->select("Work");
        const QByteArray theirs = F::document(F::profile("New") + F::profile("Work", "phonenumber='5'"));
        const QString how = cell("how"), folder = QFileInfo(f->userFile()).path();
        const auto write = [&] { TestFolder::write(f->userFile(), theirs); };
        if (how == "replaced") QVERIFY(F::replaceFile(f->userFile(), theirs));
        if (how == "written in place") write();
        if (how == "removed") QVERIFY(QFile::remove(f->userFile()));
        if (how.startsWith("folder")) {
            QVERIFY(QDir().rename(folder, folder + ".old"));
            write();
        }
        const QStringList expected = how == "removed" ? QStringList() : QStringList({"New", "Work"});
        QElapsedTimer timer;
        timer.start();
        QTRY_COMPARE(f->listed(), expected);
        QVERIFY(timer.elapsed() < 1000);
        QCOMPARE(f->notify->sent, QStringList({"92804312-432E-401F-96BB-1C20D852815D 512 0 0",
                                               "DF986A92-844C-42b6-A03C-26B837BF1C53 512 0 0"}));
        if (how == "removed") return;
        QCOMPARE(f->combo()->currentText(), QString("Work"));
        QCOMPARE(f->edit("AccessNumberlineEdit")->text(), QString("5"));
        QCOMPARE(TestFolder::read(f->userFile()), theirs);  // nothing was stored
        // What the page stores itself is no news to it, and the next change of another program is.
        QCOMPARE(f->save("Mine"), 0);
        QTest::qWait(400);
        QCOMPARE(f->notify->sent.size(), 2);
        QVERIFY(F::replaceFile(f->userFile(), theirs));
        QTRY_COMPARE(f->listed(), expected);
    }

    // Nor may the host's own listing store: two windows that differ in card or language would never end.
    void followingStoresNothing() {
        f->presets = "<item name='Proposed' value='default'/>";
        f->start(F::profile("Home"), "<Default name='Home' IsUserSet='1'/>");
        QString told;
        f->notify->told = [&] { f->profiles->GetDefaultDialUpProfileName(&told); };
        const QByteArray theirs = F::document(F::profile("Stored", "langid='IDS_OK'"));
        QVERIFY(F::replaceFile(f->userFile(), theirs));
        QTRY_COMPARE(f->notify->sent.size(), 2);
        QCOMPARE(told, QString("Proposed"));
        QCOMPARE(f->listed().last(), QString("Proposed (Default)"));
        QCOMPARE(TestFolder::read(f->userFile()), theirs);
        f->profiles->GetDefaultDialUpProfileName(&told);  // as a host that refreshes later
        QCOMPARE(TestFolder::read(f->userFile()), theirs);
        QCOMPARE(f->save("Mine"), 0);
        QCOMPARE(f->stored(), QStringList({"Mine", "OK"}));
        QCOMPARE(f->storedDefault(), QString("Proposed/"));
    }

    // An open edit meets what came meanwhile at its end.
    void anOpenEditDoesNotFollow() {
        f->start(F::profile("Home"));
        f->click("BtnEditProfile");
        QVERIFY(F::replaceFile(f->userFile(), F::document(F::profile("Home") + F::profile("New"))));
        QTest::qWait(400);
        QCOMPARE(f->listed(), QStringList("Home"));
        f->click("BtnUndoProfile");
        QCOMPARE(f->listed(), QStringList({"Home", "New"}));
    }

    // Events that come faster than lists are read leave the window alive.
    void burstOfEvents() {
        f->start(F::profile("Home"));
        enum { Events = 400 };
        for (int i = 0; i < Events; ++i) vrks_simulated_raise_event(VRKS_EVENT_DEV_CARD_CHANGED);
        vrks_simulated_wait_events();
        F::replaceFile(f->userFile(), F::document(F::profile("Home") + F::profile("Last")));
        f->changeCard();
        QTRY_COMPARE(f->listed(), QStringList({"Home", "Last"}));
        QTest::qWait(50);
        QVERIFY2(f->notify->sent.size() < 10, qPrintable(QString::number(f->notify->sent.size())));
        QVERIFY(QMetaObject::invokeMethod(dynamic_cast<QObject*>(f->profiles), "onDeviceInitailize"));  // at once
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

    // At ordinary fonts the fixed heights stand; with larger ones nothing is cut.
    void heightsGrowWithTheFont() {
        const QMap<const char*, int> fixed = {{"ProfilegroupBox", 60},  {"ApngroupBox", 80},
                                              {"AuthgroupBox", 115},    {"ApnlineEdit", 22},
                                              {"UsernamelineEdit", 22}, {"LineEditProfileName", 22}};
        f->start(F::profile("Home"));
        for (bool large : {false, true, false}) {
            QFont font = f->window->font();
            font.setPixelSize(large ? 32 : 13);
            f->window->setFont(font);
            QCoreApplication::processEvents();
            for (auto it = fixed.begin(); it != fixed.end(); ++it) {
                const QWidget* widget = f->find(it.key());
                QCOMPARE(widget->minimumHeight(), widget->maximumHeight());
                QCOMPARE(widget->minimumHeight(), large ? qMax(it.value(), widget->sizeHint().height()) : it.value());
                if (large) QVERIFY2(widget->minimumHeight() > it.value(), it.key());
            }
        }
    }

    // What a press leaves behind when the page goes is no click.
    void pressedButtonOfAHiddenPage() {
        f->start(F::profile("Home"));
        auto* button = f->find<QAbstractButton>("ButtonExportProfile");
        button->animateClick();  // as a mnemonic does, for a tenth of a second
        QVERIFY(button->isDown());
        QCOMPARE(f->setting->HideSetting(), 1);
        QTest::qWait(150);
        QVERIFY(!button->isDown());
        f->show();
        QTest::qWait(60);
        QVERIFY(!f->find("DialogImportExport"));
        f->click("ButtonExportProfile");
        QVERIFY(f->find("DialogImportExport")->isVisible());
    }

    // Every disabled button says why, and a locked profile looks locked; nothing moves when it does.
    void reasons() {
        f->presets = "<item name='Preset' value=''/>";
        f->library = F::profile("Preset");
        f->start(F::profile("Home") + F::profile("Locked", "readonly='true'"));
        const int place = f->find("CheckBoxAskUserName")->y();
        const struct {
            const char *name, *notice;
        } rows[] = {
            {"Home", ""}, {"Locked", "IDS_NETCONNECT_LOCKED_READONLY"}, {"Preset", "IDS_NETCONNECT_LOCKED_PRESET"}};
        for (const auto& row : rows) {
            f->select(row.name);
            QCOMPARE(f->find<QLabel>("LockNotice")->text(), Change::tr(row.notice, "NetConnectPlugin"));
            QCOMPARE(f->find("LockNotice")->isVisible(), *row.notice != 0);
        }
        for (bool editing : {false, true, false}) {
            if (editing) f->click("pBtnnewProfile");
            for (const QPushButton* button : f->find("netConnectwdg")->findChildren<QPushButton*>()) {
                QCOMPARE(button->toolTip().isEmpty(), button->isEnabled());
                QCOMPARE(button->accessibleDescription(), button->toolTip());
            }
            if (editing) f->click("BtnUndoProfile");
            QCOMPARE(f->find("CheckBoxAskUserName")->y(), place);
        }
        f->language("de");
        QCOMPARE(f->find("BtnsaveProfile")->toolTip(), Change::tr("IDS_NETCONNECT_TIP_NO_EDIT", "NetConnectPlugin"));
    }

    // --- the host's settings dialog ---

    void setDefaultIsHiddenWhenTheHostSaysSo() {
        QVERIFY(CommonUtils::SetSettings("ConnectionSetting", "load", "true"));
        f->start();
        QVERIFY(!f->find("BtnSetDefaultProfile")->isVisible());
    }

    void okAsksAboutAnOpenEdit_data() {
        const Rows<int, QString, bool, QString> row("answer", "number", "goes", "stored");
        row("yes", 1024, "*99#", true, "Mine");
        row("no", 4194304, "*99#", true, "");
        row("yes, but it can't be saved", 1024, "", false, "");
        row("the box's cross", 0, "*99#", false, "");
        row("Escape", 1, "*99#", false, "");
    }
    void okAsksAboutAnOpenEdit() {
        QFETCH(bool, goes);
        f->start();
        f->click("pBtnnewProfile");
        F::type(f->edit("LineEditProfileName"), "Mine");
        F::type(f->edit("AccessNumberlineEdit"), cell("number"));
        const int answer = cell<int>("answer");
        if (answer > 1)
            f->answers.box(CommonUtils::MessageAnswer(answer));
        else
            f->answers.dismiss(answer == 1 ? Qt::Key_Escape : Qt::Key_unknown);
        const QStringList typed = f->editState();
        if (!goes && answer > 1) f->answers.ok();
        QCOMPARE(f->setting->HideSetting(), int(goes));
        QVERIFY(f->answers.allGiven());
        QTEST(f->stored().join(','), "stored");
        if (!goes) QCOMPARE(f->editState(), typed);
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

QTEST_MAIN(tst_page)
#include "tst_page.moc"
