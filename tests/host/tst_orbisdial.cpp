// The program as a user starts it: arguments, exit status, and the picture.
#include <QImage>
#include <QProcess>
#include <QtTest>

#include "TestFolder.h"

class tst_orbisdial : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void runs_data();
    void runs();

private:
    TestFolder m_Folder;
};

void tst_orbisdial::initTestCase() {
    QDir().rmdir(m_Folder.path("library/lang"));
    QVERIFY(QFile::link(TEXTS_DIR, m_Folder.path("library/lang")));
    const QString folder = m_Folder.path("library/plugins/FakeSettingsPlugin");
    QVERIFY(QDir().mkpath(folder) && QFile::link(FAKE_PLUGIN, folder + "/libFakeSettingsPlugin.so"));
    TestFolder::write(m_Folder.path("library/plugins/Broken/libBroken.so"), "no library at all");
}

void tst_orbisdial::runs_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("said");
    const QString picture = m_Folder.path("picture.png");
    const QString nowhere = m_Folder.path("no such folder/picture.png");
    QTest::newRow("picture") << QStringList{"--screenshot", picture} << 0 << "libBroken.so: it can't be loaded";
    QTest::newRow("picture of a page") << QStringList{"--screenshot", picture, "--page", "Fake page", "--lang", "ar"}
                                       << 0 << "";
    QTest::newRow("picture of a plug-in")
        << QStringList{"--screenshot", picture, "--page", "Host", "--device", "none"} << 0 << "";
    QTest::newRow("unknown modem") << QStringList{"--screenshot", picture, "--device", "wrong"} << 0
                                   << "ORBISDIAL_DEVICE";
    QTest::newRow("picture not written") << QStringList{"--screenshot", nowhere} << 1 << nowhere;
    QTest::newRow("language") << QStringList{"--lang", "xx"} << 2 << "en, ar, de, es, fr, ru, zh_CN";
    QTest::newRow("page") << QStringList{"--page", "None"} << 2 << "FakeSettingsPlugin, Host";
    QTest::newRow("option") << QStringList{"--wrong"} << 2 << "wrong";
    QTest::newRow("argument") << QStringList{"stray"} << 2 << "stray";
}

void tst_orbisdial::runs() {
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, said);
    const QString picture = m_Folder.path("picture.png");
    QFile::remove(picture);
    QProcess process;
    process.start(ORBISDIAL_PROGRAM, arguments);
    QVERIFY(process.waitForFinished(60000));
    const QString errors = QString::fromUtf8(process.readAllStandardError());
    QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == status, qPrintable(errors));
    QVERIFY2(errors.contains(said), qPrintable(errors));
    QCOMPARE(QImage(picture, "PNG").width() > 300, status == 0);
}

QTEST_GUILESS_MAIN(tst_orbisdial)
#include "tst_orbisdial.moc"
