// What the host core library does in an application with windows: the translator (languages, fallbacks, what the
// application takes over), the message box, dialog frame, centring and elided captions.
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <functional>

#include "Change.h"
#include "CommonUtils.h"
#include "ExtendDialog.h"
#include "ExtendLineEdit.h"
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

class TestWidgets : public QObject {
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
        row("hyphen", "zh-CN", "zh_CN");
        row("language of a shipped country", "zh", "zh_CN");
        row("English", "en_GB", "en");
        row("not shipped", "xx", {});
        row("start of a code", "d", {});
        row("empty", "", {});
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

    void turnsTheLayoutAround() {
        for (const char* code : {"ar", "zh_CN"}) {
            QVERIFY(Change::SetLanguage(code));
            QCOMPARE(QGuiApplication::isRightToLeft(), *code == 'a');
        }
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

    void answersTheButton_data() {
        const Rows<QStringList, QString, int> row("labels", "clicked", "answer");
        const QStringList three = {"IDS_YES", "IDS_NO", "IDS_SHARED"};
        row("none given", {}, "IDS_OK", 1024);
        row("first of two", {"IDS_YES", "IDS_NO"}, "IDS_YES", 1024);
        row("second of two", {"IDS_YES", "IDS_NO"}, "IDS_NO", 4194304);
        row("third of three, translated", three, "shared en", 1048576);
        row("first left out", {"", "IDS_NO"}, "IDS_NO", 4194304);
    }

    void answersTheButton() {
        QFETCH(QStringList, labels);
        QFETCH(QString, clicked);
        const int count = qMax(1, labels.size() - labels.count(QString()));
        whenShown([=](QMessageBox* box) {
            QCOMPARE(box->buttons().size(), count);
            for (QAbstractButton* button : box->buttons())
                if (button->text() == clicked) return QTest::mouseClick(button, Qt::LeftButton);
            QFAIL("no such button");
        });
        QTEST(show(labels), "answer");
    }

    void answersWithoutTheMouse() {
        const QPair<QStringList, int> rows[] = {{{"A"}, 1024}, {{"A", "B"}, 4194304}, {{"A", "B", "C"}, 1048576}};
        for (const auto& [labels, dismissed] : rows) {
            whenShown([](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Escape); });
            QCOMPARE(show(labels), dismissed);
            whenShown([](QMessageBox* box) { box->close(); });
            QCOMPARE(show(labels), dismissed);
            whenShown([](QMessageBox* box) { box->accept(); });
            QCOMPARE(show(labels), dismissed);
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
        QCOMPARE(show({"IDS_YES", "IDS_NO"}, parent), 4194304);
    }

    void showsPlainTexts() {
        whenShown([](QMessageBox* box) {
            QCOMPARE(box->windowTitle(), QString("caption"));
            QCOMPARE(box->icon(), QMessageBox::Information);
            QSet<QString> plain;
            for (const QLabel* label : box->findChildren<QLabel*>())
                if (label->textFormat() == Qt::PlainText) plain.insert(label->text());
            QVERIFY(plain.contains("<b>text</b>") && plain.contains("<i>more</i>"));
            box->close();
        });
        show({"IDS_OK"});
    }

    void centres() {
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        QWidget parent;
        parent.setGeometry(QRect(screen.topLeft() + QPoint(200, 200), QSize(300, 200)));
        QWidget window(&parent, Qt::Dialog);
        window.resize(100, 50);
        CommonUtils::MoveCentre(&window);
        QVERIFY((window.frameGeometry().center() - screen.center()).manhattanLength() <= 2);

        parent.show();
        CommonUtils::MoveCentre(&window);
        QVERIFY((window.frameGeometry().center() - parent.frameGeometry().center()).manhattanLength() <= 2);

        parent.move(screen.topLeft() - QPoint(140, 90));
        CommonUtils::MoveCentre(&window);
        QVERIFY(screen.contains(window.frameGeometry()));
        CommonUtils::MoveCentre(nullptr);
    }

    void hostsOneMainWidget() {
        ExtendDialog dialog(nullptr, Qt::WindowCloseButtonHint, 1);
        auto first = std::make_unique<ExtendLineEdit>();
        for (QWidget* widget : {static_cast<QWidget*>(first.get()), static_cast<QWidget*>(nullptr)})
            dialog.AddMainWidget(widget);
        QCOMPARE(dialog.MainWidget(), first.get());

        auto* second = new QWidget;
        dialog.AddMainWidget(second);
        QCOMPARE(first->parentWidget(), nullptr);
        QVERIFY(first->isHidden());
        dialog.resize(456, 373);
        dialog.show();
        QCOMPARE(second->geometry(), dialog.rect());
        delete second;
        QCOMPARE(dialog.MainWidget(), nullptr);
    }

    void elides() {
        QCheckBox box;
        box.setText("Ask for user name and password");
        const QString full = box.text();
        const int width = QFontMetrics(box.font()).boundingRect(full).width();
        box.setToolTip("old");
        CommonUtils::setElidedTextForWidgetText(&box, width, Qt::ElideRight);
        QCOMPARE(box.text(), full);
        QCOMPARE(box.toolTip(), QString());

        CommonUtils::setElidedTextForWidgetText(&box, width - 1, Qt::ElideRight);
        QCOMPARE(box.text(), QFontMetrics(box.font()).elidedText(full, Qt::ElideRight, width - 1));
        QVERIFY(box.text() != full);
        QCOMPARE(box.toolTip(), full);
        CommonUtils::setElidedTextForWidgetText(&box, width - 1, Qt::ElideRight);
        QCOMPARE(box.toolTip(), QString());

        QGroupBox group(full);
        CommonUtils::setElidedTextForWidgetTitle(&group, width / 2, Qt::ElideMiddle);
        QCOMPARE(group.title(), QFontMetrics(group.font()).elidedText(full, Qt::ElideMiddle, width / 2));
        QCOMPARE(group.toolTip(), full);

        const QRegularExpression null(R"(\.h: setElidedTextForWidgetTitle: \d+: Exit NULL == pChildWidget$)");
        QTest::ignoreMessage(QtDebugMsg, null);
        CommonUtils::setElidedTextForWidgetTitle(static_cast<QGroupBox*>(nullptr), 10, Qt::ElideRight);
    }
};

QTEST_MAIN(TestWidgets)
#include "tst_hostcore_widgets.moc"
