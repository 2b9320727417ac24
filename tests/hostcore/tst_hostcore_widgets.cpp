// The host core library's message box, dialog frame, centring and elided captions.
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QtTest>
#include <functional>

#include "CommonUtils.h"
#include "ExtendDialog.h"
#include "ExtendLineEdit.h"

namespace {

QStringList traces;

void keepTrace(QtMsgType, const QMessageLogContext&, const QString& text) { traces << text; }

// Does something with the message box once it is up.
void whenShown(const std::function<void(QMessageBox*)>& action) {
    QTimer::singleShot(0, [=] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box);
        QCOMPARE(box->objectName(), QString("CommonUtils_MessageBox"));
        action(box);
    });
}

QAbstractButton* buttonNamed(const QMessageBox* box, const QString& text) {
    for (QAbstractButton* button : box->buttons())
        if (button->text() == text) return button;
    return nullptr;
}

int show(const QStringList& labels, QWidget* parent = nullptr) {
    return CommonUtils::ShowMessage(QMessageBox::Information, parent, "caption", "<b>text</b>", labels.value(0),
                                    labels.value(1), labels.value(2), "<i>more</i>");
}

}  // namespace

class TestWidgets : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("ORBISDIAL_LIBRARY_PATH", TEST_LIBRARY); }

    void answersTheButton_data() {
        QTest::addColumn<QStringList>("labels");
        QTest::addColumn<QString>("clicked");
        QTest::addColumn<int>("answer");
        const QStringList two = {"IDS_YES", "IDS_NO"};
        const QStringList three = {"IDS_YES", "IDS_NO", "IDS_SHARED"};
        QTest::newRow("only") << QStringList("IDS_OK") << "IDS_OK" << 1024;
        QTest::newRow("none given") << QStringList() << "IDS_OK" << 1024;
        QTest::newRow("first of two") << two << "IDS_YES" << 1024;
        QTest::newRow("second of two") << two << "IDS_NO" << 4194304;
        QTest::newRow("first of three") << three << "IDS_YES" << 1024;
        QTest::newRow("third of three, translated") << three << "shared en" << 1048576;
        QTest::newRow("first left out") << QStringList({"", "IDS_NO"}) << "IDS_NO" << 4194304;
    }

    void answersTheButton() {
        QFETCH(QStringList, labels);
        QFETCH(QString, clicked);
        const int count = qMax(1, labels.size() - labels.count(QString()));
        whenShown([=](QMessageBox* box) {
            QCOMPARE(box->buttons().size(), count);
            QAbstractButton* button = buttonNamed(box, clicked);
            QVERIFY(button);
            QTest::mouseClick(button, Qt::LeftButton);
        });
        QTEST(show(labels), "answer");
    }

    void answersWithoutTheMouse_data() {
        QTest::addColumn<QStringList>("labels");
        QTest::addColumn<int>("dismissed");
        QTest::newRow("one") << QStringList("A") << 1024;
        QTest::newRow("two") << QStringList({"A", "B"}) << 4194304;
        QTest::newRow("three") << QStringList({"A", "B", "C"}) << 1048576;
    }

    void answersWithoutTheMouse() {
        QFETCH(QStringList, labels);
        QFETCH(int, dismissed);
        whenShown([](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Escape); });
        QCOMPARE(show(labels), dismissed);
        whenShown([](QMessageBox* box) { box->close(); });
        QCOMPARE(show(labels), dismissed);
        whenShown([](QMessageBox* box) { box->accept(); });
        QCOMPARE(show(labels), dismissed);
        whenShown([](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Return); });
        QCOMPARE(show(labels), 1024);
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
            for (const char* text : {"<b>text</b>", "<i>more</i>"}) {
                const auto labels = box->findChildren<QLabel*>();
                const auto label = std::find_if(labels.begin(), labels.end(),
                                                [=](const QLabel* candidate) { return candidate->text() == text; });
                QVERIFY(label != labels.end());
                QCOMPARE((*label)->textFormat(), Qt::PlainText);
            }
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
        QCOMPARE(dialog.property("widgetType").toInt(), 1);
        auto first = std::make_unique<ExtendLineEdit>();
        dialog.AddMainWidget(first.get());
        dialog.AddMainWidget(first.get());
        dialog.AddMainWidget(nullptr);
        QCOMPARE(dialog.MainWidget(), first.get());
        QCOMPARE(first->parentWidget(), &dialog);

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
    }

    void tracesElision() {
        QCheckBox box;
        traces.clear();
        const QtMessageHandler before = qInstallMessageHandler(keepTrace);
        CommonUtils::setElidedTextForWidgetText(&box, 10, Qt::ElideRight);
        CommonUtils::setElidedTextForWidgetTitle(static_cast<QGroupBox*>(nullptr), 10, Qt::ElideRight);
        qInstallMessageHandler(before);

        const QStringList ends = {"Text: \\d+: Enter", "Text: \\d+: Exit", "Title: \\d+: Enter",
                                  "Title: \\d+: Exit NULL == pChildWidget"};
        QCOMPARE(traces.size(), ends.size());
        for (int i = 0; i < ends.size(); ++i) {
            const QRegularExpression form(
                "^\\d\\d:\\d\\d:\\d\\d:\\d{3}: [^:]*CommonUtilsElide\\.h: "
                "setElidedTextForWidget" +
                ends.at(i) + "$");
            QVERIFY2(form.match(traces.at(i)).hasMatch(), qPrintable(traces.at(i)));
        }
    }
};

QTEST_MAIN(TestWidgets)
#include "tst_hostcore_widgets.moc"
