// SPDX-License-Identifier: MIT
// A settings service for tests: profiles in memory and a page with one edit.
//
// What it answers and what it was asked stand in properties of the application, so that a test reaches them from
// outside of the plug-in that holds it:
//   fake.calls     QStringList  the operations in their order
//   fake.refuse    bool         OK and HideSetting refuse
//   fake.ask       bool         they ask a question first, in a message box
//   fake.profiles  QStringList  the profiles' names; one that begins with "Ask" wants to be asked, with
//                              "Preset" can't be changed
//   fake.default   QString
//   fake.neverAsk  bool         the configuration forbids to ask
//   fake.fields    QVariantMap  what every profile holds besides, by its attributes
#ifndef ORBISDIAL_FAKEPROFILES_H
#define ORBISDIAL_FAKEPROFILES_H

#include <QCoreApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QVariant>

#include "INetConnectSetting.h"
#include "ISettingUIPlugin.h"

namespace Fake {

inline QVariant get(const char* name) { return qApp->property(name); }
inline void set(const char* name, const QVariant& value) { qApp->setProperty(name, value); }
inline QStringList calls() { return get("fake.calls").toStringList(); }
inline int record(const QString& call) {
    set("fake.calls", calls() << call);
    return 1;
}

// One profile, which is the default; nothing is refused, asked or written down yet.
inline void reset() {
    for (const char* flag : {"fake.refuse", "fake.ask", "fake.initFails", "fake.neverAsk"}) set(flag, false);
    set("fake.calls", QStringList());
    set("fake.profiles", QStringList("Home"));
    set("fake.fields", QVariantMap());
    set("fake.default", "Home");
}

}  // namespace Fake

class FakeProfiles : public QObject, public ISettingUIPlugin, public INetConnectSetting {
    Q_OBJECT
    Q_INTERFACES(ISettingUIPlugin INetConnectSetting)

public:
    ~FakeProfiles() override { delete m_Page; }

    int OnClickSettingOkButton() override { return answer("OK"); }
    int OnClickSettingCancelButton() override { return Fake::record("Cancel"); }
    int ShowSettingDialog(QWidget* parent, QRect& rect) override {
        if (!m_Page) m_Page = new QLineEdit;
        m_Page->setObjectName("Fake_Edit");
        m_Page->setParent(parent);
        m_Page->setGeometry(rect);
        m_Page->show();
        return Fake::record("Show");
    }
    QString GetModuleName() override { return "Fake page"; }
    int HideSetting() override {
        if (answer("Hide") == 0) return 0;
        m_Page->close();
        return 1;
    }
    bool IsActiveSetting() override { return m_Page && m_Page->isVisible(); }

    int IsIMSIROAMEnable() override { return 0; }
    int GetAllDialUpProfile(QList<QString>* names) override {
        names->append(profiles());
        return 0;
    }
    int GetDialUpProfile(QString name, DialupProfile* profile) override {
        *profile = DialupProfile();
        if (!profiles().contains(name)) return 0;
        profile->name = name;
        profile->readonly = name.startsWith("Preset") ? "true" : "false";
        profile->user = "ada";
        profile->password = "secret-of-ada";
        profile->popusername = name.startsWith("Ask") ? "true" : "false";
        const QVariantMap fields = Fake::get("fake.fields").toMap();
        for (const DialupProfileField& field : DialupProfileFields)
            if (fields.contains(field.attribute)) profile->*field.member = fields[field.attribute].toString();
        return 0;
    }
    int SaveDialUpProfile(DialupProfile) override { return 0; }
    int GetDefaultDialUpProfileName(QString* name) override {
        *name = Fake::get("fake.default").toString();
        return 0;
    }
    int SetDefaultDialUpProfileName(QString) override { return 0; }
    UserPrompt GetUserPromptInfo() override {
        const QString isAsked = Fake::get("fake.neverAsk").toBool() ? "false" : "true";
        return {isAsked, isAsked, "false", "false"};
    }
    int GetFunctionConfigStringValues(QString, QString*) override { return 0; }

private:
    int answer(const QString& call) {
        Fake::record(call);
        if (Fake::get("fake.ask").toBool()) QMessageBox::question(m_Page, "Fake", "Save?");
        return Fake::get("fake.refuse").toBool() ? 0 : 1;
    }
    static QStringList profiles() { return Fake::get("fake.profiles").toStringList(); }

    QPointer<QLineEdit> m_Page;
};

#endif
