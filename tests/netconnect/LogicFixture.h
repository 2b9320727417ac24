// What the tests of the profile logic share: shipped files to start from, and a logic that is made anew.
#ifndef ORBISDIAL_LOGICFIXTURE_H
#define ORBISDIAL_LOGICFIXTURE_H

#include <QtTest>

#include "NetConnectSettingUILogic.h"
#include "TestFolder.h"
#include "vrks_simulated.h"

class LogicFixture {
public:
    LogicFixture() { vrks_simulated_reset(); }
    ~LogicFixture() {
        NetConnectSettingUILogic::Destroy();
        NetConnectXMLParse::Destroy();
    }

    static QByteArray item(const QByteArray& name, const QByteArray& value) {
        return "<item name=\"" + name + "\" value=\"" + value + "\" type=\"\"/>\n";
    }

    // A configuration whose one module is (common, common).
    static QByteArray config(const QByteArray& sections, const QByteArray& elsewhere = QByteArray()) {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><NetConnect><group name=\"common\"><module "
               "name=\"common\">\n" +
               sections + "</module></group>" + elsewhere + "</NetConnect>";
    }

    static QByteArray functions(const QList<QByteArray>& switches) {
        QByteArray result = "<Function>\n";
        for (const QByteArray& name : switches) result += item(name, "true");
        return result + "</Function>\n";
    }

    static QByteArray profile(const QByteArray& attributes) { return "<Profile " + attributes + "/>\n"; }

    static QByteArray profiles(const QByteArray& content, const QByteArray& after = QByteArray()) {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><vrksdoc type=\"Profile\"><ProfileGroup type=\"Dailup\">\n" +
               content + "</ProfileGroup>" + after + "</vrksdoc>";
    }

    void shipConfig(const QByteArray& content) { folder.ship("NetConnectConfig.xml", content); }
    void shipLibrary(const QByteArray& content) { folder.ship("ProfileLib.prof", content); }
    void setUserFile(const QByteArray& content) { TestFolder::write(folder.userFile(), content); }

    // The logic, as a process that starts now would have it.
    NetConnectSettingUILogic* restart() {
        NetConnectSettingUILogic::Destroy();
        NetConnectXMLParse::Destroy();
        return NetConnectSettingUILogic::GetInstance();
    }
    NetConnectSettingUILogic* logic() { return NetConnectSettingUILogic::GetInstance(); }

    QStringList names() {
        QList<QString> result;
        logic()->GetAllDialUpProfile(&result);
        return result;
    }

    QString defaultName() {
        QString name;
        logic()->GetDefaultDialUpProfileName(&name);
        return name;
    }

    DialupProfile fetch(const QString& name) {
        DialupProfile result;
        logic()->GetDialUpProfile(name, &result);
        return result;
    }

    static DialupProfile named(const QString& name, const QString& password = QString()) {
        DialupProfile result;
        result.name = name;
        result.password = password;
        return result;
    }

    TestFolder folder;
};

// A test object whose every function starts with a fixture of its own.
class LogicTest : public QObject {
    Q_OBJECT

protected slots:
    void init() { m_pFixture = new LogicFixture; }
    void cleanup() {
        delete m_pFixture;
        m_pFixture = nullptr;
    }

protected:
    LogicFixture* m_pFixture = nullptr;
};

#endif
