// SPDX-License-Identifier: MIT
// Import and export. The page's tests answer its real questions.

#include <unistd.h>

#include <QElapsedTimer>

#include "LogicFixture.h"

// Answers every clash alike, and may do something at the first question.
class FixedPolicy : public NetConnectClashPolicy {
public:
    explicit FixedPolicy(bool answer) : m_bAnswer(answer) {}
    bool replace(const QString& name) override {
        asked << name;
        if (meanwhile) meanwhile();
        meanwhile = nullptr;
        return m_bAnswer;
    }
    QStringList asked;
    std::function<void()> meanwhile;

private:
    bool m_bAnswer;
};

class tst_transfer : public LogicTest {
    Q_OBJECT

private slots:
    void importing_data() {
        const Rows<QString, bool, int, QString, QString> row("chosen", "answer", "status", "apns", "asked");
        row("new", "C", false, 0, "A:a,B:b,C:c", "");
        row("clash, no", "A", false, 113, "A:a,B:b", "A");
        row("clash, yes", "A", true, 0, "A:x,B:b", "A");
        row("both of one name", "D", false, 0, "A:a,B:b,D:1,D:2", "");
        row("unknown", "nobody", true, 113, "A:a,B:b", "");
        row("a clash whose candidate is missing removes nothing", "B", true, 113, "A:a,B:b", "B");
    }
    void importing() {
        QFETCH(int, status);
        start();
        const QByteArray before = user();
        FixedPolicy policy(cell<bool>("answer"));
        QStringList names = cell("chosen").split(',', Qt::SkipEmptyParts);
        QCOMPARE(logic()->ImportDialupProfiles(&names, nullptr), 13);
        QCOMPARE(logic()->ImportChosenProfiles(names, &policy), status);
        QTEST(policy.asked.join(","), "asked");
        QTEST(apns(), "apns");
        if (status == 113) QCOMPARE(user(), before);
    }

    // Compared as they will be stored, once each, and also when nobody listed the user's profiles before.
    void clashes_data() {
        const QString long1(50, 'n'), long2 = QString(49, 'n') + "m", stored(48, 'n');
        const Rows<QString, QStringList, bool, QStringList, int> row("offered", "chosen", "answer", "asked", "count");
        row("ticked twice", "X,Y", {"X", "X"}, true, {}, 3);
        row("cut, yes", long1, {long1}, true, {long1}, 2);
        row("cut, no", long1, {long1}, false, {long1}, 2);
        row("two become one, yes", long1 + "," + long2, {long1, long2}, true, {long1, long2}, 2);
        row("not listed", "A", {"A"}, true, {"A"}, 2);
        row("in the order of the choice", "A,X," + stored, {"A", "X", stored}, false, {"A", stored}, 3);
    }
    void clashes() {
        QFETCH(QStringList, chosen);
        setUser(profile("A") + profile(QByteArray(48, 'n')));
        restart();
        QByteArray profiles;
        for (const QString& name : cell("offered").split(',')) profiles += profile(name.toUtf8());
        offer(document(profiles));
        FixedPolicy policy(cell<bool>("answer"));
        logic()->ImportChosenProfiles(chosen, &policy);
        QTEST(policy.asked, "asked");
        QCOMPARE(names().size(), cell<int>("count"));
    }

    // With ten times as many names it takes ten times as long, not a hundred times.
    void manyNames() {
        QByteArray profiles;
        QStringList names;
        const int count = 20000;
        for (int i = 0; i < count; ++i) {
            names.append(QString("name %1").arg(i));
            profiles += profile(names.last().toUtf8());
        }
        setUser(profiles);
        restart();
        offer(document(profiles));
        FixedPolicy policy(true);
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(logic()->ImportChosenProfiles(names, &policy), 0);
        QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(policy.asked.size(), count);
    }

    void aProfileThatAppearsDuringAQuestionRaisesAnother() {
        start();
        FixedPolicy policy(false);
        policy.meanwhile = [this] { setUser(profile("A", "apn='a'") + profile("C", "apn='theirs'")); };
        QCOMPARE(logic()->ImportChosenProfiles({"A", "C", "D"}, &policy), 0);
        QCOMPARE(policy.asked, QStringList({"A", "C"}));
        QCOMPARE(apns(), QString("A:a,C:theirs,D:1,D:2"));
    }

    void theLogicMayEndDuringAQuestion() {
        start();
        FixedPolicy policy(true);
        policy.meanwhile = [] { NetConnectSettingUILogic::Destroy(); };
        QCOMPARE(logic()->ImportChosenProfiles({"A", "B"}, &policy), 13);
        QCOMPARE(apns(), QString("A:a,B:b"));
    }

    void longNamesAreCut() {
        const QString longest(48, 'n'), half = QString(47, 'N');
        const QStringList offered =
            offer(document(profile(longest.toUtf8() + "n") + profile(half.toUtf8() + "\xf0\x9f\x98\x80")));
        FixedPolicy policy(true);
        QCOMPARE(logic()->ImportChosenProfiles(offered, &policy), 0);
        QCOMPARE(names(), QStringList({half, longest}));
    }

    void browsing() {
        start();
        logic()->SetDefaultDialUpProfileName("B", true);
        QCOMPARE(offer(document(profile("") + profile("X"), "<Default name='X'/>")), QStringList("X"));
        QCOMPARE(defaultName(), QString("X"));
        logic()->Init();
        QCOMPARE(defaultName(), QString("B"));
        QVERIFY(logic()->IsDefaultUserSet());

        shipLibrary(profile("Lib"));
        QList<QString> library, none;
        QCOMPARE(logic()->GetDialUpProfileFromFile(&library, QString()), 0);
        QCOMPARE(QStringList(library), QStringList("Lib"));
        QCOMPARE(offer("<broken", 6), QStringList());
        QCOMPARE(logic()->GetDialUpProfileFromFile(&none, other() + "-"), 23);
    }

    void exporting_data() {
        const Rows<QByteArray, QString, QString> row("present", "chosen", "exported");
        const QByteArray none, two = document(profile("A", "apn='old'") + profile("B", "apn='old'"));
        row("new file", none, "B,A", "B:b,A:a");
        row("merged in place", two, "B,Lib", "A:old,B:b,Lib:l");
        row("user before library", none, "Both,Lib", "Both:mine,Lib:l");
        row("unknown names", none, "nobody,A", "A:a");
    }
    void exporting() {
        QFETCH(QByteArray, present);
        setUser(profile("A", "apn='a'") + profile("B", "apn='b'") + profile("Both", "apn='mine'"));
        shipLibrary(profile("Lib", "apn='l'") + profile("Both", "apn='theirs'"),
                    section("MultiModeDefaultProfile", {"L=CDMA"}));
        if (!present.isEmpty()) write(other(), present);
        restart();
        QStringList names = cell("chosen").split(',');
        QCOMPARE(logic()->ExportSelectedProfilesToFile(&names, other()), 0);
        QTEST(describe(other()), "exported");
        QVERIFY(NetConnectXMLParse::GetInstance()->rememberedDefaults().cdma.name.isEmpty());
    }

    void exportsThatAreRefused_data() {
        nameRows("name", {"", "data/UserProfile.prof", "link to the user's file", "hard link", "data",
                          "missing folder/x.prof"});
    }
    void exportsThatAreRefused() {
        QFETCH(QString, name);
        start();
        QFile::link(userFile(), path("link to the user's file"));
        QCOMPARE(::link(qPrintable(userFile()), qPrintable(path("hard link"))), 0);
        const QByteArray before = user();
        QCOMPARE(logic()->ExportChosenProfiles({"A"}, name.isEmpty() ? name : path(name)), 25);
        QVERIFY(!logic()->LastStorageProblem().isNull());
        QCOMPARE(user(), before);
    }

private:
    QString other() const { return path("other.prof"); }

    // What the other file offers when it has this content.
    QStringList offer(const QByteArray& content, int status = 0) {
        write(other(), content);
        QList<QString> offered;
        if (logic()->GetDialUpProfileFromFile(&offered, other()) != status) QTest::qFail("status", __FILE__, __LINE__);
        return offered;
    }

    // The user has A and B; the other file offers A, C and two D, and is read.
    void start() {
        setUser(profile("A", "apn='a'") + profile("B", "apn='b'"));
        restart();
        names();
        QCOMPARE(offer(document(profile("A", "apn='x'") + profile("C", "apn='c'") + profile("D", "apn='1'") +
                                profile("D", "apn='2'"))),
                 QStringList({"A", "C", "D", "D"}));
    }

    // "name:apn" of a file's profiles, in its order.
    static QString describe(const QString& path) {
        QList<DialupProfile> profiles;
        QString ignored;
        NetConnectXMLParse::GetInstance()->GetAllProfileFromUserDataXML(&profiles, &ignored, path, nullptr);
        QStringList result;
        for (const DialupProfile& profile : profiles) result << profile.name + ":" + profile.apn;
        return result.join(",");
    }

    QString apns() const {
        QStringList sorted = describe(userFile()).split(',');
        sorted.sort();
        return sorted.join(",");
    }
};

QTEST_MAIN(tst_transfer)
#include "tst_transfer.moc"
