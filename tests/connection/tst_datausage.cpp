// SPDX-License-Identifier: MIT
// What each card moved, counted by one program and by several, in a file that may be damaged.
#include <sys/stat.h>
#include <unistd.h>

#include "DataConnection.h"
#include "DataUsage.h"
#include "Rows.h"
#include "TestFolder.h"

namespace {

const QString Card = "262011234567890";
const QDate Day(2026, 11, 30);

DataConnection up(quint64 received, quint64 sent, bool isOwn = true) {
    DataConnection connection;
    connection.state = VRKS_CONNECTION_UP;
    connection.interfaceName = "ppp0";
    connection.isOwn = isOwn;
    connection.since = isOwn ? 1000 : 0;
    connection.received = received;
    connection.sent = sent;
    return connection;
}

// As the SDK tells of it: the last counts, no interface.
DataConnection down(quint64 received, quint64 sent) {
    DataConnection connection;
    connection.received = received;
    connection.sent = sent;
    return connection;
}

}  // namespace

class tst_datausage : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_Root = std::make_unique<QTemporaryDir>();
        m_File = m_Root->path() + "/usage.json";
        QVERIFY(QDir().mkpath(m_Root->path() + "/net"));
    }

    void countsToItsEnd() {
        DataUsage usage = make();
        QVERIFY(usage.count(up(100, 10), Card, Day));
        QVERIFY(usage.count(up(100, 10), Card, Day));
        QVERIFY(usage.count(up(250, 20), QString(), Day));  // the card was pulled
        QCOMPARE(usage.monthWith(up(260, 21), Card, Day).all(), quint64(281));
        compareMonth(250, 20);
        QVERIFY(usage.count(down(300, 30), QString(), Day));
        QVERIFY(usage.count(down(300, 30), Card, Day));
        compareMonth(300, 30);
        QVERIFY(usage.count(up(7, 1), Card, Day));
        compareMonth(300, 30);  // the simulated one: the same process, interface and moment are the same connection
        DataConnection next = up(7, 1);
        next.since = 2000;
        QVERIFY(usage.count(next, Card, Day));
        compareMonth(307, 31);
    }

    void keepsMonthsAndCardsApart() {
        DataUsage usage = make();
        usage.count(up(100, 0), Card, Day);
        usage.count(up(300, 0), Card, Day.addDays(1));
        compareMonth(100, 0);
        QCOMPARE(usage.month(Card, Day.addDays(1)).received, quint64(200));
        QCOMPARE(usage.month("310260123456789", Day).all(), quint64(0));
    }

    // Another modem may be chosen meanwhile, and the card be known a moment after the connection.
    void countsToTheCardItGoesThrough() {
        const QString chosen = "310260123456789";
        DataUsage usage = make();
        DataConnection connection = up(100, 0);
        QVERIFY(usage.count(connection, Card, Day));
        connection.imsi = Card;
        connection.received = 300;
        QCOMPARE(connection.card(), Card);
        QVERIFY(usage.count(connection, chosen, Day));
        QVERIFY(usage.count(down(400, 0), chosen, Day));
        compareMonth(400, 0);
        QCOMPARE(make().month(chosen, Day).all(), quint64(0));
    }

    void tellsItsMonths() {
        DataUsage usage = make();
        usage.count(up(100, 0), Card, Day);
        usage.count(up(300, 0), Card, Day.addDays(1));
        const QMap<QString, UsageTotals> months = usage.months(up(350, 5), Card, Day.addDays(1));
        QCOMPARE(months.keys(), QStringList({"2026-11", "2026-12"}));
        QCOMPARE(months["2026-11"].all(), quint64(100));
        QCOMPARE(months["2026-12"].received, quint64(250));
        QCOMPARE(usage.months(down(350, 5), Card, Day)["2026-12"].received, quint64(200));
    }

    // On an interface of the kernel's every program sees the same counters.
    void severalProgramsCountOnce() {
        setInterface(7, 5000, 500);  // moved before the connection
        DataUsage dialling = make(), window = make();
        QVERIFY(window.count(up(5000, 500, false), Card, Day));
        QVERIFY(dialling.count(up(0, 0), Card, Day));
        setInterface(7, 5100, 510);
        QVERIFY(window.count(up(5100, 510, false), Card, Day));
        QVERIFY(dialling.count(up(100, 10), Card, Day));
        setInterface(7, 5400, 540);
        QCOMPARE(make().monthWith(up(400, 40), Card, Day).all(), quint64(440));
        QVERIFY(dialling.count(up(400, 40), Card, Day));
        QVERIFY(window.count(up(5400, 540, false), Card, Day));
        QVERIFY(window.count(down(5450, 545), Card, Day));
        QVERIFY(dialling.count(down(450, 45), Card, Day));
        compareMonth(450, 45);
    }

    // A command that ends a connection meets it once.
    void meetsAnothersConnection_data() {
        const Rows<int, int> row("seconds", "counted");
        row("unknown", -1, 0);
        row("new", 1, 0);
        row("settled", 10, 3000);
    }
    void meetsAnothersConnection() {
        setInterface(7, 3000, 0);
        DataConnection connection = up(3000, 0, false);
        connection.seconds = cell<int>("seconds");
        DataUsage usage = make();
        QVERIFY(usage.count(connection, Card, Day));
        compareMonth(quint64(cell<int>("counted")), 0);
        QVERIFY(usage.count(down(3500, 0), Card, Day));
        compareMonth(3500, 0);
    }

    // What was moved while no program looked is counted by the one that meets the connection.
    void countsOnWhereOthersLeft() {
        setInterface(7, 1000, 100);
        make().count(up(1000, 100), Card, Day);
        setInterface(7, 3000, 300);
        DataUsage usage = make();
        usage.count(up(3000, 300, false), Card, Day);
        usage.count(up(3000, 300, false), Card, Day);
        compareMonth(3000, 300);
        setInterface(8, 50, 5);  // the next connection's interface of the same name
        usage.count(up(50, 5, false), Card, Day);
        usage.count(down(60, 6), Card, Day);
        compareMonth(3060, 306);
    }

    // An interface that lives on counts on, whoever uses it.
    void leavesOthersBytesOut() {
        setInterface(7, 1000, 0);
        make().count(up(1000, 0), Card, Day);
        setInterface(7, 9000, 0);
        make().count(up(0, 0), Card, Day);
        setInterface(7, 9500, 0);
        DataUsage usage = make();
        usage.count(up(500, 0), Card, Day);
        compareMonth(1500, 0);
    }

    void warnsOnce() {
        DataUsage usage = make();
        QCOMPARE(usage.takeWarning(Card, Day), 0);
        QVERIFY(usage.setLimit(Card, 1000));
        const QVector<QPair<int, int>> steps = {{799, 0}, {800, 80}, {900, 0}, {1000, 100}, {5000, 0}};
        for (const auto& [bytes, percent] : steps) {
            usage.count(up(quint64(bytes), 0), Card, Day);
            QCOMPARE(usage.takeWarning(Card, Day), percent);
            QCOMPARE(make().takeWarning(Card, Day), 0);
        }
        QVERIFY(usage.setLimit(Card, 6000));
        QCOMPARE(usage.takeWarning(Card, Day), 80);
        usage.count(up(11500, 0), Card, Day.addDays(1));
        QCOMPARE(usage.takeWarning(Card, Day.addDays(1)), 100);
        QCOMPARE(usage.limit(Card), quint64(6000));
        QVERIFY(usage.setLimit(Card, 0));
        QCOMPARE(usage.takeWarning(Card, Day), 0);
    }

    void isTheUsersAlone() {
        QVERIFY(make().count(up(1, 1), Card, Day));
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(m_File).constData(), &status), 0);
        QCOMPARE(int(status.st_mode & 0777), 0600);
        const QByteArray content = TestFolder::read(m_File);
        QVERIFY(!content.contains(Card.toLatin1()) && content.contains("2026-11"));
        QCOMPARE(QDir(m_Root->path()).entryList(QDir::Files), QStringList("usage.json"));
    }

    void keepsTwoYears() {
        DataUsage usage = make();
        for (int month = 0; month < 30; ++month) usage.count(up(quint64(month + 1), 0), Card, Day.addMonths(month));
        QCOMPARE(usage.month(Card, Day.addMonths(5)).all(), quint64(0));
        QCOMPARE(usage.month(Card, Day.addMonths(6)).all(), quint64(1));
        QCOMPARE(usage.month(Card, Day.addMonths(29)).all(), quint64(1));
    }

    void damage_data() {
        const Rows<QByteArray> row("content");
        row("empty", "");
        row("torn", "{\"key\": \"AAAA");
        row("no key", "{\"cards\": {}}");
        row("too large", QByteArray((1 << 20) + 1, ' '));
    }

    void damage() {
        QFETCH(QByteArray, content);
        TestFolder::write(m_File, content);
        DataUsage usage = make();
        QVERIFY(!usage.isReadable());
        QCOMPARE(usage.month(Card, Day).all(), quint64(0));
        QVERIFY(usage.count(up(100, 10), Card, Day));
        QVERIFY(usage.isReadable());
        compareMonth(100, 10);
        const QStringList kept = QDir(m_Root->path()).entryList({"usage.json.damaged-*"});
        QCOMPARE(kept.size(), 1);
        QCOMPARE(TestFolder::read(m_Root->path() + '/' + kept.first()), content);
    }

    void oddNumbers() {
        DataUsage usage = make();
        usage.count(up(100, 10), Card, Day);
        QByteArray content = TestFolder::read(m_File);
        TestFolder::write(m_File, content.replace(": 100", ": -1e300").replace(": 10", ": 1e300"));
        const UsageTotals month = make().month(Card, Day);
        QCOMPARE(month.received, quint64(0));
        QVERIFY(month.sent < quint64(1) << 60);
    }

    void makesUpForWhatCouldNotBeWritten() {
        if (::geteuid() == 0) QSKIP("root may write everywhere");
        DataUsage usage = make();
        QVERIFY(usage.count(up(100, 10), Card, Day));
        ::chmod(QFile::encodeName(m_Root->path()).constData(), 0500);
        const bool isCounted = usage.count(up(200, 20), Card, Day);
        ::chmod(QFile::encodeName(m_Root->path()).constData(), 0700);
        QVERIFY(!isCounted);
        QVERIFY(usage.count(down(300, 30), Card, Day));
        compareMonth(300, 30);
    }

private:
    DataUsage make() const { return DataUsage(m_File, m_Root->path() + "/net"); }

    void setInterface(int index, int received, int sent) const {
        const QString folder = m_Root->path() + "/net/ppp0/";
        TestFolder::write(folder + "ifindex", QByteArray::number(index) + '\n');
        TestFolder::write(folder + "statistics/rx_bytes", QByteArray::number(received) + '\n');
        TestFolder::write(folder + "statistics/tx_bytes", QByteArray::number(sent) + '\n');
    }

    void compareMonth(quint64 received, quint64 sent) const {
        const UsageTotals month = make().month(Card, Day);
        QCOMPARE(month.received, received);
        QCOMPARE(month.sent, sent);
    }

    std::unique_ptr<QTemporaryDir> m_Root;
    QString m_File;
};

QTEST_GUILESS_MAIN(tst_datausage)
#include "tst_datausage.moc"
