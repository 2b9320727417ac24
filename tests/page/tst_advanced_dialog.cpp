// The advanced dialog by itself, and brought to life by the page.
#include <QApplication>
#include <QCheckBox>
#include <QRadioButton>

#include "Answers.h"
#include "Change.h"
#include "ExtendLineEdit.h"
#include "NetConnectAdvancedSettingDlg.h"
#include "NetConnectUIService.h"
#include "Rows.h"
#include "TestFolder.h"

// The page never sets its pointer to the dialog; a test gives it the one.
class NetConnectUIServiceTestAccess {
public:
    static void giveAdvancedDialog(CNetConnectUIService* service) {
        service->m_pAdvancedDlg = NetConnectAdvancedSettingDlg::GetInstance();
    }
};

namespace {

ExtendDialog* frame() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->objectName() == "NetConnectAdvancedSettingDlg_DialogAdvanceSetting")
            return qobject_cast<ExtendDialog*>(widget);
    return nullptr;
}

template <class W>
W* find(const char* role, const char* box = "DialogAdvanceSetting") {
    const QString prefix = "NetConnectAdvancedSettingDlg_";
    QWidget* in = frame()->objectName() == prefix + box ? frame() : frame()->findChild<QWidget*>(prefix + box);
    return in->findChild<W*>(prefix + role);
}

void click(const char* role) { QTest::mouseClick(find<QAbstractButton>(role), Qt::LeftButton); }

const char Dns[] = "GroupBoxDNSSetting";
const char Wins[] = "GroupBoxWINSSetting";

}  // namespace

class TestAdvancedDialog : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_Folder.reset(new TestFolder);
        dialog()->InitAdvanceUI(nullptr);
    }
    void cleanup() {
        NetConnectAdvancedSettingDlg::Destroy();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(QApplication::topLevelWidgets().isEmpty());  // the detached widgets went along
        Change::SetLanguage("en");
    }

    void addresses_data() {
        nameRows("typed", {"", "1.2.3.4", "223.255.255.255", "010.1.1.1", "0.00.0.0", "0.0.0.0", "!0.1.2.3",
                           "!00.0.0.0", "!224.0.0.1", "!1.2.3.256", "!1..2.3", "!1.2.3", "!1.2.3.4.5", "!.1.2.3",
                           "!0.5.0.0", "!1.2.3.0004"});  // a mark stands before what is refused
    }
    void addresses() {
        QFETCH(QString, typed);
        const bool accepted = !typed.startsWith('!');
        show();
        find<QLineEdit>("LineEditIP")->setText("9.9.9.9");  // stays stored when a later step fails
        find<QLineEdit>("LineEditSecondaryDNS", Dns)->setText(QString(typed).remove('!'));
        Answers answers;
        if (!accepted) answers.ok();
        click("ButtonOkAdvance");
        QVERIFY(answers.allGiven());
        QCOMPARE(!frame(), accepted);
        QCOMPARE(settings().ip, QString("9.9.9.9"));
        QCOMPARE(settings().dnsalt, accepted && typed != "0.0.0.0" ? typed : QString());
    }

    void loadsAndTakesAProfile() {
        DialupProfile profile;
        profile.ip = "0.0.0.0";
        profile.chap = "true";
        profile.dns = "1.1.1.1";
        profile.wins = "2.2.2.2";
        profile.winsalt = "3.3.3.3";
        dialog()->SetProfileAdvanceSetting(profile, "NEW");
        show();
        QVERIFY(find<QRadioButton>("RadioButtonIPDynamic")->isChecked() && !find<QLineEdit>("LineEditIP")->isEnabled());
        QVERIFY(find<QRadioButton>("RadioButtomDNSStatic")->isChecked());
        QCOMPARE(find<QLineEdit>("LineEditSecondaryDNS", Dns)->text(), QString());
        QCOMPARE(find<QLineEdit>("LineEditSecondaryDNS", Wins)->text(), QString("3.3.3.3"));
        click("RadioButtomIPStatic");
        QCOMPARE(find<QLineEdit>("LineEditIP")->text(), QString("0.0.0.0"));
        click("RadioButtonWINSDynamic");
        find<QCheckBox>("CheckboxNewMsgSoundAlert")->click();
        click("ButtonOkAdvance");
        const AdvanceSetting s = settings();
        const QStringList taken = {s.ip, s.pap, s.chap, s.dns, s.dnsalt, s.wins, s.winsalt};
        QCOMPARE(taken.join(' '), QString(" true true 1.1.1.1   "));
        show();  // the widgets and their values moved on to a new frame
        QCOMPARE(find<QLineEdit>("LineEditPrimaryDNS", Dns)->text(), QString("1.1.1.1"));
        find<QLineEdit>("LineEditPrimaryDNS", Dns)->setText("5.5.5.5");
        click("ButtonCancelAdvance");
        QCOMPARE(settings().dns, QString("1.1.1.1"));
    }

    void locking() {
        show();
        dialog()->EnableAdvanceSettingUI(false);
        QVERIFY(!find<QWidget>(Wins)->isEnabled() && !find<QWidget>("AuthgroupBox")->isEnabled());
        find<QRadioButton>("RadioButtomDNSStatic")->setChecked(true);
        dialog()->EnableAdvanceSettingUI(true);
        QVERIFY(!find<QLineEdit>("LineEditPrimaryDNS", Dns)->isEnabled());
        QVERIFY(find<QLineEdit>("LineEditSecondaryDNS", Dns)->isEnabled());
        QCOMPARE(find<QLineEdit>("LineEditSecondaryDNS", Dns)->text(), QString("0.0.0.0"));
    }

    void endDuringTheMessage() {
        show();
        find<QLineEdit>("LineEditIP")->setText("x");
        Answers answers;
        answers.yes([] { NetConnectAdvancedSettingDlg::Destroy(); });
        click("ButtonOkAdvance");
        QVERIFY(!frame());
    }

    void pageBringsItToLife() {
        CNetConnectUIService* service = CNetConnectUIService::instance();
        NetConnectUIServiceTestAccess::giveAdvancedDialog(service);
        QVERIFY(service->Init());
        QVERIFY(QMetaObject::invokeMethod(service, "onClickAdvancedButton"));
        QVERIFY(frame() && frame()->isVisible());
        service->Notify(320, 0, 0);
        click("ButtonCancelAdvance");
        CNetConnectUIService::Destroy();
    }

private:
    static NetConnectAdvancedSettingDlg* dialog() { return NetConnectAdvancedSettingDlg::GetInstance(); }
    static AdvanceSetting settings() {
        AdvanceSetting result;
        dialog()->GetAdvanceSettings(&result);
        return result;
    }
    static void show() {
        QRect anywhere;
        QVERIFY(dialog()->ShowWindow(nullptr, anywhere));
        QVERIFY(frame());
    }

    std::unique_ptr<TestFolder> m_Folder;
};

QTEST_MAIN(TestAdvancedDialog)
#include "tst_advanced_dialog.moc"
