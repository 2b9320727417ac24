// SPDX-License-Identifier: MIT
// What the tests of the profile logic share: shipped files to start from, and a logic that is made anew.
#ifndef ORBISDIAL_LOGICFIXTURE_H
#define ORBISDIAL_LOGICFIXTURE_H

#include "NetConnectSettingUILogic.h"
#include "Rows.h"
#include "TestFolder.h"
#include "vrks_simulated.h"

class LogicFixture : public TestFolder {
public:
    LogicFixture() { vrks_simulated_reset(); }
    ~LogicFixture() { end(); }

    // An element of items, each "name" or "name=value".
    static QByteArray section(const QByteArray& element, const QList<QByteArray>& items) {
        QByteArray result = "<" + element + ">\n";
        for (const QByteArray& item : items)
            result += "<item name='" + item.split('=')[0] + "' value='" + item.split('=').value(1) + "' type=''/>\n";
        return result + "</" + element.split(' ')[0] + ">\n";
    }

    static QByteArray profile(const QByteArray& name, const QByteArray& attributes = QByteArray()) {
        return "<Profile name='" + name + "' " + attributes + "/>\n";
    }
    static QByteArray document(const QByteArray& profiles, const QByteArray& after = QByteArray()) {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><vrksdoc type=\"Profile\"><ProfileGroup type=\"Dailup\">\n" +
               profiles + "</ProfileGroup>" + after + "</vrksdoc>";
    }

    // A configuration whose one module is (common, common).
    void shipConfig(const QByteArray& sections, const QByteArray& elsewhere = QByteArray()) {
        ship("NetConnectConfig.xml",
             "<?xml version=\"1.0\" encoding=\"UTF-8\"?><NetConnect><group name=\"common\"><module name=\"common\">\n" +
                 sections + "</module></group>" + elsewhere + "</NetConnect>");
    }
    // In the form that our own tools write, unlike the user's.
    void shipLibrary(const QByteArray& profiles, const QByteArray& after = QByteArray()) {
        ship("ProfileLib.prof", document(profiles, after).replace("' />", "'/>").replace('\'', '"'));
    }
    void shipTexts() {
        const QString from = ORBISDIAL_LIBRARY_DIR "/lang/orbisdial_en.qm";
        QVERIFY2(QFile::copy(from, path("library/lang/orbisdial_en.qm")), qPrintable(from));
    }
    void setUser(const QByteArray& profiles, const QByteArray& after = QByteArray()) {
        write(userFile(), document(profiles, after));
    }
    QByteArray user() const { return read(userFile()); }

    // A null value makes the query fail.
    static void setDevice(const char* key, const QString& value) {
        QCOMPARE(vrks_simulated_set(key, value.isNull() ? nullptr : qPrintable(value)), 0L);
    }

    static void end() {
        NetConnectSettingUILogic::Destroy();
        NetConnectXMLParse::Destroy();
    }
    // The logic, as a process that starts now would have it.
    static NetConnectSettingUILogic* restart() {
        end();
        return logic();
    }
    static NetConnectSettingUILogic* logic() { return NetConnectSettingUILogic::GetInstance(); }

    static QStringList names() {
        QList<QString> result;
        logic()->GetAllDialUpProfile(&result);
        return result;
    }

    static QString defaultName() {
        QString name;
        logic()->GetDefaultDialUpProfileName(&name);
        return name;
    }

    static DialupProfile fetch(const QString& name) {
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
};

// A test object whose every function and row starts with empty folders and without a logic.
class LogicTest : public QObject, protected LogicFixture {
    Q_OBJECT

protected slots:
    void init() {
        end();
        vrks_simulated_reset();
        QDir(path("")).removeRecursively();
        for (const QString& name : {pluginDir(), path("library/lang")}) QVERIFY(QDir().mkpath(name));
    }
};

#endif
