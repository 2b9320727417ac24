// Data connections of the SDK, dialled by the real NetworkManager over scripted modems.
#include <QElapsedTimer>
#include <QProcess>
#include <QtTest>

#include "Rows.h"
#include "Stack.h"
#include "vrks.h"

class TestDialling : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QVERIFY(m_Stack.plug("gsm", {"GSM"}));
        QTRY_COMPARE(status(), VRKS_DEV_STATUS_READY);
    }

    void comesUpAndGoesDown() {
        QElapsedTimer timer;
        timer.start();
        QVERIFY(dial());
        QTRY_VERIFY2(connection().state == VRKS_CONNECTION_UP, qPrintable(shown()));
        qDebug() << timer.elapsed() << shown() << Stack::lastPppdCall();
        QVERIFY(hangUp());
        QTRY_VERIFY2(connection().state == VRKS_CONNECTION_DOWN, qPrintable(shown()));
        qDebug() << shown();
    }

private:
    static int status() {
        int status = -1;
        VRKS_DevSrv_GetDevStatus(&status);
        return status;
    }

    static VRKS_Connection connection() {
        VRKS_Connection record{};
        record.size = sizeof record;
        VRKS_NetConnectSrv_GetConnection(&record);
        return record;
    }

    static QString shown() {
        const VRKS_Connection now = connection();
        return QString("state %1 step %2 failure %3 %4 %5 %6 %7 %8 used by '%9'")
            .arg(now.state)
            .arg(now.step)
            .arg(now.failure)
            .arg(now.words)
            .arg(now.name)
            .arg(now.interfaceName, now.address, now.dns[0], now.usedBy);
    }

    static bool dial() {
        VRKS_DialRequest request{};
        request.size = sizeof request;
        request.name = "Home";
        request.apn = "internet.example";
        request.user = "ann";
        request.password = "secret";
        return VRKS_NetConnectSrv_Dial(&request) == 0;
    }

    static bool hangUp() { return VRKS_NetConnectSrv_HangUp() == 0; }

    Stack m_Stack;
};

QTEST_GUILESS_MAIN(TestDialling)
#include "tst_dialling.moc"
