// SPDX-License-Identifier: MIT
// Random input for window and page, held against a model of what a user typed, stored and deleted. The seed is printed;
// ORBISDIAL_RANDOM_SEED repeats a run, ORBISDIAL_RANDOM_STEPS makes it longer.
#include <vrks_simulated.h>

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRandomGenerator>
#include <QtTest>
#include <memory>

#include "CommonUtils.h"
#include "Host.h"
#include "INetConnectSetting.h"
#include "Languages.h"
#include "SettingsPages.h"
#include "Startup.h"
#include "TestFolder.h"

namespace {

constexpr int DefaultSteps = 2000;

const char* const Fields[] = {"LineEditProfileName", "ApnlineEdit", "AccessNumberlineEdit", "UsernamelineEdit",
                              "PasswordlineEdit"};
constexpr int NameField = 0;

// By the order of the fields; the first is the name.
using Values = QStringList;

Values valuesOf(const DialupProfile& profile) {
    return {profile.name, profile.apn, profile.phonenumber, profile.user, profile.password};
}

int fromEnvironment(const char* name, int otherwise) {
    bool isSet = false;
    const int value = qEnvironmentVariableIntValue(name, &isSet);
    return isSet ? value : otherwise;
}

}  // namespace

class tst_random : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        qunsetenv("ORBISDIAL_LIBRARY_PATH");
        qputenv("ORBISDIAL_SIM_DIAL_MS", "1");
        const int seed = fromEnvironment("ORBISDIAL_RANDOM_SEED", int(QRandomGenerator::system()->bounded(1000000)));
        qInfo("ORBISDIAL_RANDOM_SEED=%d", seed);
        m_Random.seed(quint32(seed));
        connect(&m_Answerer, &QTimer::timeout, this, &tst_random::answer);
        m_Answerer.start(5);
        m_Host = std::make_unique<Host>();
        m_Host->start();
        m_Host->window()->show();
        QVERIFY(QTest::qWaitForWindowActive(m_Host->window()));
        openSettings();
        QTRY_VERIFY(combo()->count() > 0);
        m_Host->changeLanguage("en");
    }

    void keepsWhatWasTypedStoredAndDeleted() {
        const Action actions[] = {
            &tst_random::pressNew,      &tst_random::pressStatic, &tst_random::pressEdit,       &tst_random::typeName,
            &tst_random::typeField,     &tst_random::typeField,   &tst_random::pressSave,       &tst_random::pressSave,
            &tst_random::pressUndo,     &tst_random::pressDelete, &tst_random::pressSetDefault, &tst_random::selectAny,
            &tst_random::pressOk,       &tst_random::pressCancel, &tst_random::pressEscape,     &tst_random::changePage,
            &tst_random::pressTab,      &tst_random::connectNow,  &tst_random::dropConnection,  &tst_random::changeCard,
            &tst_random::changeLanguage};
        const int steps = fromEnvironment("ORBISDIAL_RANDOM_STEPS", DefaultSteps);
        for (int step = 0; step < steps; ++step) {
            m_Before = typed();
            m_WasOpen = isEditing();
            m_Said.clear();
            m_Log = QString("step %1").arg(step);
            (this->*actions[m_Random.bounded(int(std::size(actions)))])();
            QCoreApplication::processEvents();
            check();
            if (QTest::currentTestFailed()) return qWarning("%s", qPrintable(m_Log + "; said: " + m_Said.join('|')));
            openSettings();
        }
        qInfo("%d profiles are stored, %d were saved", int(m_Stored.size()), m_Saves);
        QVERIFY(m_Saves > 0);
    }

private:
    using Action = void (tst_random::*)();

    // --- what a user does ---

    void pressNew() { click("pBtnnewProfile"); }
    void pressEdit() { click("BtnEditProfile"); }
    void pressStatic() {
        auto* const button = find<QAbstractButton>("BtnStatic");
        if (button->isVisible() && button->isEnabled()) button->click();
    }
    void typeName() { type(NameField); }
    void typeField() { type(1 + m_Random.bounded(int(std::size(Fields)) - 1)); }
    void pressSetDefault() { click("BtnSetDefaultProfile"); }
    void pressTab() {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : dialog(), Qt::Key_Tab);
    }
    void dropConnection() { vrks_simulated_drop(nullptr); }

    void pressSave() {
        if (!click("BtnsaveProfile")) return;
        if (!isEditing()) store();
    }

    void pressUndo() {
        if (click("BtnUndoProfile")) m_Edited.clear();
    }

    void pressDelete() {
        const QString name = current();
        if (click("BtnDeleteProfile") && m_Answer == CommonUtils::FirstButton) m_Stored.remove(name);
    }

    void selectAny() {
        if (combo()->isVisible()) combo()->setCurrentIndex(m_Random.bounded(combo()->count()));
    }

    void pressOk() {
        leave([this] { clickHost("Host_OkButton"); });
    }
    void pressEscape() {
        leave([this] { QTest::keyClick(dialog(), Qt::Key_Escape); });
    }
    void changePage() {
        leave([this] {
            auto* const list = m_Host->window()->findChild<QListWidget*>("Host_PageList");
            list->setCurrentRow(1 - list->currentRow());
            QCoreApplication::processEvents();
        });
    }

    void pressCancel() {
        clickHost("Host_CancelButton");
        if (m_WasOpen) QVERIFY(!isEditing());
        m_Edited.clear();
    }

    void connectNow() {
        auto* const button = m_Host->window()->findChild<QPushButton*>("Host_ConnectButton");
        QTest::mouseClick(button, Qt::LeftButton);
    }

    void changeCard() {
        vrks_simulated_change("IMSI", m_Random.bounded(2) ? "262019876543210" : "310260123456789");
        vrks_simulated_wait_events();
    }

    void changeLanguage() {
        const QStringList codes{"en", "de", "ar", "zh_CN"};
        m_Host->changeLanguage(codes[m_Random.bounded(codes.size())]);
    }

    // The question about an open edit decides what becomes of it.
    template <class Way>
    void leave(Way way) {
        m_Answer = CommonUtils::NoAnswer;
        way();
        if (!m_WasOpen || isEditing()) return;
        if (m_FirstAnswer == CommonUtils::FirstButton) return store();
        QCOMPARE(m_FirstAnswer, int(CommonUtils::SecondButton));
        m_Edited.clear();
    }

    // --- the model ---

    void store() {
        if (!m_Edited.isNull() && m_Edited != m_Before.first()) m_Stored.remove(m_Edited);
        m_Stored.insert(m_Before.first(), m_Before);
        m_Edited.clear();
        ++m_Saves;
    }

    void check() {
        m_FirstAnswer = CommonUtils::NoAnswer;
        if (m_WasOpen && isEditing()) QCOMPARE(typed(), m_Before);
        if (!m_WasOpen && isEditing()) {
            const Values shown = typed();
            m_Edited = m_Stored.contains(shown.first()) ? shown.first() : QString();
            if (!m_Edited.isNull()) QCOMPARE(shown, m_Stored.value(m_Edited));
        }
        QCOMPARE(storedNames(), QStringList(m_Stored.keys()));
        for (const Values& values : m_Stored) {
            DialupProfile profile;
            profiles()->GetDialUpProfile(values.first(), &profile);
            QCOMPARE(valuesOf(profile), values);
        }
    }

    // As the file has them.
    QStringList storedNames() const {
        QStringList names;
        QXmlStreamReader xml(TestFolder::read(m_Folder.userFile()));
        while (!xml.atEnd())
            if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("Profile"))
                names.append(xml.attributes().value("name").toString());
        names.sort();
        return names;
    }

    // --- the widgets ---

    static INetConnectSetting* profiles() {
        return qobject_cast<INetConnectSetting*>(
            Startup::GetPluginContainer()->FindPlugin(ORBISDIAL_NETCONNECT_CLSID, NetConnectSettingKind));
    }

    template <class W = QWidget>
    W* find(const char* role) const {
        return m_Host->window()->findChild<W*>(QString("NetConnectSettingUIPlugin_") + role);
    }
    QComboBox* combo() const { return find<QComboBox>("ProfileCombobox"); }
    QWidget* dialog() const { return m_Host->window()->findChild<QWidget*>("Host_SettingsDialog"); }
    bool isEditing() const { return find("BtnsaveProfile") && find("BtnsaveProfile")->isEnabled(); }

    QString current() const {
        for (const QString& name : m_Stored.keys())
            if (combo()->currentText() == name || combo()->currentText().startsWith(name + " (")) return name;
        return QString();
    }

    Values typed() const {
        Values values;
        for (const char* field : Fields)
            values.append(find<QLineEdit>(field) ? find<QLineEdit>(field)->text() : QString());
        return values;
    }

    void openSettings() {
        m_Host->window()->openSettings();
        SettingsPages* const pages = m_Host->window()->pages();
        if (!isEditing()) pages->showPage(pages->pageNames().first());
        QCoreApplication::processEvents();
    }

    bool click(const char* role) {
        auto* const button = find<QPushButton>(role);
        m_Log += QString(", ") + role;
        m_Answer = CommonUtils::NoAnswer;
        if (!button || !button->isVisible() || !button->isEnabled()) return false;
        QTest::mouseClick(button, Qt::LeftButton);
        return true;
    }

    void clickHost(const char* name) {
        m_Log += QString(", ") + name;
        QTest::mouseClick(m_Host->window()->findChild<QPushButton*>(name), Qt::LeftButton);
    }

    // Names are few, so that they clash, and some are not allowed.
    QString randomText(int field) {
        if (field == NameField) {
            const QStringList names{"Home", "Work", "a/b", "", "Train 1", "B\u00fcro", "x"};
            return names[m_Random.bounded(names.size())];
        }
        const QString letters = field == 2 ? "*#0123456789" : "abcXYZ019.-";
        QString text;
        for (int i = m_Random.bounded(8); i > 0; --i) text += letters[m_Random.bounded(letters.size())];
        return text;
    }

    void type(int field) {
        auto* const edit = find<QLineEdit>(Fields[field]);
        if (!isEditing() || !edit->isVisible() || !edit->isEnabled()) return;
        const QString text = randomText(field);
        m_Log += QString(", %1 \"%2\"").arg(Fields[field], text);
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        for (const QChar c : text) QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, c, Qt::NoModifier);
        m_Before[field] = text;
    }

    // A box is answered by a button, or closed.
    void answer() {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->isVisible() || box == m_Answered) return;
        m_Answered = box;
        m_Said.append(box->text());
        const QList<QAbstractButton*> buttons = box->buttons();
        const int choice = m_Random.bounded(buttons.size() + 1);
        m_Answer = CommonUtils::NoAnswer;
        if (choice < buttons.size()) m_Answer = box->standardButton(buttons[choice]);
        if (m_FirstAnswer == CommonUtils::NoAnswer) m_FirstAnswer = m_Answer;
        choice < buttons.size() ? QTest::mouseClick(buttons[choice], Qt::LeftButton) : void(box->close());
    }

    TestFolder m_Folder;
    std::unique_ptr<Host> m_Host;
    QRandomGenerator m_Random;
    QTimer m_Answerer;
    QPointer<QMessageBox> m_Answered;
    int m_Answer = CommonUtils::NoAnswer;       // to the last box
    int m_FirstAnswer = CommonUtils::NoAnswer;  // of the step
    QMap<QString, Values> m_Stored;             // by name
    QString m_Edited;                           // the stored profile that is edited; null for a new one
    Values m_Before;                            // what the fields held before the step, and what it typed
    bool m_WasOpen = false;
    int m_Saves = 0;
    QStringList m_Said;
    QString m_Log;
};

QTEST_MAIN(tst_random)
#include "tst_random.moc"
