// SPDX-License-Identifier: MIT
// New, edit, save, undo, delete and default, by clicks, with everything that can come in between.
#include "PageFixture.h"

using F = PageFixture;

namespace {

const QByteArray Full =
    "type='t' device='modem' user='u' password='p' phonenumber='*99#' autoapn='false' apn='net' chap='true' "
    "pap='false' ip='10.0.0.1' popusername='true' Remember='r'";

QString text(const char* id) { return Change::tr(id, "NetConnectPlugin"); }

// A name of a list, with the default mark in the current language.
QString shown(QString name) { return name.replace("(Default)", text("IDS_STC_NETCONNECTSETTINGDLG_DEFAULT")); }

// A password that stands nowhere in this program as a whole, and so much of its end as is looked for: freed memory is
// soon used again from its start on, and shorter versions are what was typed before.
enum { SecretLength = 48, TailLength = 12 };
char secretAt(int place) { return char('a' + ((place + 5) * 2654435761u >> 13) % 26); }

bool holdsSecret(const QByteArray& bytes) {
    const auto* units = reinterpret_cast<const ushort*>(bytes.constData());
    for (int i = 0; i + TailLength <= bytes.size() / 2; ++i) {
        int same = 0;
        while (same < TailLength && units[i + same] == secretAt(SecretLength - TailLength + same)) ++same;
        if (same == TailLength) return true;
    }
    return false;
}

// Looks through everything that the process may write to. What it looks at must not be found by the next look.
bool isSecretInMemory() {
    QFile maps("/proc/self/maps"), memory("/proc/self/mem");
    if (!maps.open(QIODevice::ReadOnly) || !memory.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) return false;
    for (const QByteArray& line : maps.readAll().split('\n')) {
        const QList<QByteArray> range = line.left(line.indexOf(' ')).split('-');
        if (range.size() != 2 || !line.contains(" rw-p ")) continue;
        const qint64 start = range[0].toLongLong(nullptr, 16);
        if (!memory.seek(start)) continue;
        QByteArray bytes = memory.read(range[1].toLongLong(nullptr, 16) - start);
        const bool isThere = holdsSecret(bytes);
        bytes.fill('\0');
        if (isThere) return true;
    }
    return false;
}

}  // namespace

class tst_page_editing : public PageTest {
    Q_OBJECT

private slots:
    void newProfile() {
        f->newProfile =
            "name='' type='t' device='d' phonenumber='*99#' autoapn='false' apn='start' chap='true' "
            "pap='true' ip='1.2.3.4' Remember='keep' readonly='true'";
        f->start();
        f->click("pBtnnewProfile");
        QCOMPARE(f->edit("LineEditProfileName")->text(), QString("New Profile1"));
        QVERIFY(f->focused("LineEditProfileName") && !f->combo()->isVisible());
        QCOMPARE(f->edit("LineEditProfileName")->selectedText(), QString("New Profile1"));  // typing replaces it
        QCOMPARE(f->edit("LineEditProfileName")->cursorPosition(), 0);
        QCOMPARE(f->edit("ApnlineEdit")->text(), QString("start"));
        F::type(f->edit("LineEditProfileName"), "Mine & yours");
        F::type(f->edit("UsernamelineEdit"), "me");
        f->click("BtnsaveProfile");
        QCOMPARE(f->stored(), QStringList("Mine & yours"));
        QCOMPARE(f->stored("Mine & yours", "type device user apn autoapn pap ip Remember"),
                 QString("t|d|me|start|false|true|1.2.3.4|keep"));
        QVERIFY(f->focused("ProfileCombobox") && !f->enabled("BtnEditProfile"));  // read-only, as the template said
        QCOMPARE(f->notify->sent, QStringList({"92804312-432E-401F-96BB-1C20D852815D 512 0 0",
                                               "DF986A92-844C-42b6-A03C-26B837BF1C53 512 0 0"}));
    }

    void editKeepsWhatThePageDoesNotShow() {
        f->start(F::profile("Home", Full), "<Default name='Home'/>");
        f->click("BtnEditProfile");
        QCOMPARE(f->edit("LineEditProfileName")->text(), QString("Home"));
        F::type(f->edit("ApnlineEdit"), "other");
        f->click("BtnsaveProfile");
        QCOMPARE(f->stored("Home", "type device user password apn chap ip popusername Remember"),
                 QString("t|modem|u|p|other|true|10.0.0.1|true|r"));
        QCOMPARE(f->storedDefault(), QString("Home/"));
        f->click("BtnEditProfile");
        f->click("BtnDynamic");
        QVERIFY(!f->enabled("ApnlineEdit") && f->edit("ApnlineEdit")->text().isEmpty());
        f->click("BtnStatic");
        f->click("BtnsaveProfile");  // static, but nothing was entered
        QCOMPARE(f->stored("Home", "autoapn"), QString("true"));
    }

    void undo_data() { nameRows("button", {"pBtnnewProfile", "BtnEditProfile"}); }
    void undo() {
        f->newProfile = "name='n' type='of the template' readonly='true' phonenumber='1' autoapn='true' Remember='x'";
        f->start(F::profile("Home", "type='of Home' phonenumber='2' apn='net' Remember=''") + F::profile("Work"));
        const QByteArray before = TestFolder::read(f->userFile());
        const QStringList viewing = f->editState();
        f->click(qPrintable(cell("button")));
        F::type(f->edit("AccessNumberlineEdit"), "typed");
        f->click("BtnUndoProfile");
        QCOMPARE(f->editState().mid(1), viewing.mid(1));
        QCOMPARE(TestFolder::read(f->userFile()), before);
        // Nothing of the undone edit reaches the next one.
        f->click("BtnEditProfile");
        f->click("BtnsaveProfile");
        QCOMPARE(f->stored("Home", "type readonly Remember"), QString("of Home||"));
    }

    // Nothing of what was typed stays in memory when the edit ends.
    void passwordIsWiped_data() { nameRows("by", {"BtnUndoProfile", "the plug-in's end"}); }
    void passwordIsWiped() {
        f->start(F::profile("Home"));
        f->click("BtnEditProfile");
        for (int i = 0; i < SecretLength; ++i) QTest::keyClick(f->edit("PasswordlineEdit"), secretAt(i));
        QVERIFY(isSecretInMemory());
        const QString by = cell("by");
        by.startsWith("Btn") ? f->click(qPrintable(by)) : f->plugin()->OnDestroy();
        QVERIFY(!isSecretInMemory());
    }

    void returnDoesNotDelete() {
        f->start(F::profile("Home"));
        f->answers.dismiss(Qt::Key_Return);
        f->click("BtnDeleteProfile");
        QCOMPARE(f->stored(), QStringList("Home"));
    }

    void validation() {
        const QByteArray absent = "IDS_SETTING_PROMPT_PROFILE_NAME", same = "IDS_SETTING_PROMPT_PROFILE_NAME_SAME",
                         bad = "IDS_MSG_CONNECTSETTINGDLG_PROFILENAMEERR", apn = "IDS_SETTING_PROMPT_APN_ERROR",
                         number = "IDS_MSG_CONNECTSETTINGDLG_NULLNUMBER", none;
        const struct {
            const char *name, *number, *apn;
            QByteArray message;
        } rows[] = {{"", "", "-", absent},    {"Work", "", "", same},   {"Home (Default)", "1", "", same},
                    {"a:b", "", "", bad},     {"a", "", "x.", number},  {"a", "1", "x.", apn},
                    {"home", "1", "-", none}, {"b", "1", "a.b-c", none}};
        f->newProfile = "autoapn='false'";
        f->start(F::profile("Home") + F::profile("Work"), "<Default name='Home' IsUserSet='1'/>");
        for (const auto& row : rows) {
            if (f->enabled("pBtnnewProfile")) f->click("pBtnnewProfile");
            f->edit("LineEditProfileName")->setText(shown(row.name));
            f->edit("AccessNumberlineEdit")->setText(row.number);
            f->edit("ApnlineEdit")->setText(row.apn);
            const QStringList typed = f->editState();
            if (!row.message.isEmpty()) f->answers.ok();
            f->click("BtnsaveProfile");
            QVERIFY2(f->answers.allGiven(), row.name);
            QCOMPARE(f->stored().contains(row.name),
                     row.message.isEmpty() || QStringList({"Work", "Home"}).contains(row.name));
            if (row.message.isEmpty()) continue;
            QVERIFY(f->answers.texts.last().startsWith(text(row.message)));
            QCOMPARE(f->editState(), typed);
        }
    }

    void deletingTheDefault() {
        f->start(F::profile("Home") + F::profile("Work"));
        f->select("Work");
        f->click("BtnSetDefaultProfile");
        QCOMPARE(f->storedDefault(), QString("Work/1"));
        QCOMPARE(f->listed(), QStringList({"Home", shown("Work (Default)")}));
        f->answers.no();
        f->click("BtnDeleteProfile");
        QCOMPARE(f->stored(), QStringList({"Home", "Work"}));
        QCOMPARE(f->notify->sent, QStringList("92804312-432E-401F-96BB-1C20D852815D 512 0 0"));
        f->answers.yes();
        f->click("BtnDeleteProfile");
        QCOMPARE(f->stored(), QStringList("Home"));
        QCOMPARE(f->storedDefault(), QString("/"));
        QCOMPARE(f->listed(), QStringList("Home"));
        QCOMPARE(f->notify->sent.size(), 3);
    }

    // --- what comes in the middle of an edit ---

    void interruptions_data() {
        const Rows<QString, bool, QString> row("button", "refusedFirst", "what");
        for (const char* button : {"pBtnnewProfile", "BtnEditProfile"})
            for (bool refused : {false, true})
                for (const char* what : {"card", "language", "system mode", "save of another", "save of this one",
                                         "default", "show", "other process"})
                    QTest::newRow(QByteArray(button) + (refused ? " after a refusal, " : ", ") + what)
                        << QString(button) << refused << QString(what);
    }
    void interruptions() {
        QFETCH(QString, button);
        QFETCH(bool, refusedFirst);
        QFETCH(QString, what);
        f->prompt =
            "<item name='PromptPwd' value='true'/><item name='UserCheck' value='true'/>"
            "<item name='CheckNamePwd' value='true'/>";
        f->start(F::profile("Alpha") + F::profile("Home", "phonenumber='2' apn='net'") + F::profile("Zulu"),
                 "<Default name='Home' IsUserSet='1'/>");
        f->click(qPrintable(button));
        f->click("BtnStatic");
        F::type(f->edit("LineEditProfileName"), refusedFirst ? "Alpha" : "Typed");
        F::type(f->edit("AccessNumberlineEdit"), "12345");
        f->find<QAbstractButton>("CheckBoxAskUserName")->setChecked(false);
        if (refusedFirst) {
            f->answers.ok();
            f->click("BtnsaveProfile");
            F::type(f->edit("LineEditProfileName"), "Typed");
        }
        const QStringList typed = f->editState();
        interrupt(what);
        QCOMPARE(f->editState(), typed);

        f->click("BtnsaveProfile");
        const bool edited = button == "BtnEditProfile";
        QStringList expected = {"Alpha", edited ? "Typed" : "Home", edited ? "Zulu" : "Typed"};
        if (!edited) expected.append("Zulu");
        if (what == "save of another" || what == "other process") expected.insert(edited ? 1 : 2, "Other");
        QCOMPARE(f->stored(), expected);
        QCOMPARE(f->stored("Typed", "phonenumber"), QString("12345"));
        QCOMPARE(f->storedDefault(), QString(what == "default" ? "Zulu/1" : edited ? "Typed/1" : "Home/1"));
        QCOMPARE(f->listed().size(), f->stored().size());
        QCOMPARE(f->combo()->currentText(), shown(edited && what != "default" ? "Typed (Default)" : "Typed"));
    }

    void languageChangeMovesTheEditedName() {
        f->start(F::profile("Old", "phonenumber='1' langid='IDS_CANCEL'") + F::profile("Work"));
        f->select(text("IDS_CANCEL"));
        f->click("BtnEditProfile");
        F::type(f->edit("AccessNumberlineEdit"), "2");
        f->language("de");
        f->click("BtnsaveProfile");
        QCOMPARE(f->stored(), QStringList({text("IDS_CANCEL"), "Work"}));
        QCOMPARE(f->stored(text("IDS_CANCEL"), "phonenumber langid"), QString("2|IDS_CANCEL"));
    }

    void anotherProcessTakesTheName_data() {
        const Rows<QString, bool> row("button", "inQuestion");
        for (const char* button : {"pBtnnewProfile", "BtnEditProfile"})
            for (bool question : {false, true})
                QTest::addRow("%s%s", button, question ? ", in the question" : "") << QString(button) << question;
    }
    void anotherProcessTakesTheName() {
        QFETCH(QString, button);
        QFETCH(bool, inQuestion);
        f->start(F::profile("Home"));
        f->click(qPrintable(button));
        F::type(f->edit("LineEditProfileName"), "Taken");
        F::type(f->edit("AccessNumberlineEdit"), "12345");
        const QStringList typed = f->editState();
        const auto take = [] { F::otherProcess({"add", "Taken"}); };
        inQuestion ? f->answers.yes(take) : take();
        f->answers.ok();
        inQuestion ? void(f->setting->OnClickSettingOkButton()) : f->click("BtnsaveProfile");
        QCOMPARE(f->answers.texts.last(), text("IDS_SETTING_PROMPT_PROFILE_NAME_SAME"));
        QCOMPARE(f->editState(), typed);
        QCOMPARE(f->stored(), QStringList({"Home", "Taken"}));
        QCOMPARE(f->stored("Taken", "phonenumber"), QString("*99#"));
        F::type(f->edit("LineEditProfileName"), "Free");
        f->click("BtnsaveProfile");
        QStringList expected = {"Free", "Home", "Taken"};
        if (button == "BtnEditProfile") expected.removeOne("Home");
        QCOMPARE(f->stored(), expected);
    }

    // What the user did not touch is the other program's; "autoapn" and "apn" count as one, "password" with its method
    // too.
    void editMeetsEdit_data() {
        const Rows<QString, QString, QString> row("typed", "others", "stored");
        row("another field", "UsernamelineEdit=me", "apn=theirs password=new", "*99#|me|new|false|theirs|r");
        row("the same field", "ApnlineEdit=mine", "apn=theirs", "*99#|u|p|false|mine|r");
        row("one of two that go together", "ApnlineEdit=mine", "autoapn=true", "*99#|u|p|false|mine|r");
        row("both were theirs", "AccessNumberlineEdit=1", "autoapn=true apn=", "1|u|p|true||r");
        row("not on the page", "AccessNumberlineEdit=1", "Remember=true dns=9.9.9.9", "1|u|p|false|net|true");
        row("emptied", "AccessNumberlineEdit=1", "user=", "1||p|false|net|r");
        row("renamed by the user", "LineEditProfileName=New", "apn=theirs", "*99#|u|p|false|theirs|r");
    }
    void editMeetsEdit() {
        f->functions += "<item name='ENCRYPT' value='true'/>";
        f->start(F::profile("Home", QByteArray(Full).replace("'p'", "'cA=='")), "<Default name='Home' IsUserSet='1'/>");
        f->click("BtnEditProfile");
        const QStringList typed = cell("typed").split('=');
        F::type(f->edit(qPrintable(typed[0])), typed[1]);
        F::otherProcess(QStringList({"set", "Home"}) + cell("others").split(' '));
        f->click("BtnsaveProfile");
        const QString name = typed[0] == "LineEditProfileName" ? typed[1] : "Home";
        QCOMPARE(f->stored(), QStringList(name));
        const DialupProfile now = profileOf(name);
        const QStringList fields = {now.phonenumber, now.user, now.password, now.autoapn, now.apn, now.Remember};
        QTEST(fields.join('|'), "stored");
        QCOMPARE(f->storedDefault(), name + "/1");
    }

    // The page shows less than is stored: an access name that is not used, a text longer than can be typed.
    void savingKeepsWhatIsShownOtherwise() {
        const QByteArray longUser(60, 'u');
        f->start(F::profile("Home", "phonenumber='1' autoapn='true' apn='net' user='" + longUser + "'"));
        f->click("BtnEditProfile");
        F::type(f->edit("AccessNumberlineEdit"), "2");
        f->click("BtnsaveProfile");
        QCOMPARE(f->stored("Home", "phonenumber autoapn apn chap user"), "2|true|net|false|" + QString(longUser));
    }

    // Two entries may read alike: the default with its mark, and a profile whose name is just that text.
    void markBelongsToOneEntry() {
        f->start();
        f->stop();
        const QByteArray mark = ' ' + text("IDS_STC_NETCONNECTSETTINGDLG_DEFAULT").toUtf8();
        const QString alike = "Alpha" + QString::fromUtf8(mark);
        f->start(F::profile("Alpha", "phonenumber='1'") + F::profile("Alpha" + mark, "phonenumber='2'"),
                 "<Default name='Alpha' IsUserSet='1'/>");
        QCOMPARE(f->listed(), QStringList({alike, alike}));
        f->combo()->setCurrentIndex(1);
        QCOMPARE(f->edit("AccessNumberlineEdit")->text(), QString("2"));
        f->click("BtnSetDefaultProfile");
        QCOMPARE(f->storedDefault(), alike + "/1");
        QCOMPARE(f->listed(), QStringList({"Alpha", alike + QString::fromUtf8(mark)}));
        QCOMPARE(f->profiles->SetDefaultDialUpProfileName("Alpha"), 0);
        QCOMPARE(f->profiles->SetDefaultDialUpProfileName(alike), 0);  // a name, as it stands
        QCOMPARE(f->storedDefault(), alike + "/1");
        QCOMPARE(f->profiles->SetDefaultDialUpProfileName("Alpha"), 0);
        f->combo()->setCurrentIndex(1);
        f->dialup.connected = alike;
        f->show();
        f->combo()->setCurrentIndex(1);
        QVERIFY(!f->enabled("BtnDeleteProfile"));
        f->dialup.connected = QString();
        f->combo()->setCurrentIndex(0);
        f->combo()->setCurrentIndex(1);
        f->answers.yes();
        f->click("BtnDeleteProfile");
        QCOMPARE(f->stored(), QStringList("Alpha"));
        QCOMPARE(f->storedDefault(), QString("Alpha/1"));
    }

    void editBesideAnAlikeName() {
        f->start(F::profile("Alpha") + F::profile("Alpha (Default)"));
        f->select("Alpha");
        f->click("BtnEditProfile");
        F::type(f->edit("AccessNumberlineEdit"), "7");
        f->click("BtnsaveProfile");
        QCOMPARE(f->stored("Alpha", "phonenumber"), QString("7"));
    }

    void emptyNameCanBeDeleted() {
        f->start(F::profile("", "phonenumber='1'") + F::profile("Work"));
        QCOMPARE(f->listed(), QStringList({"", "Work"}));
        f->combo()->setCurrentIndex(0);
        QCOMPARE(f->edit("AccessNumberlineEdit")->text(), QString("1"));
        f->answers.yes();
        f->click("BtnDeleteProfile");
        QCOMPARE(f->stored(), QStringList("Work"));
    }

    // Saving brings back what another process has deleted.
    void anotherProcessDeletesTheEdited() {
        f->start(F::profile("Home") + F::profile("Work", "phonenumber='2'"));
        for (const char* button : {"BtnUndoProfile", "BtnsaveProfile"}) {
            f->select("Home");
            f->click("BtnEditProfile");
            F::otherProcess({"delete", "Home"});
            F::changeCard();
            f->click(button);
            const bool undone = !f->stored().contains("Home");
            QCOMPARE(undone, button == QString("BtnUndoProfile"));
            if (!undone) break;
            QCOMPARE(f->combo()->currentText(), QString("Work"));
            QCOMPARE(f->edit("AccessNumberlineEdit")->text(), QString("2"));
            F::otherProcess({"add", "Home"});
            F::changeCard();
        }
        QCOMPARE(f->stored(), QStringList({"Home", "Work"}));
    }

    // The question names nobody, so that the profile on show when it came up is the one that goes.
    void eventInTheDeleteQuestion_data() { nameRows("what", {"card", "language", "other process", "default"}); }
    void eventInTheDeleteQuestion() {
        QFETCH(QString, what);
        f->start(F::profile("Home") + F::profile("Work") + F::profile("Zulu"), "<Default name='Home' IsUserSet='1'/>");
        f->select("Work");
        f->answers.yes([=] { interrupt(what); });
        f->click("BtnDeleteProfile");
        QStringList expected = {"Home", "Zulu"};
        if (what == "other process") expected.insert(1, "Other");
        QCOMPARE(f->stored(), expected);
        QCOMPARE(f->listed().size(), f->stored().size());
    }

    void writeFailureKeepsTheEdit() {
        f->start(F::profile("Home"));
        f->click("BtnEditProfile");
        F::type(f->edit("LineEditProfileName"), "Mine");
        QDir(f->path("data")).rename("UserProfile.prof", "aside");
        QVERIFY(QDir().mkdir(f->userFile()));  // can be neither read nor replaced
        f->click("BtnsaveProfile");
        QVERIFY(f->edit("LineEditProfileName")->isVisible() && f->enabled("BtnsaveProfile"));
        QVERIFY(f->find("BtnsaveProfile")->toolTip().startsWith(text("IDS_NETCONNECT_TIP_SAVE_FAILED")));
        QDir().rmdir(f->userFile());
        QDir(f->path("data")).rename("aside", "UserProfile.prof");
        f->click("BtnsaveProfile");
        QCOMPARE(f->stored(), QStringList("Mine"));
    }

    void endDuringAMessage_data() { nameRows("button", {"BtnDeleteProfile", "BtnsaveProfile", "leaving"}); }
    void endDuringAMessage() {
        QFETCH(QString, button);
        f->start(F::profile("Home"));
        if (button != "BtnDeleteProfile") f->click("BtnEditProfile");
        f->edit("AccessNumberlineEdit")->clear();
        f->answers.yes([this] { f->plugin()->OnDestroy(); });
        button == "leaving" ? void(f->setting->OnClickSettingOkButton()) : f->click(qPrintable(button));
        QVERIFY(f->answers.allGiven());
        QCOMPARE(f->stored(), QStringList("Home"));
    }

private:
    DialupProfile profileOf(const QString& name) const {
        DialupProfile profile;
        f->profiles->GetDialUpProfile(name, &profile);
        return profile;
    }

    void interrupt(const QString& what) {
        if (what == "card") F::changeCard();
        if (what == "language") f->language(TestFolder::language() == "ar" ? "en" : "ar");
        if (what == "system mode") f->event(NotifySystemModeChanged);
        if (what.startsWith("save of")) f->save(what == "save of another" ? "Other" : "Home", "of another plug-in");
        if (what == "default") f->profiles->SetDefaultDialUpProfileName("Zulu");
        if (what == "show") f->show();
        if (what == "other process") {
            F::otherProcess({"add", "Other"});
            F::changeCard();
        }
    }
};

QTEST_MAIN(tst_page_editing)
#include "tst_page_editing.moc"
