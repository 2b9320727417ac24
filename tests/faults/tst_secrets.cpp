// A password with a mark goes through everything that one can do with a profile: the mark is found nowhere but where
// it belongs.

#include <errno.h>

#include <QDirIterator>

#include "FaultsFixture.h"

static const char Mark[] = "mArKeD-pAsSwOrD";
static QByteArray traces;

class tst_secrets : public QObject {
    Q_OBJECT

private slots:
    void init() { m_pFixture.reset(new FaultsFixture); }
    void cleanup() { m_pFixture.reset(); }

    void theLogic_data() { addEncryption(); }
    void theLogic() {
        prepare();
        traces.clear();
        const QtMessageHandler usual = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& text) { traces += text.toUtf8() + '\n'; });
        QString problems = useLogic();
        problems += useDamagedFile();
        qInstallMessageHandler(usual);
        QVERIFY(traces.contains("SaveProfileToXML"));
        QVERIFY2(problems.contains("No space left") && problems.contains("was damaged"), qPrintable(problems));
        QVERIFY(!traces.contains(Mark) && !problems.contains(Mark));
        checkFiles();
    }

    void orbisctl_data() { addEncryption(); }
    void orbisctl() {
        prepare();
        const QString exported = m_pFixture->path("export.prof");
        const struct {
            QStringList arguments;
            int status;
            QByteArray fault;
        } commands[] = {
            {{"add", "A", "password=-"}, 0, {}},
            {{"show", "A"}, 0, {}},
            {{"--json", "show", "A"}, 0, {}},
            {{"set", "A", "name=B", "password=-"}, 0, {}},
            {{"set", "B", "password=-", "nofield=1"}, 2, {}},
            {{"export", exported, "B"}, 0, {}},
            {{"import", exported}, 1, {}},
            {{"import", exported, "--replace"}, 0, {}},
            {{"default", "B"}, 0, {}},
            {{"add", "C", "password=-"}, 0, {}},
            {{"delete", "C"}, 0, {}},
            {{"set", "B", "user=u", "password=-"}, 1, "write=" + QByteArray::number(ENOSPC)},
        };
        for (const auto& command : commands) {
            qputenv("ORBISDIAL_TEST_FAULT", command.fault);
            const Outcome outcome = m_pFixture->run(QStringList("--trace") + command.arguments, Mark);
            qunsetenv("ORBISDIAL_TEST_FAULT");
            QVERIFY2(outcome.status == command.status, outcome.err);
            QVERIFY2(!(outcome.out + outcome.err).contains(Mark), qPrintable(command.arguments.join(' ')));
        }
        QCOMPARE(m_pFixture->show("B")["password"].toString(), QString(Mark));
        checkFiles();
    }

private:
    static void addEncryption() {
        QTest::addColumn<bool>("encrypts");
        QTest::newRow("sealed") << true;
        QTest::newRow("plain") << false;
    }

    void prepare() {
        QFETCH(bool, encrypts);
        QByteArray config = TestFolder::read(m_pFixture->pluginDir() + "/NetConnectConfig.xml");
        if (!encrypts) config.replace("\"ENCRYPT\" value=\"true\"", "\"ENCRYPT\" value=\"false\"");
        m_pFixture->ship("NetConnectConfig.xml", config);
    }

    // Both answer with the texts of the problems that arose.
    QString useLogic() {
        struct : NetConnectClashPolicy {
            bool replace(const QString&) override { return true; }
        } always;
        NetConnectSettingUILogic* logic = FaultsFixture::restart();
        const QString exported = m_pFixture->path("export.prof");
        DialupProfile profile;
        QList<QString> names;
        logic->NewDialUpProfileTemplate(&profile);
        logic->SaveDialUpProfile(LogicFixture::named("A", Mark));
        FaultsFixture::userNames();
        logic->GetDialUpProfile("A", &profile);
        profile.name = "B";
        logic->ReplaceDialUpProfile("A", profile);
        logic->SetDefaultDialUpProfileName("B", true);
        logic->ExportChosenProfiles({"B"}, exported);
        logic->GetDialUpProfileFromFile(&names, exported);
        logic->ImportChosenProfiles({"B"}, &always);
        logic->SaveDialUpProfile(LogicFixture::named("C", Mark));
        logic->DelDialUpProfile("C");
        FaultySystem::fail("write", ENOSPC);
        logic->SaveDialUpProfile(LogicFixture::named("D", Mark));
        const QString problem = logic->LastStorageProblem().text();
        logic->ExportChosenProfiles({"B"}, exported);
        FaultySystem::fail(nullptr, 0);
        return problem + logic->LastStorageProblem().text();
    }

    QString useDamagedFile() {
        const QByteArray content = TestFolder::read(m_pFixture->userFile());
        TestFolder::write(m_pFixture->userFile(), content.left(content.lastIndexOf("<Default ")));
        QFile::setPermissions(m_pFixture->userFile(), QFile::ReadOwner | QFile::ReadOther);
        NetConnectSettingUILogic* logic = FaultsFixture::restart();
        const QString problem = logic->LastStorageProblem().text();
        logic->SaveDialUpProfile(LogicFixture::named("E", Mark));
        return problem + logic->LastStorageProblem().text();
    }

    // Sealed passwords stand in no file as they are; plain ones in the user's file, the exported and the damaged one,
    // which nobody else may read.
    void checkFiles() {
        QFETCH(bool, encrypts);
        NetConnectSettingUILogic::Destroy();
        QDirIterator files(m_pFixture->path(""), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        bool found = false;
        while (files.hasNext()) {
            const QString file = files.next();
            const bool isPrivate = files.fileName().startsWith("UserProfile.prof") || file.endsWith("export.prof");
            const bool holdsMark = TestFolder::read(file).contains(Mark);
            found |= holdsMark;
            QVERIFY2(!holdsMark || (isPrivate && !encrypts), qPrintable(file));
            const QFile::Permissions others = QFile::ReadGroup | QFile::ReadOther;
            QVERIFY2(!isPrivate || !(files.fileInfo().permissions() & others), qPrintable(file));
        }
        QCOMPARE(found, !encrypts);
    }

    QScopedPointer<FaultsFixture> m_pFixture;
};

QTEST_GUILESS_MAIN(tst_secrets)
#include "tst_secrets.moc"
