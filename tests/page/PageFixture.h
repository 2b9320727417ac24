// SPDX-License-Identifier: MIT
// The plug-in, loaded as a host loads it, with its page shown in a window and its peers in the container.
#ifndef ORBISDIAL_PAGEFIXTURE_H
#define ORBISDIAL_PAGEFIXTURE_H

#include <QPluginLoader>
#include <QProcess>
#include <QXmlStreamReader>
#include <cstdio>
#include <memory>

#include "Answers.h"
#include "Change.h"
#include "FakePeers.h"
#include "INetConnectSetting.h"
#include "INotify.h"
#include "ISettingUIPlugin.h"
#include "IUIPlugin.h"
#include "Rows.h"
#include "TestFolder.h"
#include "vrks_simulated.h"

class PageFixture : public TestFolder {
public:
    // Switches and the like of the shipped configuration; change it before start().
    QByteArray functions = "<item name='APN' value='true'/><item name='IMPORT' value='true'/>";
    QByteArray presets;  // items of the configuration's profile list
    QByteArray prompt;   // prompt items
    QByteArray library;  // profiles of the library
    QByteArray newProfile = "name='' phonenumber='*99#' autoapn='true' chap='true' pap='false' Remember='keep'";

    std::unique_ptr<FakeNotifyService> notify{new FakeNotifyService};
    FakeDialup dialup;
    Answers answers;
    QObject* entry = nullptr;
    ISettingUIPlugin* setting = nullptr;
    INetConnectSetting* profiles = nullptr;
    QPointer<QWidget> window{new QWidget};

    PageFixture() { vrks_simulated_reset(); }
    ~PageFixture() {
        stop();
        delete window;
        Change::SetLanguage("en");
    }

    // --- the files ---

    // A profile with its attributes as XML text.
    static QByteArray profile(const QByteArray& name, const QByteArray& attributes = "phonenumber='*99#'") {
        return "<Profile name='" + name + "' " + attributes + "/>";
    }
    static QByteArray document(const QByteArray& profiles, const QByteArray& defaultElement = QByteArray()) {
        return "<vrksdoc type='Profile'><ProfileGroup type='Dailup'>" + profiles + "</ProfileGroup>" + defaultElement +
               "</vrksdoc>";
    }
    static QStringList names(const QString& file) { return attributes(file, "Profile", "name"); }
    QStringList stored() const {
        QStringList sorted = names(userFile());
        sorted.sort();
        return sorted;
    }
    // As careful programs replace a file: by a rename.
    static bool replaceFile(const QString& file, const QByteArray& content) {
        TestFolder::write(file + ".new", content);
        return std::rename(QFile::encodeName(file + ".new").data(), QFile::encodeName(file).data()) == 0;
    }
    // Attributes of a stored profile, with bars between.
    QString stored(const QString& name, const QString& wanted) const {
        QStringList values;
        for (const QString& attribute : wanted.split(' '))
            values.append(attributes(userFile(), "Profile", attribute).value(names(userFile()).indexOf(name)));
        return values.join('|');
    }
    // The stored default and its flag, as "name/1".
    QString storedDefault() const {
        return (attributes(userFile(), "Default", "name") + attributes(userFile(), "Default", "IsUserSet")).join('/');
    }
    // Another process on the same files: a command of orbisctl with its arguments.
    static void otherProcess(const QStringList& command) { QCOMPARE(QProcess::execute(ORBISCTL, command), 0); }

    // --- the plug-in ---

    // With a user file of these profiles and this default element; with no profiles, without a file.
    void start(const QByteArray& user = QByteArray(), const QByteArray& defaultElement = QByteArray(),
               const QByteArray& language = TestFolder::language()) {
        if (!user.isEmpty()) TestFolder::write(userFile(), document(user, defaultElement));
        copyTexts();
        QVERIFY(Change::SetLanguage(language));
        ship("NetConnectConfig.xml", "<c>" + prompt + "<group name='common'><module name='common'><Function>" +
                                         functions + "</Function><ProfileList>" + presets +
                                         "</ProfileList></module></group></c>");
        ship("ProfileLib.prof", document(library));
        ship("SysProfile.prof", "<vrksdoc><Template " + newProfile + "/></vrksdoc>");
        entry = QPluginLoader(PLUGIN_FILE).instance();
        QVERIFY(entry);
        init();
    }
    // Asks the loaded plug-in for its service, and shows the page.
    void init() {
        QObject* service = nullptr;
        QCOMPARE(plugin()->QueryInterface(4098, &service), 1);
        QCOMPARE(plugin()->Init(), 1);
        setting = qobject_cast<ISettingUIPlugin*>(service);
        profiles = qobject_cast<INetConnectSetting*>(service);
        QVERIFY(setting && profiles);
        show();
    }
    void show() {
        QRect place(0, 0, 620, 480);
        window->resize(place.size());
        QCOMPARE(setting->ShowSettingDialog(window, place), 1);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
    }
    void stop() {
        if (!entry) return;
        plugin()->UnSDKRegisterEvent();
        plugin()->OnDestroy();
        delete entry;
        entry = nullptr;
    }
    // As another plug-in does.
    int save(const QString& name, const QString& number = QString()) const {
        DialupProfile profile;
        profile.name = name;
        profile.phonenumber = number;
        return profiles->SaveDialUpProfile(profile);
    }
    IUIPlugin* plugin() const { return qobject_cast<IUIPlugin*>(entry); }
    int event(unsigned int number) const { return qobject_cast<INotify*>(entry)->Notify(number, 0, 0); }
    void language(const QByteArray& code) const {
        QVERIFY(Change::SetLanguage(code));
        event(NotifyLanguageChanged);
    }
    // The modem's card changes: the page reloads when its queued signal has come through.
    static void changeCard() {
        vrks_simulated_raise_event(VRKS_EVENT_DEV_CARD_CHANGED);
        vrks_simulated_wait_events();
        QCoreApplication::processEvents();
    }

    // --- the page ---

    template <class W = QWidget>
    W* find(const char* role) const {
        return window->findChild<W*>(QString("NetConnectSettingUIPlugin_") + role);
    }
    QComboBox* combo() const { return find<QComboBox>("ProfileCombobox"); }
    QLineEdit* edit(const char* role) const { return find<QLineEdit>(role); }
    void click(const char* role) const { clickButton(find<QAbstractButton>(role), role); }
    // Where the keyboard is once the window is active.
    bool focused(const char* role) const { return window->focusWidget() == find(role) && find(role)->isVisible(); }
    bool enabled(const char* role) const { return find(role)->isEnabled(); }
    QStringList listed() const { return textsOf(combo()); }
    void select(const QString& text) const {
        QVERIFY2(combo()->findText(text) >= 0, qPrintable(listed().join('|')));
        combo()->setCurrentIndex(combo()->findText(text));
    }
    static void type(QLineEdit* edit, const QString& text) {
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, text);
    }
    // What an open edit holds on screen and lets the user do.
    QStringList editState() const {
        QStringList state;
        for (const char* role :
             {"LineEditProfileName", "ApnlineEdit", "AccessNumberlineEdit", "UsernamelineEdit", "PasswordlineEdit"})
            state.append(edit(role)->text() + (edit(role)->isVisible() ? "" : " hidden"));
        for (const char* role : {"BtnStatic", "CheckBoxAskUserName"})
            state.append(find<QAbstractButton>(role)->isChecked() ? "on" : "off");
        for (const char* role : {"pBtnnewProfile", "BtnDeleteProfile", "BtnEditProfile", "BtnsaveProfile",
                                 "BtnUndoProfile", "BtnSetDefaultProfile"})
            if (enabled(role)) state.append(role);
        return state;
    }

private:
    void copyTexts() const {
        const QDir built(QString(ORBISDIAL_LIBRARY_DIR) + "/lang");
        for (const QString& file : built.entryList({"*.qm"}))
            QFile::copy(built.filePath(file), path("library/lang/" + file));
    }
    static QStringList attributes(const QString& file, const QString& element, const QString& attribute) {
        QStringList values;
        QXmlStreamReader reader(TestFolder::read(file));
        while (!reader.atEnd())
            if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == element)
                values.append(reader.attributes().value(attribute).toString());
        return values;
    }
};

// A test object whose every function and row starts with a fixture of its own, which is made when the last has ended.
class PageTest : public QObject {
    Q_OBJECT

protected slots:
    void init() {
        f.reset();
        f.reset(new PageFixture);
    }
    void cleanup() { f.reset(); }

protected:
    std::unique_ptr<PageFixture> f;
};

#endif
