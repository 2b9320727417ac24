// SPDX-License-Identifier: MIT
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

class tst_hostcore : public QObject {
    Q_OBJECT

private slots:
    void opensWhatItSealed() {
        for (const QByteArray text : {"", "s3cret pass%word", "orbis1:AAAA", "\x01\x7f\x80\xff"}) {
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
        QCOMPARE(CommonUtils::GetSettings("group", "key"), QString());
        for (const QString value : {"true", "", "a, b; c = \"d\" % \\", "\u00e9\u4e2d", " blanks "}) {
            QVERIFY(CommonUtils::SetSettings("group", "key", value));
            QCOMPARE(CommonUtils::GetSettings("group", "key"), value);
        }
        QCOMPARE(CommonUtils::GetSettings("other", "key"), QString());
        QVERIFY(!(QFileInfo(folder.path("config")).permissions() & QFile::Permissions(0x0077)));

        TestFolder::write(folder.path("config/orbisdial.ini"), "[group]\nkey=by,hand\n");
        QCOMPARE(CommonUtils::GetSettings("group", "key"), QString("by,hand"));

        qunsetenv("ORBISDIAL_CONFIG_DIR");
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path("xdg")));
        QVERIFY(CommonUtils::SetSettings("group", "key", "value"));
        QVERIFY(QFileInfo::exists(folder.path("xdg/orbisdial/orbisdial.ini")));
    }

    void findsPlugins() {
        IPluginContainer* container = Startup::GetPluginContainer();
        QObject page, unsearched;
        auto dialler = std::make_unique<QObject>();
        QVERIFY(container->AddPlugin(dialler.get(), "dial", 16401));
        QVERIFY(container->AddPlugin(&page, "page", 1) && container->AddPlugin(&unsearched, QString(), 2));
        QVERIFY(!container->AddPlugin(nullptr, "null", 1) && !container->AddPlugin(&unsearched, "page", 3));
        QCOMPARE(container->FindPlugin("dial", 16401), dialler.get());
        QCOMPARE(container->FindPlugin("dial", 1), nullptr);
        QCOMPARE(container->FindPlugin(QString(), 2), nullptr);
        QCOMPARE(container->GetPluginAt(2), &unsearched);

        dialler.reset();
        QCOMPARE(container->GetPluginCount(), 2);
        QCOMPARE(container->FindPlugin("dial", 16401), nullptr);
        QVERIFY(container->AddPlugin(&page, "dial", 16401) && container->Contains(&page));
        for (QObject* plugin : {&page, &unsearched}) container->RemovePlugin(plugin);
        QVERIFY(!container->Contains(&page));
        QCOMPARE(container->GetPluginCount(), 0);
    }

    void answersMessagesWithoutWindows() {
        QTest::ignoreMessage(QtWarningMsg, "CommonUtils::ShowMessage: there is no QApplication to show a message");
        QCOMPARE(CommonUtils::ShowMessage(QMessageBox::Question, nullptr, "c", "t", "IDS_YES", "IDS_NO"),
                 int(CommonUtils::NoAnswer));
    }

    void changesLanguageWithoutWindows() {
        qputenv("ORBISDIAL_LIBRARY_PATH", TEST_LIBRARY);
        QVERIFY(Change::SetLanguage("ar"));
        QCOMPARE(Change::tr("IDS_SHARED", "NetConnectPlugin"), QString("shared ar"));
    }
};

QTEST_GUILESS_MAIN(tst_hostcore)
#include "tst_hostcore.moc"
