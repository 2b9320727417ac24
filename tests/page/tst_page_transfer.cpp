// The import/export dialog: its tree, its file dialogs, its questions.
#include <QLabel>
#include <QTreeWidget>

#include "ExtendDialog.h"
#include "PageFixture.h"

using F = PageFixture;

namespace {

const char Tree[] = "TreeWidgetImportExport";

QTreeWidgetItem* root(const F& f) { return f.find<QTreeWidget>(Tree)->topLevelItem(0); }

QStringList offered(const F& f) {
    QStringList names;
    for (int i = 0; i < root(f)->childCount(); ++i) names.append(root(f)->child(i)->text(0));
    return names;
}

// A click on the item's check box.
void tick(const F& f, QTreeWidgetItem* item) {
    auto* tree = f.find<QTreeWidget>(Tree);
    const QRect row = tree->visualItemRect(item);
    const Qt::CheckState before = item->checkState(0);
    for (int x = row.left() + 2; item->checkState(0) == before && x < row.left() + 40; x += 4)
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(x, row.center().y()));
    QVERIFY(item->checkState(0) != before);
}

void tickName(const F& f, const QString& name) { tick(f, root(f)->child(offered(f).indexOf(name))); }

}  // namespace

class TestPageTransfer : public QObject {
    Q_OBJECT

private slots:
    void dialog() {
        F f;
        f.functions += "<item name='ALLLIB' value='true'/>";
        f.library = F::profile("b") + F::profile("a");
        f.start();
        f.click("ButtonImportProfile");
        auto* frame = qobject_cast<ExtendDialog*>(f.find("DialogImportExport")->window());
        QVERIFY(frame && frame->isVisible());
        QCOMPARE(frame->size(), QSize(456, 373));
        QCOMPARE(frame->windowModality(), Qt::WindowModal);
        QCOMPARE(frame->windowTitle(), Change::tr("IDS_TITLE_IMPORTDLG", "NetConnectPlugin"));
        QVERIFY(f.find("ButtonImportBrowse")->isVisible());
        QCOMPARE(offered(f), QStringList({"a", "b"}));
        f.click("ButtonImportCancel");
        QVERIFY(!frame->isVisible());
        // The next dialog is the only one to be met.
        f.click("ButtonExportProfile");
        QCOMPARE(f.window->findChildren<ExtendDialog*>().size(), 1);
        QVERIFY(!f.find("ButtonImportBrowse")->isVisible());
        QCOMPARE(f.find("DialogImportExport")->window()->windowTitle(),
                 Change::tr("IDS_TITLE_EXPORTDLG", "NetConnectPlugin"));
        QCOMPARE(offered(f), QStringList());
    }

    void rootTicksAll() {
        F f;
        f.start(F::profile("A") + F::profile("B"));
        f.click("ButtonExportProfile");
        tick(f, root(f));
        for (int i : {0, 1}) QCOMPARE(root(f)->child(i)->checkState(0), Qt::Checked);
        tickName(f, "A");
        QCOMPARE(root(f)->checkState(0), Qt::Checked);
        tick(f, root(f));
        for (int i : {0, 1}) QCOMPARE(root(f)->child(i)->checkState(0), Qt::Unchecked);
        f.click("ButtonImportOK");  // nothing is ticked: no file dialog, which would be unexpected
        QVERIFY(!f.find("DialogImportExport")->isVisible());
    }

    void browsingReplacesTheTree() {
        F f;
        TestFolder::write(f.folder.path("one.prof"), F::document(F::profile("One")));
        TestFolder::write(f.folder.path("two.prof"), F::document(F::profile("Two")));
        f.start();
        f.click("ButtonImportProfile");
        QCOMPARE(offered(f), QStringList());
        for (const char* name : {"one", "two"}) {
            f.answers.file(f.folder.path(name + QString(".prof")));
            f.click("ButtonImportBrowse");
            QCOMPARE(offered(f).join(' ').toLower(), QString(name));
            tickName(f, offered(f).first());
        }
        f.answers.file(QString());
        f.click("ButtonImportBrowse");
        QCOMPARE(offered(f), QStringList("Two"));
        f.click("ButtonImportOK");
        QCOMPARE(f.stored(), QStringList("Two"));
        QCOMPARE(f.listed(), QStringList("Two"));
        QVERIFY(f.notify->sent.contains("DF986A92-844C-42b6-A03C-26B837BF1C53 512 0 0"));
    }

    void closingWithoutImportKeepsTheDefault_data() {
        QTest::addColumn<QString>("how");
        for (const char* how : {"cancel", "nothing ticked", "window closed"}) QTest::newRow(how) << QString(how);
    }
    void closingWithoutImportKeepsTheDefault() {
        QFETCH(QString, how);
        F f;
        TestFolder::write(f.folder.path("f.prof"), F::document(F::profile("X"), "<Default name='Work'/>"));
        f.start(F::profile("Home") + F::profile("Work"), "<Default name='Home' IsUserSet='1'/>");
        f.click("ButtonImportProfile");
        f.answers.file(f.folder.path("f.prof"));
        f.click("ButtonImportBrowse");
        if (how == "window closed")
            f.find("DialogImportExport")->window()->close();
        else
            f.click(how == "cancel" ? "ButtonImportCancel" : "ButtonImportOK");
        QString name;
        f.profiles->GetDefaultDialUpProfileName(&name);
        QCOMPARE(name, QString("Home"));
        QCOMPARE(f.combo()->currentText(), QString("Home (Default)"));
    }

    void eventInTheClashQuestion_data() {
        QTest::addColumn<bool>("yes");
        QTest::newRow("yes") << true;
        QTest::newRow("no") << false;
    }
    void eventInTheClashQuestion() {
        QFETCH(bool, yes);
        F f;
        TestFolder::write(f.folder.path("f.prof"),
                          F::document(F::profile("Home", "phonenumber='new'") + F::profile("X")));
        f.start(F::profile("Home", "phonenumber='own'") + F::profile("Work"));
        f.click("ButtonImportProfile");
        f.answers.file(f.folder.path("f.prof"));
        f.click("ButtonImportBrowse");
        tick(f, root(f));
        const auto event = [] { F::changeCard(); };
        yes ? f.answers.yes(event) : f.answers.no(event);
        f.click("ButtonImportOK");
        QCOMPARE(F::sorted(f.stored()), F::sorted({"Home", "Work", "X"}));
        QCOMPARE(f.stored("Home", "phonenumber"), QString(yes ? "new" : "own"));
        QCOMPARE(f.listed(), QStringList({"Home", "Work", "X"}));
    }

    void exporting() {
        F f;
        f.start(F::profile("A") + F::profile("B"));
        const QString file = f.folder.path("out.prof");
        exportNames(&f, {"A"}, [&] { f.answers.file(file); });
        QCOMPARE(F::names(file), QStringList("A"));
        // A pattern is no name; an existing file is asked about and merged into.
        exportNames(&f, {"B"}, [&] {
            f.answers.file(f.folder.path("*.prof"));
            f.answers.ok();
            f.answers.file(file);
            f.answers.no();
            f.answers.file(file);
            f.answers.yes();
        });
        QVERIFY(f.answers.allGiven());
        QVERIFY(f.answers.texts.value(1).startsWith("out.prof "));
        QCOMPARE(F::names(file), QStringList({"A", "B"}));
        exportNames(&f, {"A"}, [&] { f.answers.file(QString()); });
        QCOMPARE(QDir(f.folder.path("")).entryList({"*.prof"}), QStringList("out.prof"));
    }

    void endInTheFileDialog() {
        F f;
        f.start(F::profile("A"));
        exportNames(&f, {"A"}, [&] {
            f.answers.file(f.folder.path("*.prof"));
            f.answers.yes([&f] { f.plugin()->OnDestroy(); });
        });
        QCOMPARE(QDir(f.folder.path("")).entryList({"*.prof"}), QStringList());
    }

private:
    template <class Prepare>
    void exportNames(F* f, const QStringList& names, Prepare prepare) {
        f->click("ButtonExportProfile");
        for (const QString& name : names) tickName(*f, name);
        prepare();
        const QPointer<QWidget> dialog = f->find("DialogImportExport");
        f->click("ButtonImportOK");
        QVERIFY(!dialog || !dialog->isVisible());
    }
};

QTEST_MAIN(TestPageTransfer)
#include "tst_page_transfer.moc"
