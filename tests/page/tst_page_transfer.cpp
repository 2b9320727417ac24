// SPDX-License-Identifier: MIT
// The import/export dialog: its tree, its file dialogs, its questions.
#include <QCheckBox>

#include "ExtendDialog.h"
#include "PageFixture.h"

using F = PageFixture;

class tst_page_transfer : public PageTest {
    Q_OBJECT

private slots:
    void dialog() {
        f->functions += "<item name='ALLLIB' value='true'/>";
        f->library = F::profile("b") + F::profile("a");
        f->start();
        f->click("ButtonImportProfile");
        QCOMPARE(offered(), QStringList({"a", "b"}));
        f->click("ButtonImportCancel");
        // The next dialog is the only one to be met.
        f->click("ButtonExportProfile");
        QCOMPARE(f->window->findChildren<ExtendDialog*>().size(), 1);
        QVERIFY(!f->find("ButtonImportBrowse")->isVisible());
        QCOMPARE(offered(), QStringList());
    }

    void rootTicksAll() {
        f->start(F::profile("A") + F::profile("B"));
        f->click("ButtonExportProfile");
        for (Qt::CheckState state : {Qt::Checked, Qt::Unchecked}) {
            tickItem(root());
            for (int i : {0, 1}) QCOMPARE(root()->child(i)->checkState(0), state);
        }
        f->click("ButtonImportOK");  // nothing is ticked: no file dialog, which would be unexpected
    }

    void browsingReplacesTheTree() {
        f->start();
        f->click("ButtonImportProfile");
        QCOMPARE(offered(), QStringList());
        for (const char* name : {"One", "Two"}) {
            browse(F::profile(name));
            QCOMPARE(offered(), QStringList(name));
            tickName(name);
        }
        f->answers.file(QString());
        f->click("ButtonImportBrowse");
        QCOMPARE(offered(), QStringList("Two"));
        f->click("ButtonImportOK");
        QCOMPARE(f->stored(), QStringList("Two"));
        QCOMPARE(f->listed(), QStringList("Two"));
        QVERIFY(f->notify->sent.contains("DF986A92-844C-42b6-A03C-26B837BF1C53 512 0 0"));
    }

    void closingWithoutImportKeepsTheDefault_data() { nameRows("how", {"Cancel", "nothing ticked", "window closed"}); }
    void closingWithoutImportKeepsTheDefault() {
        QFETCH(QString, how);
        f->start(F::profile("Home") + F::profile("Work"), "<Default name='Home' IsUserSet='1'/>");
        f->click("ButtonImportProfile");
        browse(F::profile("X"), "<Default name='Work'/>");
        if (how == "window closed")
            f->find("DialogImportExport")->window()->close();
        else
            f->click(how == "Cancel" ? "ButtonImportCancel" : "ButtonImportOK");
        QString name;
        f->profiles->GetDefaultDialUpProfileName(&name);
        QCOMPARE(name, QString("Home"));
        QCOMPARE(f->combo()->currentText(), QString("Home (Default)"));
    }

    // The opening reads everything again and tells the dialler; an import tells dialler and host. Nothing else does.
    void notifications_data() {
        const Rows<int> row("sent");
        row("export", 1);
        row("import", 3);
        row("import, nothing ticked", 1);
        row("nothing browsed", 1);
    }
    void notifications() {
        const QByteArray what = QTest::currentDataTag();
        f->start(F::profile("Home"));
        if (what == "export") {
            f->answers.file(f->path("out.prof"));
            exportName("Home");
        } else {
            f->click("ButtonImportProfile");
            if (what.startsWith("import")) browse(F::profile("X"));
            if (what == "import") tickName("X");
            f->click("ButtonImportOK");
        }
        QTest::qWait(300);  // what was imported is no news either
        QCOMPARE(f->notify->sent.size(), cell<int>("sent"));
    }

    void eventInTheClashQuestion() {
        for (bool yes : {true, false}) {
            init();
            f->start(F::profile("Home", "phonenumber='own'") + F::profile("Work"));
            f->click("ButtonImportProfile");
            browse(F::profile("Home", "phonenumber='new'") + F::profile("X"));
            tickItem(root());
            f->answers.box(yes ? CommonUtils::FirstButton : CommonUtils::SecondButton, [] { F::changeCard(); });
            f->click("ButtonImportOK");
            QVERIFY(f->answers.texts.value(0).startsWith("Home "));
            QCOMPARE(f->stored(), QStringList({"Home", "Work", "X"}));
            QCOMPARE(f->stored("Home", "phonenumber"), QString(yes ? "new" : "own"));
            QCOMPARE(f->listed(), QStringList({"Home", "Work", "X"}));
        }
    }

    void oneAnswerForTheRemainingClashes_data() {
        const Rows<bool, int> row("ticked", "questions");
        row("ticked", true, 1);
        row("one by one", false, 3);
    }
    void oneAnswerForTheRemainingClashes() {
        QFETCH(bool, ticked);
        QFETCH(int, questions);
        const QByteArray own = "phonenumber='own'", theirs = "phonenumber='new'";
        f->start(F::profile("A", own) + F::profile("B", own) + F::profile("C", own));
        f->click("ButtonImportProfile");
        browse(F::profile("A", theirs) + F::profile("B", theirs) + F::profile("C", theirs));
        tickItem(root());
        QStringList boxes;
        for (int i = 0; i < questions; ++i)
            f->answers.yes([&boxes, ticked] {
                auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())->checkBox();
                boxes.append(box ? box->text() : QString("none"));
                if (box) box->setChecked(ticked);
            });
        f->click("ButtonImportOK");
        QVERIFY(f->answers.allGiven());
        QVERIFY(boxes[0].contains("remaining"));
        if (!ticked) QCOMPARE(boxes, QStringList({boxes[0], boxes[0], "none"}));
        for (const char* name : {"A", "B", "C"}) QCOMPARE(f->stored(name, "phonenumber"), QString("new"));
    }

    void exporting() {
        f->start(F::profile("A") + F::profile("B"));
        const QString file = f->path("out.prof");
        f->answers.file(file);
        exportName("A");
        QCOMPARE(F::names(file), QStringList("A"));
        // A pattern is no name; an existing file is asked about and merged into.
        f->answers.file(f->path("*.prof"));
        f->answers.ok();
        f->answers.file(file);
        f->answers.no();
        f->answers.file(file);
        f->answers.yes();
        exportName("B");
        QVERIFY(f->answers.allGiven());
        QVERIFY(f->answers.texts.value(1).startsWith("out.prof "));
        QCOMPARE(F::names(file), QStringList({"A", "B"}));
        f->answers.file(QString());
        exportName("A");
        QCOMPARE(QDir(f->path("")).entryList({"*.prof"}), QStringList("out.prof"));
        // A name without a suffix gets one, and it is that file that is asked about.
        f->answers.file(f->path("out"));
        f->answers.no();
        f->answers.file(f->path("new"));
        exportName("A");
        QVERIFY(f->answers.allGiven());
        QCOMPARE(QDir(f->path("")).entryList({"*.prof", "new", "out"}, QDir::Files),
                 QStringList({"new.prof", "out.prof"}));
    }

    void endInTheFileDialog() {
        f->start(F::profile("A"));
        f->answers.file(f->path("*.prof"));
        f->answers.yes([this] { f->plugin()->OnDestroy(); });
        exportName("A");
        QCOMPARE(QDir(f->path("")).entryList({"*.prof"}), QStringList());
    }

    void offersAFileThatIsOpened() {
        f->start(F::profile("Mine"), "<Default name='Mine' IsUserSet='1'/>");
        const QString file = f->path("opened.prof");
        F::write(file, F::document(F::profile("One") + F::profile("Two")));
        QCOMPARE(offer(file), QString());
        QCOMPARE(offered(), QStringList({"One", "Two"}));
        tickName("Two");  // which was ticked
        f->click("ButtonImportOK");
        QCOMPARE(f->stored(), QStringList({"Mine", "One"}));
        QCOMPARE(f->combo()->currentText(), QString("Mine (Default)"));
    }

    // It says why, and leaves the user's file and default as they are.
    void offersNothing_data() {
        const Rows<QByteArray, QString> row("content", "said");
        row("no file", "", "IDS_NETCONNECT_MSG_IMPORT_MISSING");
        row("damaged", F::document(F::profile("One")).chopped(20), "opened.prof:1:");
        row("with declarations", "<!DOCTYPE x [<!ENTITY e 'x'>]>" + F::document(F::profile("&e;")), "opened.prof:1:");
        row("no XML",
            "\x7f"
            "ELF",
            "opened.prof:1:");
        row("another document", "<html/>", "IDS_NETCONNECT_MSG_IMPORT_NONE");
        row("during an edit", F::document(F::profile("One")), "IDS_NETCONNECT_TIP_EDIT_OPEN");
        row("not allowed", F::document(F::profile("One")), "IDS_NETCONNECT_MSG_IMPORT_OFF");
    }
    void offersNothing() {
        const QByteArray row = QTest::currentDataTag();
        if (row == "not allowed") f->functions = "<item name='APN' value='true'/>";
        f->start(F::profile("Home") + F::profile("Mine"), "<Default name='Mine' IsUserSet='1'/>");
        const QString file = f->path("opened.prof");
        if (row != "no file") F::write(file, cell<QByteArray>("content"));
        const QByteArray before = F::read(f->userFile());
        if (row == "during an edit") f->click("BtnEditProfile");
        const QString said =
            cell("said").startsWith("IDS") ? Change::tr(cell("said"), "NetConnectPlugin") : cell("said");
        QVERIFY2(offer(file).contains(said), qPrintable(offer(file)));
        QVERIFY(!f->find("DialogImportExport"));
        QCOMPARE(F::read(f->userFile()), before);
        QVERIFY(f->combo()->currentText().startsWith("Mine"));
    }

private:
    QString offer(const QString& file) const {
        QString answer = "not called";
        QMetaObject::invokeMethod(dynamic_cast<QObject*>(f->profiles), ORBISDIAL_OFFER_IMPORT,
                                  Q_RETURN_ARG(QString, answer), Q_ARG(QString, file));
        return answer;
    }

    QTreeWidgetItem* root() const { return f->find<QTreeWidget>("TreeWidgetImportExport")->topLevelItem(0); }
    QStringList offered() const {
        QStringList names;
        for (int i = 0; i < root()->childCount(); ++i) names.append(root()->child(i)->text(0));
        return names;
    }

    void tickName(const QString& name) const { tickItem(root()->child(offered().indexOf(name))); }

    // Chooses a file with this content to import from.
    void browse(const QByteArray& profiles, const QByteArray& defaultElement = QByteArray()) const {
        const QString file = f->path("import/x.prof");
        F::write(file, F::document(profiles, defaultElement));
        f->answers.file(file);
        f->click("ButtonImportBrowse");
    }

    void exportName(const QString& name) const {
        f->click("ButtonExportProfile");
        tickName(name);
        const QPointer<QWidget> dialog = f->find("DialogImportExport");
        f->click("ButtonImportOK");
        QVERIFY(!dialog || !dialog->isVisible());
    }
};

QTEST_MAIN(tst_page_transfer)
#include "tst_page_transfer.moc"
