// SPDX-License-Identifier: MIT
// The presets of the world in the host's window, with the real plug-ins and a small library.
#include <vrks_simulated.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>
#include <memory>

#include "Change.h"
#include "ConnectionView.h"
#include "Host.h"
#include "Plugins.h"
#include "ProfileChooser.h"
#include "Rows.h"
#include "TestFolder.h"

namespace {

const char Config[] =
    "<c><group name='common'><module name='common'><Function><item name='IMSIAPN' value='true' type=''/></Function>"
    "<ProfileList><item name='Generic' value='default' type=''/></ProfileList>"
    "<IMSIProfileList imsi='26201'><item name='DE Nord' value='default' type=''/><item name='DE Nord - Flat' value='' "
    "type=''/></IMSIProfileList>"
    "<IMSIProfileList imsi='23201'><item name='AT Nord' value='default' type=''/></IMSIProfileList>"
    "</module></group></c>";

const char Operators[] =
    "<Operators><operator country='us' name='Movil'><preset name='US Movil'/></operator>"
    "<operator country='de' name='Nordfunk'><alias name='T\u00e9l\u00e9 Nord'/><preset name='DE Nord' plan='Basis'/>"
    "<preset name='DE Nord - Flat' plan='Flat' billing='prepaid'/><preset name='gone'/></operator>"
    "<operator country='at' name='Alpennord'><preset name='AT Nord' plan='Nord'/></operator></Operators>";

QByteArray profile(const QByteArray& name, const QByteArray& apn) {
    return "<Profile name='" + name + "' readonly='false' user='web' password='secret' phonenumber='*99#' autoapn='" +
           (apn.isEmpty() ? "true" : "false") + "' apn='" + apn + "' chap='true' encrypttype='2'/>";
}

QByteArray document(const QByteArray& profiles, const QByteArray& standard = {}) {
    return "<vrksdoc type='Profile'><ProfileGroup type='Dailup'>" + profiles + "</ProfileGroup>" + standard +
           "</vrksdoc>";
}

}  // namespace

class tst_presetsdialog : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_Folder = std::make_unique<TestFolder>();
        QDir().rmdir(m_Folder->path("library/lang"));
        QVERIFY(QFile::link(TEXTS_DIR, m_Folder->path("library/lang")));
        QVERIFY(QDir().mkpath(m_Folder->path("library/plugins/DialupPlugin")));
        QVERIFY(QFile::link(DIALUP_PLUGIN, m_Folder->path("library/plugins/DialupPlugin/libDialupPlugin.so")));
        QVERIFY(QFile::link(NETCONNECT_PLUGIN, m_Folder->pluginDir() + "/libNetConnectPlugin.so"));
        m_Folder->ship("NetConnectConfig.xml", Config);
        m_Folder->ship("Operators.xml", Operators);
        m_Folder->ship(
            "ProfileLib.prof",
            document(profile("Generic", "") + profile("US Movil", "movil.us") + profile("DE Nord", "nord.de") +
                     profile("DE Nord - Flat", "flat.nord.de") + profile("AT Nord", "nord.at")));
        vrks_simulated_reset();
        vrks_simulated_set("DIAL_MS", "20");
        vrks_simulated_set("IMSI", "310260123456789");
        Change::SetLanguage("en");
    }

    void cleanup() { m_Host.reset(); }

    // Of the countries, each in its place of the language; those of nobody knows whom last.
    void ordersCountries_data() {
        const Rows<QString, QString> row("language", "countries");
        row("English", "en", "Austria|Germany|United States|Other presets");
        row("German", "de", QString::fromUtf8("Deutschland|\u00d6sterreich|Vereinigte Staaten|Weitere Vorgaben"));
    }
    void ordersCountries() {
        QFETCH(QString, language);
        start();
        QVERIFY(m_Host->changeLanguage(language));
        open();
        QTEST(children().join('|'), "countries");
        Change::SetLanguage("en");
    }

    void searches_data() {
        const Rows<QString, QString> row("words", "plans");
        row("country", "GERM", "Basis|Flat (prepaid)");
        row("its code", "at", "Nord");  // not in the middle of a word
        row("operator", "alpen", "Nord");
        row("another name, without its accents", "tele", "Basis|Flat (prepaid)");
        row("plan and operator", "flat nordf", "Flat (prepaid)");
        row("APN", "movil.us", "movil.us");
        row("network code", "232 01", "Nord");
        row("in its other form", "262-01", "Basis|Flat (prepaid)");
        row("nothing", "nordfunk austria", "");
    }
    void searches() {
        QFETCH(QString, words);
        start();
        open();
        QTest::keyClicks(child<QLineEdit>("Presets_Search"), words);
        QTEST(plans().join('|'), "plans");
        QCOMPARE(child<QPushButton>("Presets_Use")->isEnabled(), !plans().isEmpty());
        QTest::keyClick(child<QLineEdit>("Presets_Search"), Qt::Key_Escape);
        QVERIFY(child<QWidget>("Host_PresetsDialog") && plans().size() == 5);
        QTest::keyClick(child<QLineEdit>("Presets_Search"), Qt::Key_Escape);
        QTRY_VERIFY(!child<QWidget>("Host_PresetsDialog"));
    }

    // By the keyboard alone, on a first start with a card that nothing is known of.
    void makesAFirstProfile() {
        start();
        auto* action = child<QPushButton>("Host_ConnectButton");
        QTRY_COMPARE(action->text(), QString("Choose operator\u2026"));
        QTest::keyClick(action, Qt::Key_Space);
        auto* search = child<QLineEdit>("Presets_Search");
        QTest::keyClicks(search, "flat");
        QVERIFY(child<QLabel>("IDS_HOST_PRESET_APN")->text() == "flat.nord.de");
        QVERIFY(!child<QLabel>("IDS_HOST_PRESET_PASSWORD")->text().contains("secret"));
        QTest::keyClick(search, Qt::Key_Return);
        auto* name = child<QLineEdit>("NewProfile_Name");
        QCOMPARE(name->text(), QString("Nordfunk Flat"));
        QVERIFY(child<QCheckBox>("NewProfile_MakeDefault")->isChecked());
        for (const char* refused : {"Generic", "a/b"}) {
            name->setText(refused);
            QTest::keyClick(name, Qt::Key_Return);
            QVERIFY2(!child<QLabel>("NewProfile_Problem")->text().isEmpty(), refused);
            QVERIFY(!TestFolder::read(m_Folder->userFile()).contains("<Profile name=\"" + QByteArray(refused)));
        }
        name->setText("Mine");
        QTest::keyClick(name, Qt::Key_Return);
        QTRY_VERIFY(!child<QWidget>("Host_PresetsDialog"));
        const QByteArray stored = TestFolder::read(m_Folder->userFile());
        QVERIFY2(stored.contains("name=\"Mine\"") && stored.contains("apn=\"flat.nord.de\""), stored);
        QTRY_COMPARE(action->text(), QString("Connect"));
        QCOMPARE(chooser()->currentText(), QString("Mine (Default)"));
        QTest::keyClick(action, Qt::Key_Space);
        QTRY_COMPARE(state(), QString("Connected with Mine"));
    }

    // With a preset that the card does not select.
    void connects() {
        vrks_simulated_set("IMSI", "262011234567890");
        start();
        QTRY_COMPARE(child<QPushButton>("Host_ConnectButton")->text(), QString("Connect"));
        open();
        QCOMPARE(list()->currentIndex().data().toString(), QString("Nordfunk"));  // the card's
        QTest::keyClicks(child<QLineEdit>("Presets_Search"), "movil");
        QTest::mouseClick(child<QPushButton>("Presets_Connect"), Qt::LeftButton);
        QTRY_COMPARE(state(), QString("Connected with US Movil"));
        open();
        QTest::keyClicks(child<QLineEdit>("Presets_Search"), "nord");
        QVERIFY(!child<QPushButton>("Presets_Connect")->isEnabled());
        QVERIFY(!child<QPushButton>("Presets_Connect")->toolTip().isEmpty());
    }

    // Somebody for whom what is offered to any card serves is not asked again.
    void staysOutOfTheWay() {
        start();
        auto* action = child<QPushButton>("Host_ConnectButton");
        QTRY_COMPARE(action->text(), QString("Choose operator\u2026"));
        enter("Generic");
        QTRY_COMPARE(action->text(), QString("Connect"));
        m_Host->window()->view()->act();
        QTRY_COMPARE(state(), QString("Connected with Generic"));
        m_Host.reset();
        start();
        action = child<QPushButton>("Host_ConnectButton");
        QTRY_VERIFY(action->text() != "Choose operator\u2026");
    }

    // Typing finds; own profiles and presets stand apart; a name that is none gives way.
    void choosesAProfile() {
        vrks_simulated_set("IMSI", "262011234567890");
        TestFolder::write(m_Folder->userFile(), document(profile("Home", "home") + profile("Travel", "travel"),
                                                         "<Default name='Home' IsUserSet='1'/>"));
        start();
        QTRY_COMPARE(chooser()->currentText(), QString("Home (Default)"));
        enter("");
        QStringList shown;
        for (int i = 0; i < chooser()->count(); ++i) shown.append(chooser()->itemText(i));
        QCOMPARE(shown, (QStringList{"My profiles", "Home (Default)", "Travel", "Presets for this SIM card", "DE Nord",
                                     "DE Nord - Flat"}));
        const struct {
            const char *typed, *shown;
        } rows[] = {{"rave", "Travel"}, {"de nord", "DE Nord"}, {"nothing such", "DE Nord"}, {"Nord", "DE Nord"}};
        for (const auto& row : rows) {
            enter(row.typed);
            QCOMPARE(chooser()->currentText(), QString(row.shown));
        }
        QTest::mouseClick(child<QPushButton>("Host_ConnectButton"), Qt::LeftButton);
        QTRY_COMPARE(state(), QString("Connected with DE Nord"));
        QVERIFY(!chooser()->isEnabled());
        m_Host->window()->view()->act();
        QTRY_VERIFY(chooser()->isEnabled());
    }

    // From any profile, one's own included.
    void makesOneFromAnother() {
        TestFolder::write(m_Folder->userFile(),
                          document(profile("Home", "home"), "<Default name='Home' IsUserSet='1'/>"));
        start();
        QTRY_COMPARE(chooser()->currentText(), QString("Home (Default)"));
        QTest::mouseClick(child<QWidget>("Host_CopyButton"), Qt::LeftButton);
        auto* name = child<QLineEdit>("NewProfile_Name");
        QCOMPARE(name->text(), QString("Home 2"));
        QVERIFY(!child<QCheckBox>("NewProfile_MakeDefault")->isChecked());
        QTest::keyClick(name, Qt::Key_Return);
        QTRY_COMPARE(chooser()->currentText(), QString("Home 2"));
        DialupProfile copy;
        QCOMPARE(Plugins::profiles()->GetDialUpProfile("Home 2", &copy), 0);
        QCOMPARE(copy.apn + copy.user + copy.password, QString("homewebsecret"));
    }

private:
    template <class T>
    T* child(const char* name) {
        return m_Host->window()->findChild<T*>(name);
    }
    QComboBox* chooser() { return child<QComboBox>("Host_ProfileChooser"); }
    QTreeView* list() { return child<QTreeView>("Presets_List"); }
    QString state() { return child<QLabel>("Host_ConnectionState")->text(); }

    void start() {
        m_Host = std::make_unique<Host>();
        m_Host->start();
        m_Host->window()->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_Host->window()));
        m_Host->window()->activateWindow();
    }

    void open() { m_Host->window()->openPresets(); }

    // Types into the chooser.
    void enter(const char* typed) {
        chooser()->setFocus();
        QTRY_VERIFY(chooser()->hasFocus());
        chooser()->lineEdit()->selectAll();
        QTest::keyClicks(chooser(), typed);
        QTest::keyClick(chooser(), Qt::Key_Escape);  // of what completes
        QTest::keyClick(chooser(), Qt::Key_Return);
    }

    QStringList children(const QModelIndex& parent = {}) {
        QStringList names;
        for (int i = 0; i < list()->model()->rowCount(parent); ++i)
            names.append(list()->model()->index(i, 0, parent).data().toString());
        return names;
    }

    QStringList plans() {
        QStringList all;
        const QAbstractItemModel* model = list()->model();
        for (int i = 0; i < model->rowCount(); ++i)
            for (int j = 0; j < model->rowCount(model->index(i, 0)); ++j)
                all += children(model->index(j, 0, model->index(i, 0)));
        return all;
    }

    std::unique_ptr<TestFolder> m_Folder;
    std::unique_ptr<Host> m_Host;
};

QTEST_MAIN(tst_presetsdialog)
#include "tst_presetsdialog.moc"
