// SPDX-License-Identifier: MIT
// The advanced dialog by itself, and brought to life by the page.
#include <QApplication>
#include <QRadioButton>

#include "Answers.h"
#include "ExtendLineEdit.h"
#include "NetConnectAdvancedSettingDlg.h"
#include "NetConnectUIService.h"
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

}  // namespace

class tst_advanced_dialog : public QObject {
    Q_OBJECT

private slots:
    void cleanup() {
        NetConnectAdvancedSettingDlg::Destroy();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(QApplication::topLevelWidgets().isEmpty());  // the detached widgets went along
    }

    void takesAProfileAndChecksItsAddresses() {
        DialupProfile profile;
        profile.ip = "4.4.4.4";
        profile.chap = "true";
        profile.dns = "1.1.1.1";
        profile.wins = "2.2.2.2";
        dialog()->InitAdvanceUI(nullptr);
        dialog()->SetProfileAdvanceSetting(profile, "NEW");
        show();
        QVERIFY(find<QRadioButton>("RadioButtomDNSStatic")->isChecked());
        click("RadioButtonWINSDynamic");
        auto* alternative = find<QLineEdit>("LineEditSecondaryDNS", "GroupBoxDNSSetting");
        for (const char* refused : {"0.1.2.3", "00.0.0.0", "224.0.0.1", "1.2.3.256", "1..2.3", "1.2.3"}) {
            alternative->setText(refused);
            m_Answers.ok();
            click("ButtonOkAdvance");
            QVERIFY2(m_Answers.allGiven() && frame(), refused);
        }
        alternative->setText("223.255.255.255");
        click("ButtonOkAdvance");
        QVERIFY(!frame());
        show();  // the widgets moved on to a new frame
        for (bool enabled : {false, true}) {
            dialog()->EnableAdvanceSettingUI(enabled);
            QCOMPARE(find<QLineEdit>("LineEditIP")->isEnabled(), enabled);
        }
        find<QLineEdit>("LineEditIP")->setText("5.5.5.5");
        click("ButtonCancelAdvance");
        AdvanceSetting s;
        dialog()->GetAdvanceSettings(&s);
        const QStringList taken = {s.ip, s.pap, s.chap, s.dns, s.dnsalt, s.wins, s.winsalt};
        QCOMPARE(taken.join(' '), QString("4.4.4.4 false true 1.1.1.1 223.255.255.255  "));
    }

    void beginsAnewAfterItsWindowWent() {
        dialog()->InitAdvanceUI(nullptr);
        show();
        delete frame();
        DialupProfile profile;
        profile.dns = "1.1.1.1";
        dialog()->InitAdvanceUI(nullptr);
        dialog()->SetProfileAdvanceSetting(profile, "NEW");
        show();
        QCOMPARE(find<QLineEdit>("LineEditPrimaryDNS", "GroupBoxDNSSetting")->text(), QString("1.1.1.1"));
        click("ButtonOkAdvance");
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
    static void show() {
        QRect anywhere;
        QVERIFY(dialog()->ShowWindow(nullptr, anywhere));
        QVERIFY(frame());
    }

    const TestFolder m_Folder;
    Answers m_Answers;
};

QTEST_MAIN(tst_advanced_dialog)
#include "tst_advanced_dialog.moc"
