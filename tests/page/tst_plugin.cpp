// SPDX-License-Identifier: MIT
// The library as a loader meets it: its symbols, its virtual tables, its entry object's life.
#include <QJsonObject>
#include <QLibrary>
#include <cstring>

#include "NetConnectSettingUIPlugin.h"
#include "NetConnectUIService.h"
#include "PageFixture.h"

using F = PageFixture;

namespace {

// The place of a virtual operation in its class's table, counted from 0: the Itanium ABI keeps its byte offset, plus
// one, in the first word of the pointer to member.
template <class Member>
int slotOf(Member member) {
    std::ptrdiff_t words[2];
    static_assert(sizeof(member) == sizeof(words), "pointers to members have two words");
    std::memcpy(words, &member, sizeof(words));
    return words[1] == 0 ? int((words[0] - 1) / std::ptrdiff_t(sizeof(void*))) : -1;
}

template <class... Members>
QVector<int> slotsOf(Members... members) {
    return {slotOf(members)...};
}

const int AfterQObject = slotOf(&QObject::event) + 7;  // event is followed by six of QObject's own

}  // namespace

class tst_plugin : public PageTest {
    Q_OBJECT

private slots:
    void exportsNothingElse() {
        QProcess nm;
        nm.start(NM, {"-D", "--defined-only", PLUGIN_FILE});
        nm.waitForFinished();
        QStringList symbols;
        while (nm.canReadLine()) symbols.append(nm.readLine().trimmed().split(' ').last());
        symbols.sort();
        symbols.replaceInStrings("metadata_v2", "metadata");  // as Qt 6 calls it
        QCOMPARE(symbols.join(' '),
                 QString("qt_plugin_instance qt_plugin_query_metadata qt_plugin_query_verification_data"));
    }

    void metadata() {
        const auto query = (const char* (*)())QLibrary::resolve(PLUGIN_FILE, "qt_plugin_query_verification_data");
        QVERIFY(query);
        QCOMPARE(QByteArray(query()), QByteArray("pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=4.6.2\ndebug=false\n"
                                                 "buildkey=i386 linux g++-4 full-config"));
        const QJsonObject metadata = QPluginLoader(PLUGIN_FILE).metaData();
        QCOMPARE(metadata["IID"].toString(), QString(qobject_interface_iid<IUIPlugin*>()));
    }

    void virtualTables() {
        using P = CNetConnectSettingUIPlugin;
        using S = CNetConnectUIService;
        const QVector<int> entry = slotsOf(
            &P::ShowWindow, &P::DoModal, &P::Hide, &P::FitSize, &P::IsReady, &P::ChangeLang, &P::Init,
            &P::GetPluginType, &P::GetCLSID, &P::GetVersion, &P::GetPluginName, &P::IsAllowRelease, &P::QueryInterface,
            &P::UnSDKRegisterEvent, &P::Release, &P::GetLastError, &P::OnDestroy, &P::Notify);
        const QVector<int> service = slotsOf(
            &S::OnClickSettingOkButton, &S::OnClickSettingCancelButton, &S::ShowSettingDialog, &S::GetModuleName,
            &S::HideSetting, &S::IsActiveSetting, &S::IsIMSIROAMEnable, &S::GetAllDialUpProfile, &S::GetDialUpProfile,
            &S::SaveDialUpProfile, &S::GetDefaultDialUpProfileName, &S::SetDefaultDialUpProfileName,
            &S::GetUserPromptInfo, &S::GetFunctionConfigStringValues);
        for (const QVector<int>& table : {entry, service})
            for (int i = 0; i < table.size(); ++i) QCOMPARE(table[i], AfterQObject + i);
    }

    // What hosts and peers compiled against: each interface's own table, the destructor taking the first two places.
    void interfaceTables() {
        using B = IBasePlugin;
        using U = IUIPlugin;
        using G = ISettingUIPlugin;
        using I = INetConnectSetting;
        const QVector<QVector<int>> tables = {
            slotsOf(&IBaseInterface::Release, &IBaseInterface::GetLastError, &B::Init, &B::GetPluginType, &B::GetCLSID,
                    &B::GetVersion, &B::GetPluginName, &B::IsAllowRelease, &B::QueryInterface, &U::ShowWindow,
                    &U::DoModal, &U::Hide, &U::FitSize, &U::IsReady, &U::ChangeLang),
            slotsOf(&IDestroyEvent::OnDestroy, &IDestroyEvent::UnSDKRegisterEvent), slotsOf(&INotify::Notify),
            slotsOf(&G::OnClickSettingOkButton, &G::OnClickSettingCancelButton, &G::ShowSettingDialog,
                    &G::GetModuleName, &G::HideSetting, &G::IsActiveSetting),
            slotsOf(&I::IsIMSIROAMEnable, &I::GetAllDialUpProfile, &I::GetDialUpProfile, &I::SaveDialUpProfile,
                    &I::GetDefaultDialUpProfileName, &I::SetDefaultDialUpProfileName, &I::GetUserPromptInfo,
                    &I::GetFunctionConfigStringValues)};
        for (const QVector<int>& table : tables)
            for (int i = 0; i < table.size(); ++i) QCOMPARE(table[i], 2 + i);
        // Of the peers, counted from one.
        QCOMPARE(slotsOf(&IDialupUIService::IsConnected, &IDialupUIService::GetConnectedProfileName),
                 QVector<int>({5 - 1, 8 - 1}));
        QCOMPARE(slotsOf(&INotifyService::SendNotify, &IPluginContainer::FindPlugin), QVector<int>({5 - 1, 10 - 1}));
    }

    void casts() {
        f->start();
        void* const ui = static_cast<IUIPlugin*>(f->plugin());
        for (const char* name :
             {"IUIPlugin", "com.kestra.orbisdial.plugin.IBasePlugin", "com.kestra.orbisdial.plugin.IUIPlugin"})
            QCOMPARE(f->entry->qt_metacast(name), ui);
        QVERIFY(!f->entry->qt_metacast("ISettingUIPlugin"));
        QVERIFY(!f->plugin()->ChangeLang("") && f->plugin()->ChangeLang("xx"));
        QObject* service = &f->dialup;
        QCOMPARE(f->plugin()->QueryInterface(1, &service), 0);
        QCOMPARE(f->plugin()->QueryInterface(4098, nullptr), 23);
        QCOMPARE(service, &f->dialup);
        QCOMPARE(f->plugin()->QueryInterface(28689, &service), 1);
        QCOMPARE(service->qt_metacast("INetConnectSetting"), static_cast<void*>(f->profiles));
        QCOMPARE(service->qt_metacast("ISettingUIPlugin"), static_cast<void*>(f->setting));
    }

    // After the end every call takes its null branch, and a new service can be had.
    void destroyAndInitAgain() {
        f->start(F::profile("Home"));
        f->click("pBtnnewProfile");  // an edit is open when the end comes
        f->plugin()->OnDestroy();
        QVERIFY(!f->combo());
        QRect place;
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("Init m_pNetConnectUIService == NULL$"));
        QCOMPARE(f->plugin()->Init(), 0);
        QCOMPARE(f->plugin()->ShowWindow(f->window, place), 0);
        QCOMPARE(f->event(320), -1);
        f->plugin()->Hide();

        f->init();
        QCOMPARE(f->listed(), QStringList("Home"));
        QVERIFY(f->enabled("pBtnnewProfile") && !f->enabled("BtnsaveProfile"));
        f->click("BtnEditProfile");
    }
};

QTEST_MAIN(tst_plugin)
#include "tst_plugin.moc"
