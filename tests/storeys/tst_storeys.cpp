// SPDX-License-Identifier: MIT
// What the programs without windows load and hold.
#include <QProcess>
#include <QTest>

namespace {

QByteArray outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished() && process.exitCode() == 0 ? process.readAllStandardOutput() : QByteArray();
}

}  // namespace

class tst_storeys : public QObject {
    Q_OBJECT

private slots:
    void loadsNoWindowLibrary_data() {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QByteArray>("lowest");  // which it must load, or ldd said nothing of worth
        QTest::newRow("orbisctl") << ORBISCTL << QByteArray("libhostcorebase");
        QTest::newRow("orbis-presets") << PRESET_TOOL << QByteArray(QT_LIBRARY "Core");
    }
    void loadsNoWindowLibrary() {
        QFETCH(QString, program);
        QFETCH(QByteArray, lowest);
        const QByteArray libraries = outputOf("ldd", {program});
        QVERIFY2(libraries.contains(lowest), libraries);
        for (const char* library : {QT_LIBRARY "Gui", QT_LIBRARY "Widgets", "libhostcore.so"})
            QVERIFY2(!libraries.contains(library), libraries);
    }

    void holdsNoPage() {
        const QByteArray symbols = outputOf(NM, {"-C", ORBISCTL});
        QVERIFY(symbols.contains("NetConnectSettingUILogic::Init"));
        QVERIFY(!symbols.contains("CNetConnectUIService"));
        QVERIFY(!symbols.contains("NetConnectAdvancedSettingDlg"));
    }
};

QTEST_GUILESS_MAIN(tst_storeys)

#include "tst_storeys.moc"
