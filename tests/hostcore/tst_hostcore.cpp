// What the host core library does without a window: sealed texts, settings, places, the container.
#include <QtTest>
#include <memory>

#include "Change.h"
#include "CommonUtils.h"
#include "Startup.h"
#include "TestFolder.h"

namespace {

using CryptOperation = void (*)(const char*, const char*, char*&);

// The result as bytes; null when there is none.
QByteArray run(CryptOperation operation, const char* data, const char* key) {
    char preset[] = "preset";
    char* out = preset;
    operation(data, key, out);
    if (!out) return QByteArray();
    const QByteArray result(out);
    CommonUtils::CryptLocalFree(out);
    return result;
}

const char Key[] = "0123456789abcdefghijklmno";

}  // namespace

class TestHostCore : public QObject {
    Q_OBJECT

private slots:
    void opensWhatItSealed_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("password") << QByteArray("s3cret pass%word");
        QTest::newRow("looks sealed") << QByteArray("orbis1:AAAA");
        QTest::newRow("any byte") << QByteArray("\x01\x7f\x80\xff");
        QTest::newRow("long") << QByteArray(10000, 'x');
    }

    void opensWhatItSealed() {
        QFETCH(QByteArray, text);
        const QByteArray sealed = run(CommonUtils::Encrypt, text, Key);
        QVERIFY(sealed.startsWith("orbis1:"));
        QVERIFY(std::all_of(sealed.begin(), sealed.end(), [](char c) { return c > ' ' && c < 127; }));
        QVERIFY(text.isEmpty() || !sealed.contains(text));
        QVERIFY(run(CommonUtils::Encrypt, text, Key) != sealed);
        const QByteArray opened = run(CommonUtils::Decrypt, sealed, Key);
        QVERIFY(!opened.isNull());
        QCOMPARE(opened, text);
        QVERIFY(run(CommonUtils::Decrypt, sealed, "another key").isNull());
    }

    void refusesWhatWasTamperedWith() {
        const int markLength = 7;
        const QByteArray sealed = run(CommonUtils::Encrypt, "password", Key);
        for (int i = markLength; i < sealed.size(); ++i) {
            QByteArray changed = sealed;
            changed[i] = changed.at(i) == 'A' ? 'B' : 'A';
            QVERIFY2(run(CommonUtils::Decrypt, changed, Key).isNull(), changed);
            QVERIFY2(run(CommonUtils::Decrypt, sealed.left(i), Key).isNull(), sealed.left(i));
        }
        for (const char* tail : {"A", "=", " ", "AAAA", "\n"})
            QVERIFY2(run(CommonUtils::Decrypt, sealed + tail, Key).isNull(), tail);
    }

    void leavesOtherTextsAlone() {
        for (const char* text : {"", "plain", "orbis1", "Orbis1:AAAA", " orbis1:AAAA", "orbis2:AAAA"}) {
            const QByteArray opened = run(CommonUtils::Decrypt, text, Key);
            QVERIFY2(!opened.isNull() && opened == text, text);
        }
    }

    void nullArgumentsGiveNull() {
        for (CryptOperation operation : {&CommonUtils::Encrypt, &CommonUtils::Decrypt}) {
            QVERIFY(run(operation, nullptr, Key).isNull());
            QVERIFY(run(operation, "text", nullptr).isNull());
        }
        CommonUtils::CryptLocalFree(nullptr);
    }

    void keepsSettings() {
        const TestFolder folder;
        QCOMPARE(CommonUtils::GetSettings("ConnectionSetting", "load"), QString());
        const QStringList values = {"true", "", "a, b; c = \"d\" % \\", QString::fromUtf8("é中"), " blanks "};
        for (const QString& value : values) {
            QVERIFY(CommonUtils::SetSettings("ConnectionSetting", "load", value));
            QCOMPARE(CommonUtils::GetSettings("ConnectionSetting", "load"), value);
        }
        QCOMPARE(CommonUtils::GetSettings("other", "load"), QString());
        const QFile::Permissions forOthers(0x0077);
        QVERIFY(!(QFileInfo(folder.path("config")).permissions() & forOthers));
    }

    void readsSettingsWrittenByHand() {
        const TestFolder folder;
        TestFolder::write(folder.path("config/orbisdial.ini"), "[ConnectionSetting]\nload=false,true\nplain=true\n");
        QCOMPARE(CommonUtils::GetSettings("ConnectionSetting", "load"), QString("false,true"));
        QCOMPARE(CommonUtils::GetSettings("ConnectionSetting", "plain"), QString("true"));
    }

    void saysWhenSettingsCantBeKept() {
        const TestFolder folder;
        TestFolder::write(folder.path("file"), "in the way");
        QVERIFY(QDir().mkpath(folder.path("config/orbisdial.ini")));
        for (const char* place : {"file", "file/below", "config"}) {
            qputenv("ORBISDIAL_CONFIG_DIR", QFile::encodeName(folder.path(place)));
            QVERIFY2(!CommonUtils::SetSettings("group", "key", "value"), place);
        }
    }

    void keepsSettingsInTheUsersFolder() {
        const TestFolder folder;
        qunsetenv("ORBISDIAL_CONFIG_DIR");
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path("xdg")));
        QVERIFY(CommonUtils::SetSettings("group", "key", "value"));
        QVERIFY(QFileInfo::exists(folder.path("xdg/orbisdial/orbisdial.ini")));
    }

    void findsTheLibraryPath() {
        const QString beside = QFileInfo(HOSTCORE_FOLDER).canonicalFilePath() + "/orbisdial";
        qunsetenv("ORBISDIAL_LIBRARY_PATH");
        QCOMPARE(CommonUtils::GetPluginLibraryPath(), beside);
        qputenv("ORBISDIAL_LIBRARY_PATH", "/some where/else/");
        QCOMPARE(CommonUtils::GetPluginLibraryPath(), QString("/some where/else"));
        qputenv("ORBISDIAL_LIBRARY_PATH", "");
        QCOMPARE(CommonUtils::GetPluginLibraryPath(), beside);
    }

    void findsPlugins() {
        IPluginContainer* container = Startup::GetPluginContainer();
        QCOMPARE(container, Startup::GetPluginContainer());
        QObject page;
        QObject unsearched;
        auto dialler = std::make_unique<QObject>();
        QVERIFY(container->AddPlugin(dialler.get(), "dial", 16401));
        QVERIFY(container->AddPlugin(&page, "page", 1));
        QVERIFY(container->AddPlugin(&unsearched, QString(), 2));
        QVERIFY(!container->AddPlugin(nullptr, "null", 1));
        QVERIFY(!container->AddPlugin(&unsearched, "page", 3));

        QCOMPARE(container->FindPlugin("dial", 16401), dialler.get());
        QCOMPARE(container->FindPlugin("dial", 1), nullptr);
        QCOMPARE(container->FindPlugin(QString(), 2), nullptr);
        QCOMPARE(container->GetPluginAt(2), &unsearched);
        QCOMPARE(container->GetPluginAt(-1), nullptr);
        QCOMPARE(container->GetKindAt(3), 0);

        dialler.reset();
        QCOMPARE(container->GetPluginCount(), 2);
        QCOMPARE(container->FindPlugin("dial", 16401), nullptr);
        QCOMPARE(container->GetClassIdAt(0), QString("page"));
        QVERIFY(container->Contains(&page));
        QVERIFY(container->AddPlugin(&page, "dial", 16401));
        container->RemovePlugin(&page);
        container->RemovePlugin(&unsearched);
        QVERIFY(!container->Contains(&page));
        QCOMPARE(container->GetPluginCount(), 0);
    }

    void answersMessagesWithoutWindows() {
        QTest::ignoreMessage(QtWarningMsg, "CommonUtils::ShowMessage: there is no QApplication to show a message");
        QCOMPARE(CommonUtils::ShowMessage(QMessageBox::Question, nullptr, "c", "t", "IDS_YES", "IDS_NO"),
                 int(CommonUtils::SecondButton));
    }

    void changesLanguageWithoutWindows() {
        qputenv("ORBISDIAL_LIBRARY_PATH", TEST_LIBRARY);
        QVERIFY(Change::SetLanguage("ar"));
        QCOMPARE(Change::tr("IDS_SHARED", "NetConnectPlugin"), QString("shared ar"));
    }
};

QTEST_GUILESS_MAIN(TestHostCore)
#include "tst_hostcore.moc"
