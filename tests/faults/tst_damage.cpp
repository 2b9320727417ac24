// SPDX-License-Identifier: MIT
// A user file that was cut anywhere: what is readable is shown, and the damaged file is kept before it is replaced.

#include "LogicFixture.h"

class tst_damage : public QObject {
    Q_OBJECT

private slots:
    void aCutFile() {
        const QByteArray whole = wholeFile();
        for (int size = 0; size < whole.size(); size += 64) {
            check(whole.left(size));
            if (QTest::currentTestFailed()) qFatal("cut at byte %d", size);
        }
    }

private:
    // As the logic writes it.
    static QByteArray wholeFile() {
        LogicFixture fixture;
        for (int i = 0; i < 5; ++i) {
            DialupProfile profile = LogicFixture::named("name " + QString::number(i), "secret");
            profile.user = QString::fromUtf8("\xc3\xbc<&>\"");  // cuts go through characters and entities too
            fixture.logic()->SaveDialUpProfile(profile);
        }
        fixture.logic()->SetDefaultDialUpProfileName("name 3", true);
        return fixture.user();
    }

    static void check(const QByteArray& cut) {
        LogicFixture fixture;
        TestFolder::write(fixture.userFile(), cut);
        QStringList readable;
        for (int i = 0; i < cut.count("<Profile "); ++i) readable.append("name " + QString::number(i));
        const bool endsInProfile = cut.lastIndexOf("<Profile ") > cut.lastIndexOf("/>");
        if (endsInProfile) readable.removeLast();
        QCOMPARE(fixture.names(), readable);
        QVERIFY(fixture.logic()->LastStorageProblem().line > 0);

        QCOMPARE(fixture.logic()->SaveDialUpProfile(LogicFixture::named("zzz")), 0);
        const QString reason = fixture.logic()->LastStorageProblem().reason.text();
        QCOMPARE(fixture.names(), readable + QStringList("zzz"));
        QCOMPARE(fixture.logic()->DelDialUpProfile("zzz"), 0);
        // The damage is put aside once.
        const QDir data(fixture.path("data"));
        const QStringList kept = data.entryList({"UserProfile.prof.damaged-*"});
        QCOMPARE(kept.size(), cut.isEmpty() ? 0 : 1);
        for (const QString& name : kept) {
            QVERIFY2(reason.contains(data.canonicalPath() + '/' + name), qPrintable(reason));
            QCOMPARE(TestFolder::read(data.filePath(name)), cut);
        }
    }
};

QTEST_GUILESS_MAIN(tst_damage)
#include "tst_damage.moc"
