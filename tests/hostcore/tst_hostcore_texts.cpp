// The translator: languages, fallbacks, what the application takes over.
#include <QDialogButtonBox>
#include <QPushButton>
#include <QtTest>

#include "Change.h"
#include "TestFolder.h"

namespace {

QString text(const char* id) { return Change::tr(id, "NetConnectPlugin"); }

}  // namespace

class TestTexts : public QObject {
    Q_OBJECT

private slots:
    void init() {
        qputenv("ORBISDIAL_LIBRARY_PATH", TEST_LIBRARY);
        QVERIFY(Change::SetLanguage("en"));
    }

    void languages() { QCOMPARE(Change::GetLanguages(), QStringList({"en", "ar", "de", "zh_CN"})); }

    void takesCodes_data() {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("language");  // null: refused
        QTest::newRow("exact") << "de"
                               << "de";
        QTest::newRow("with a country") << "de_AT"
                                        << "de";
        QTest::newRow("locale") << "de_DE.UTF-8@euro"
                                << "de";
        QTest::newRow("hyphen") << "zh-CN"
                                << "zh_CN";
        QTest::newRow("language of a shipped country") << "zh"
                                                       << "zh_CN";
        QTest::newRow("English") << "en_GB"
                                 << "en";
        QTest::newRow("not shipped") << "xx" << QString();
        QTest::newRow("start of a code") << "d" << QString();
        QTest::newRow("empty") << "" << QString();
        QTest::newRow("path") << "../lang/orbisdial_de" << QString();
    }

    void takesCodes() {
        QFETCH(QString, code);
        QFETCH(QString, language);
        QVERIFY(Change::SetLanguage("ar"));
        QCOMPARE(Change::SetLanguage(code), !language.isNull());
        const QString expected = language.isNull() ? "ar" : language;
        QCOMPARE(Change::GetLangName(), expected);
        QCOMPARE(text("IDS_SHARED"), "shared " + expected);
    }

    void fallsBackToEnglish() {
        QVERIFY(Change::SetLanguage("de"));
        QCOMPARE(text("IDS_ONLY_de"), QString("only de"));
        QCOMPARE(text("IDS_ONLY_en"), QString("only en"));
        QCOMPARE(text("IDS_ONLY_ar"), QString());
        QCOMPARE(text(""), QString());
        QCOMPARE(Change::tr("IDS_SHARED", "OtherPlugin"), QString());
    }

    void followsTheLibraryPath() {
        QVERIFY(Change::SetLanguage("de"));
        const TestFolder folder;
        QCOMPARE(text("IDS_SHARED"), QString());
        QCOMPARE(Change::GetLanguages(), QStringList("en"));
        QVERIFY(Change::SetLanguage("en"));
        TestFolder::write(folder.path("library/lang/orbisdial_de.qm"), "damaged");
        QVERIFY(!Change::SetLanguage("de"));
        QCOMPARE(Change::GetLangName(), QString("en"));
        qputenv("ORBISDIAL_LIBRARY_PATH", TEST_LIBRARY);
        QCOMPARE(text("IDS_SHARED"), QString("shared en"));
    }

    void turnsTheLayoutAround() {
        QVERIFY(Change::SetLanguage("ar"));
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
        QVERIFY(Change::SetLanguage("zh_CN"));
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    }

    void translatesQtsOwnDialogs() {
        const auto cancelText = [] {
            return QDialogButtonBox(QDialogButtonBox::Cancel).button(QDialogButtonBox::Cancel)->text().remove('&');
        };
        if (!QFileInfo::exists(QLibraryInfo::location(QLibraryInfo::TranslationsPath) + "/qtbase_de.qm"))
            QSKIP("Qt's translations are not installed");
        QVERIFY(Change::SetLanguage("de"));
        QCOMPARE(cancelText(), QString("Abbrechen"));
        QVERIFY(Change::SetLanguage("en"));
        QCOMPARE(cancelText(), QString("Cancel"));
    }
};

QTEST_MAIN(TestTexts)
#include "tst_hostcore_texts.moc"
