// Import and export.

#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

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

class tst_transfer : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_pFixture = new LogicFixture;
        m_Path = m_pFixture->folder.path("other.prof");
    }
    void cleanup() {
        delete m_pFixture;
        m_pFixture = nullptr;
    }

    void importing_data() {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<bool>("answer");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("apns");
        QTest::addColumn<QString>("asked");
        QTest::newRow("new") << "C" << false << 0 << "A:a,B:b,C:c"
                             << "";
        QTest::newRow("clash, no") << "A" << false << 113 << "A:a,B:b"
                                   << "A";
        QTest::newRow("clash, yes") << "A" << true << 0 << "A:x,B:b"
                                    << "A";
        QTest::newRow("both of one name") << "D" << false << 0 << "A:a,B:b,D:1,D:2"
                                          << "";
        QTest::newRow("mixed") << "A,C" << false << 0 << "A:a,B:b,C:c"
                               << "A";
        QTest::newRow("unknown") << "nobody" << true << 113 << "A:a,B:b"
                                 << "";
        QTest::newRow("a clash whose candidate is missing removes nothing") << "B" << true << 113 << "A:a,B:b"
                                                                            << "B";
        QTest::newRow("nothing") << "" << true << 113 << "A:a,B:b"
                                 << "";
    }
    void importing() {
        QFETCH(QString, chosen);
        QFETCH(bool, answer);
        setUp();
        const QByteArray before = TestFolder::read(m_pFixture->folder.userFile());
        FixedPolicy policy(answer);
        const QStringList names = chosen.isEmpty() ? QStringList() : chosen.split(',');
        QTEST(m_pFixture->logic()->ImportChosenProfiles(names, &policy), "status");
        QTEST(policy.asked.join(","), "asked");
        QTEST(apns(), "apns");
        QFETCH(int, status);
        if (status == 113) QCOMPARE(TestFolder::read(m_pFixture->folder.userFile()), before);
    }

    void aProfileThatAppearsDuringAQuestionRaisesAnother() {
        setUp();
        FixedPolicy policy(false);
        const QString file = m_pFixture->folder.userFile();
        policy.meanwhile = [file] {
            TestFolder::write(file, LogicFixture::profiles(LogicFixture::profile("name='A' apn='a'") +
                                                           LogicFixture::profile("name='C' apn='theirs'")));
        };
        QCOMPARE(m_pFixture->logic()->ImportChosenProfiles({"A", "C", "D"}, &policy), 0);
        QCOMPARE(policy.asked, QStringList({"A", "C"}));
        QCOMPARE(apns(), QString("A:a,C:theirs,D:1,D:2"));
    }

    void aReloadDuringAQuestionChangesNothing() {
        setUp();
        FixedPolicy policy(true);
        policy.meanwhile = [this] { m_pFixture->logic()->Init(); };
        QCOMPARE(m_pFixture->logic()->ImportChosenProfiles({"A"}, &policy), 0);
        QCOMPARE(apns(), QString("A:x,B:b"));
    }

    void theLogicMayEndDuringAQuestion() {
        setUp();
        FixedPolicy policy(true);
        policy.meanwhile = [] { NetConnectSettingUILogic::Destroy(); };
        QCOMPARE(m_pFixture->logic()->ImportChosenProfiles({"A", "B"}, &policy), 13);
        QCOMPARE(apns(), QString("A:a,B:b"));
    }

    void questionsAreRealMessageBoxes_data() {
        QTest::addColumn<int>("button");
        QTest::addColumn<int>("status");
        QTest::newRow("yes") << int(QMessageBox::Ok) << 0;
        QTest::newRow("no") << int(QMessageBox::Cancel) << 113;
    }
    void questionsAreRealMessageBoxes() {
        QFETCH(int, button);
        setUp();
        QWidget parent;
        QString text;
        QTimer::singleShot(0, [&] {
            QMessageBox* box = nullptr;
            for (QWidget* widget : QApplication::topLevelWidgets())
                if (QMessageBox* found = qobject_cast<QMessageBox*>(widget)) box = found;
            QVERIFY(box);
            text = box->text();
            QTest::mouseClick(box->button(QMessageBox::StandardButton(button)), Qt::LeftButton);
        });
        QStringList names("A");
        QTEST(m_pFixture->logic()->ImportDialupProfiles(&names, &parent), "status");
        QVERIFY(text.startsWith("A "));
        QCOMPARE(m_pFixture->logic()->ImportDialupProfiles(&names, nullptr), 13);
    }

    void longNamesAreCut_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("length");
        QTest::newRow("60") << QString(60, 'n') << 48;
        QTest::newRow("48") << QString(48, 'n') << 48;
        QTest::newRow("emoji at the end") << QString(47, 'n') + QString::fromUtf8("\xf0\x9f\x98\x80") << 47;
    }
    void longNamesAreCut() {
        QFETCH(QString, name);
        QFETCH(int, length);
        TestFolder::write(m_Path, LogicFixture::profiles(LogicFixture::profile("name='" + name.toUtf8() + "'")));
        m_pFixture->restart();
        QList<QString> offered;
        QCOMPARE(m_pFixture->logic()->GetDialUpProfileFromFile(&offered, m_Path), 0);
        FixedPolicy policy(true);
        QCOMPARE(m_pFixture->logic()->ImportChosenProfiles(offered, &policy), 0);
        QCOMPARE(m_pFixture->names(), QStringList(name.left(length)));
    }

    void browsing() {
        setUp();
        m_pFixture->logic()->SetDefaultDialUpProfileName("B", true);
        TestFolder::write(m_Path,
                          LogicFixture::profiles(LogicFixture::profile("name=''") + LogicFixture::profile("name='X'"),
                                                 "<Default name='X'/>"));
        QList<QString> offered;
        QCOMPARE(m_pFixture->logic()->GetDialUpProfileFromFile(&offered, m_Path), 0);
        QCOMPARE(QStringList(offered), QStringList({"X"}));
        QCOMPARE(m_pFixture->defaultName(), QString("X"));
        m_pFixture->logic()->Init();
        QCOMPARE(m_pFixture->defaultName(), QString("B"));
        QVERIFY(m_pFixture->logic()->IsDefaultUserSet());

        m_pFixture->shipLibrary(LogicFixture::profiles(LogicFixture::profile("name='Lib'")));
        QList<QString> library;
        QCOMPARE(m_pFixture->logic()->GetDialUpProfileFromFile(&library, QString()), 0);
        QCOMPARE(QStringList(library), QStringList({"Lib"}));
        TestFolder::write(m_Path, "<broken");
        QList<QString> none;
        QCOMPARE(m_pFixture->logic()->GetDialUpProfileFromFile(&none, m_Path), 6);
        QVERIFY(none.isEmpty());
        QCOMPARE(m_pFixture->logic()->GetDialUpProfileFromFile(&none, m_Path + "-"), 23);
    }

    void exporting_data() {
        QTest::addColumn<QByteArray>("present");
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("exported");
        const QByteArray two = LogicFixture::profiles(LogicFixture::profile("name='A' apn='old'") +
                                                      LogicFixture::profile("name='B' apn='old'"));
        QTest::newRow("new file") << QByteArray() << "B,A"
                                  << "B:b,A:a";
        QTest::newRow("merged in place") << two << "B,Lib"
                                         << "A:old,B:b,Lib:l";
        QTest::newRow("user before library") << QByteArray() << "Both,Lib"
                                             << "Both:mine,Lib:l";
        QTest::newRow("unknown names") << QByteArray() << "nobody,A"
                                       << "A:a";
        QTest::newRow("nothing found") << QByteArray() << "nobody"
                                       << "";
    }
    void exporting() {
        QFETCH(QByteArray, present);
        QFETCH(QString, chosen);
        m_pFixture->setUserFile(LogicFixture::profiles(LogicFixture::profile("name='A' apn='a'") +
                                                       LogicFixture::profile("name='B' apn='b'") +
                                                       LogicFixture::profile("name='Both' apn='mine'")));
        m_pFixture->shipLibrary(LogicFixture::profiles(
            LogicFixture::profile("name='Lib' apn='l'") + LogicFixture::profile("name='Both' apn='theirs'"),
            "<MultiModeDefaultProfile><item name='L' value='CDMA'/></MultiModeDefaultProfile>"));
        if (!present.isEmpty()) TestFolder::write(m_Path, present);
        m_pFixture->restart();
        QStringList names = chosen.split(',');
        QCOMPARE(m_pFixture->logic()->ExportSelectedProfilesToFile(&names, m_Path), 0);
        QTEST(describe(m_Path), "exported");
        QVERIFY(NetConnectXMLParse::GetInstance()->rememberedDefaults().cdma.name.isEmpty());
    }

    void exportsThatAreRefused_data() {
        QTest::addColumn<QString>("path");
        QTest::newRow("empty") << "";
        QTest::newRow("the user's own file") << "data/UserProfile.prof";
        QTest::newRow("by a link") << "link.prof";
        QTest::newRow("a folder") << "data";
        QTest::newRow("missing folder") << "nowhere/x.prof";
    }
    void exportsThatAreRefused() {
        QFETCH(QString, path);
        setUp();
        QFile::link(m_pFixture->folder.userFile(), m_pFixture->folder.path("link.prof"));
        const QByteArray before = TestFolder::read(m_pFixture->folder.userFile());
        const QString file = path.isEmpty() ? path : m_pFixture->folder.path(path);
        QCOMPARE(m_pFixture->logic()->ExportChosenProfiles({"A"}, file), 25);
        QVERIFY(!m_pFixture->logic()->LastStorageProblem().isNull());
        QCOMPARE(TestFolder::read(m_pFixture->folder.userFile()), before);
    }

private:
    // The user has A and B; the other file offers A, C and two D, and is read.
    void setUp() {
        m_pFixture->setUserFile(LogicFixture::profiles(LogicFixture::profile("name='A' apn='a'") +
                                                       LogicFixture::profile("name='B' apn='b'")));
        TestFolder::write(m_Path, LogicFixture::profiles(LogicFixture::profile("name='A' apn='x'") +
                                                         LogicFixture::profile("name='C' apn='c'") +
                                                         LogicFixture::profile("name='D' apn='1'") +
                                                         LogicFixture::profile("name='D' apn='2'")));
        m_pFixture->restart();
        m_pFixture->names();
        QList<QString> offered;
        QCOMPARE(m_pFixture->logic()->GetDialUpProfileFromFile(&offered, m_Path), 0);
        QCOMPARE(offered.size(), 4);
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

    QString apns() {
        QStringList sorted = describe(m_pFixture->folder.userFile()).split(',');
        sorted.sort();
        return sorted.join(",");
    }

    LogicFixture* m_pFixture = nullptr;
    QString m_Path;
};

QTEST_MAIN(tst_transfer)
#include "tst_transfer.moc"
