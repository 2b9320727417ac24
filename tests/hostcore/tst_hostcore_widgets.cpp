// SPDX-License-Identifier: MIT
// What the host core library does in an application with windows: the translator (languages,
// fallbacks) and the message box.
#include <QLabel>
#include <QPushButton>
#include <functional>

#include "Change.h"
#include "CommonUtils.h"
#include "ExtendDialog.h"
#include "Rows.h"
#include "TestFolder.h"

namespace {

// Does something with the message box once it is up.
void whenShown(const std::function<void(QMessageBox*)>& action) {
    QTimer::singleShot(0, [=] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box);
        QCOMPARE(box->objectName(), QString("CommonUtils_MessageBox"));
        action(box);
    });
}

int show(const QStringList& labels, QWidget* parent = nullptr) {
    return CommonUtils::ShowMessage(QMessageBox::Information, parent, "caption", "<b>text</b>", labels.value(0),
                                    labels.value(1), labels.value(2), "<i>more</i>");
}

QString text(const char* id) { return Change::tr(id, "NetConnectPlugin"); }

}  // namespace

class tst_hostcore_widgets : public QObject {
    Q_OBJECT

private slots:
    void init() {
        qputenv("ORBISDIAL_LIBRARY_PATH", TEST_LIBRARY);
        QVERIFY(Change::SetLanguage("en"));
    }

    void takesCodes_data() {
        const Rows<QString, QString> row("code", "language");  // null: refused
        row("exact", "de", "de");
        row("locale", "de_DE.UTF-8@euro", "de");
        row("language of a shipped country", "zh", "zh_CN");
        row("not shipped", "xx", {});
        row("path", "../lang/orbisdial_de", {});
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
        QCOMPARE(Change::GetLanguages(), QStringList({"en", "ar", "de", "zh_CN"}));
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

    void answersTheButton() {
        const int answers[] = {1024, 4194304, 1048576};
        const QStringList shown = {"A", "B", "shared en"};  // an ID without a text stands for itself
        for (int i = 0; i < 3; ++i) {
            whenShown([&](QMessageBox* box) {
                for (QAbstractButton* button : box->buttons())
                    if (button->text() == shown[i]) QTest::mouseClick(button, Qt::LeftButton);
            });
            QCOMPARE(show({"A", "B", "IDS_SHARED"}), answers[i]);
            const QStringList labels = shown.mid(0, i + 1);
            // Closed without a button: nobody decided.
            whenShown([](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Escape); });
            QCOMPARE(show(labels), 0);
            whenShown([](QMessageBox* box) { box->close(); });
            QCOMPARE(show(labels), 0);
            whenShown([](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Return); });
            QCOMPARE(show(labels), 1024);
        }
    }

    void parentGoesWhileItIsUp() {
        auto* parent = new QWidget;
        parent->show();
        whenShown([=](QMessageBox* box) {
            QCOMPARE(box->parentWidget(), parent);
            delete parent;
        });
        QCOMPARE(show({"IDS_YES", "IDS_NO"}, parent), 0);
    }

    void defaultButton() {
        const QMap<CommonUtils::MessageAnswer, int> pressed = {{CommonUtils::FirstButton, 1024},
                                                               {CommonUtils::SecondButton, 4194304},
                                                               {CommonUtils::ThirdButton, 1024}};  // not shown
        for (auto wanted = pressed.begin(); wanted != pressed.end(); ++wanted) {
            whenShown([](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Return); });
            QCOMPARE(CommonUtils::ShowMessage(QMessageBox::Question, nullptr, "c", "t", "A", "B", {}, {}, true,
                                              Qt::WindowCloseButtonHint, wanted.key()),
                     wanted.value());
        }
    }

    void hostsOneMainWidget() {
        ExtendDialog dialog(nullptr, Qt::Widget, 1);
        QWidget first, second;
        dialog.AddMainWidget(&first);
        dialog.AddMainWidget(&second);
        QVERIFY(!first.parentWidget() && first.isHidden());
        QCOMPARE(dialog.MainWidget(), &second);
    }

    void showsPlainTexts() {
        whenShown([](QMessageBox* box) {
            QSet<QString> plain;
            for (const QLabel* label : box->findChildren<QLabel*>())
                if (label->textFormat() == Qt::PlainText) plain.insert(label->text());
            QVERIFY(plain.contains("<b>text</b>") && plain.contains("<i>more</i>"));
            box->close();
        });
        show({"IDS_OK"});
    }
};

QTEST_MAIN(tst_hostcore_widgets)
#include "tst_hostcore_widgets.moc"
