// SPDX-License-Identifier: MIT
#include "NetConnectSettingUILogic.h"

#include <QFileInfo>
#include <QVariant>

#include "Change.h"
#include "INetConnectSetting.h"
#include "NetConnectDevice.h"
#include "NetConnectLogicHold.h"
#include "ReasonText.h"
#include "Trace.h"
#include "UserStore.h"
#include "vrks.h"

// Atomic, since the device's thread asks whether there is an instance.
static std::atomic<NetConnectSettingUILogic*> m_pNetConnectSettingUILogic(nullptr);

NetConnectSettingUILogic* NetConnectSettingUILogic::GetInstance(LoadMoment moment) {
    if (!m_pNetConnectSettingUILogic) m_pNetConnectSettingUILogic = new NetConnectSettingUILogic(moment);
    return m_pNetConnectSettingUILogic;
}

void NetConnectSettingUILogic::ReadAhead() {
    if (!m_pNetConnectSettingUILogic) NetConnectXMLParse::GetInstance()->readAhead();
}

void NetConnectSettingUILogic::Destroy() {
    NetConnectSettingUILogic* logic = m_pNetConnectSettingUILogic;
    if (!logic) return;
    // A callback that is running still uses the instance; once this returns, none is.
    VRKS_DevSrv_UnRegisterDevInitEventCallback(&NetConnectSettingUILogic::OnDevInitEvent);
    delete logic;
    m_pNetConnectSettingUILogic = nullptr;
}

NetConnectSettingUILogic::NetConnectSettingUILogic(LoadMoment moment)
    : m_Store(UserStore::instance()),
      m_pXMLParse(nullptr),
      m_pProfileTemplateHash(nullptr),
      m_pFunctionHash(nullptr),
      m_pProfileListHash(nullptr),
      m_pIMSIHash(nullptr),
      m_bIsUserSet(false),
      m_bIMSIDefaultForgotten(false),
      m_bLoading(false),
      m_bLibraryWhole(false),
      m_nConfigStatus(FileMissing),
      m_bIMSIRead(false),
      m_bForeignDefault(false),
      m_nLibraryRevision(-1),
      m_nHolds(0) {
    if (moment == WhenNeeded && isUserFileLarge()) m_Store.awaitProfiles();
    Init();
}

NetConnectSettingUILogic::~NetConnectSettingUILogic() {
    try {
        ClearAutomaticDefault();
    } catch (...) {
        // The rest of the end must not depend on the user's file.
    }
    VRKS_DevSrv_UnRegisterDevInitEventCallback(&NetConnectSettingUILogic::OnDevInitEvent);
    delete m_pProfileTemplateHash;
    delete m_pFunctionHash;
    delete m_pProfileListHash;
    delete m_pIMSIHash;
    m_Store.detach();
    while (m_nHolds > 0) letGo();
    NetConnectXMLParse::Destroy();
}

int NetConnectSettingUILogic::Init() {
    const Hold hold(this);
    m_pXMLParse = NetConnectXMLParse::GetInstance();
    qDebug("%s: %s: ", __FILE__, "Init");
    if (!m_pXMLParse) return NoXMLParse;
    attachStore();
    Follow(false);

    delete m_pProfileTemplateHash;
    delete m_pFunctionHash;
    delete m_pProfileListHash;
    delete m_pIMSIHash;
    m_pProfileTemplateHash = m_pFunctionHash = m_pProfileListHash = nullptr;
    m_pIMSIHash = nullptr;
    int result = getConfigData();

    forgetForeignDefault();
    readLibrary(&m_strDefaultProfile);
    if (!m_Store.isAwaited()) m_Store.read();
    m_bLoading = true;  // the two lists need the library
    m_APNProfileList = getAPNListFromHash();

    m_IMSIProfileList.clear();
    m_strMatchedPrefix.clear();
    m_strProposedOperator.clear();
    m_bIMSIRead = false;
    if (followsIMSI() && NetConnectDevice::isReady()) result = getIMSIProfileList();
    m_bLoading = false;
    return result;
}

void NetConnectSettingUILogic::attachStore() {
    UserStoreMembers members;
    members.profiles = &m_UserProfileList;
    members.defaultName = &m_strDefaultProfile;
    members.isUserSet = &m_bIsUserSet;
    m_Store.attach(members, m_pXMLParse, [this] { publishStatus(); });
}

int NetConnectSettingUILogic::getConfigData() {
    const Hold hold(this);
    delete m_pProfileTemplateHash;
    delete m_pFunctionHash;
    delete m_pProfileListHash;
    delete m_pIMSIHash;
    m_pProfileTemplateHash = new QHash<QString, NetConnectXML>;
    m_pFunctionHash = new QHash<QString, NetConnectXML>;
    m_pProfileListHash = new QHash<QString, NetConnectXML>;
    m_pIMSIHash = new QMultiHash<QString, IMSIINFO>;
    qDebug("%s: %s: ", __FILE__, "getConfigData");
    if (!m_pXMLParse) {
        qWarning("Failed to Memory allocation == %d", int(ObjectMissing));
        return ObjectMissing;
    }

    m_nConfigStatus = Success;
    int result = readConfigPair("common", "common", &m_UserPrompt);
    const NetConnectDevice::Caller caller = {__FILE__, "getConfigData"};
    const QString deviceName = NetConnectDevice::customizeName(caller);
    if (NetConnectDevice::isCustomized(deviceName)) {
        m_pIMSIHash->clear();
        result = readConfigPair("customize", deviceName, nullptr);
    }
    if (NetConnectDevice::isCDMAProduct(caller)) result = readConfigPair("common", "CDMA", nullptr);
    m_ConfigProblem = LastStorageProblem();
    if (m_ConfigProblem.file != NetConnectXMLParse::configurationPath()) m_ConfigProblem = NetConnectStorageProblem();
    keepConfiguration();
    return result;
}

// Without its configuration a program that is running would lose every preset, and store plain passwords: where the
// file can't be read again, what was read before stays in force.
void NetConnectSettingUILogic::keepConfiguration() {
    KeptConfiguration& kept = m_KeptConfiguration;
    if (m_nConfigStatus == Success) {
        kept.isKnown = true;
        kept.templates = *m_pProfileTemplateHash;
        kept.functions = *m_pFunctionHash;
        kept.profileList = *m_pProfileListHash;
        kept.imsiProfiles = *m_pIMSIHash;
        kept.prompt = m_UserPrompt;
    } else if (kept.isKnown) {
        *m_pProfileTemplateHash = kept.templates;
        *m_pFunctionHash = kept.functions;
        *m_pProfileListHash = kept.profileList;
        *m_pIMSIHash = kept.imsiProfiles;
        m_UserPrompt = kept.prompt;
        reportKept(NetConnectXMLParse::configurationPath());
    }
}

// A file that is just not there is no problem by itself, but it is where it was there before.
void NetConnectSettingUILogic::reportKept(const QString& path) {
    if (LastStorageProblem().file != path)
        m_pXMLParse->reportProblem(path, Reason("can't be read now; what was last read of it stays in force"));
}

int NetConnectSettingUILogic::readConfigPair(QString group, QString module, UserPrompt* prompt) {
    const int status = m_pXMLParse->GetSettingsFromXML(&group, &module, m_pProfileTemplateHash, m_pFunctionHash,
                                                       m_pProfileListHash, m_pIMSIHash, prompt);
    if (m_nConfigStatus == Success) m_nConfigStatus = status;
    return status;
}

QString NetConnectSettingUILogic::translated(const QString& langid) {
    return Change::tr(langid, QLatin1String("NetConnectPlugin"));
}

// Gives a profile the name that its langid stands for; false when there is none, and the stored name stays. The list
// goes on sharing its profiles with others until a name really changes.
bool NetConnectSettingUILogic::translateName(QList<DialupProfile>* profiles, int index) {
    const DialupProfile& profile = profiles->at(index);
    if (profile.langid.isEmpty()) return false;
    const QString name = translated(profile.langid);
    if (name.isEmpty() || name == profile.name) return false;
    (*profiles)[index].name = name;
    return true;
}

// A library of which no name follows the language stays unread until somebody asks for it.
void NetConnectSettingUILogic::readLibrary(QString* defaultName) {
    const bool wasEmpty = m_ProfileLibList.isEmpty() && (!m_UnreadLibrary || m_UnreadLibrary->isEmpty());
    ProfileDocument document;
    const NetConnectRememberedDefaults remembered = m_pXMLParse->rememberedDefaults();
    const int status = m_pXMLParse->LookIntoLibrary(&document, defaultName);
    m_pXMLParse->setRememberedDefaults(remembered);
    if (status != Success && m_bLibraryWhole && !wasEmpty) {
        reportKept(NetConnectXMLParse::shippedPath(NetConnectFileNames::Library));
    } else {
        if (document.unread && document.unread->hasLangids()) document.readRest();
        m_bLibraryWhole = status == Success;
        m_UnreadLibrary = document.unread;
        m_ProfileLibList = document.profiles;
        collectLangids(m_ProfileLibList);
    }
    for (int i = 0; i < m_ProfileLibList.size(); ++i) translateName(&m_ProfileLibList, i);
}

// Reads a file that is not the user's: the defaults that it names for the card's modes are not the user's.
int NetConnectSettingUILogic::readForeignFile(QList<DialupProfile>* profiles, QString* defaultName,
                                              const QString& fileName) {
    const NetConnectRememberedDefaults remembered = m_pXMLParse->rememberedDefaults();
    const int status = m_pXMLParse->GetAllProfileFromUserDataXML(profiles, defaultName, fileName, nullptr);
    m_pXMLParse->setRememberedDefaults(remembered);
    return status;
}

// Puts the default back that reading a browsed file replaced.
void NetConnectSettingUILogic::forgetForeignDefault() {
    if (!m_bForeignDefault) return;
    m_strDefaultProfile = m_OwnDefault.name;
    m_bIsUserSet = m_OwnDefault.isUserSet;
    m_bForeignDefault = false;
}

// A file of a hundred profiles is read within a millisecond.
bool NetConnectSettingUILogic::isUserFileLarge() {
    const qint64 soonRead = 48 * 1024;  // bytes
    return QFileInfo(NetConnectXMLParse::GetInstance()->userProfilePath()).size() > soonRead;
}

void NetConnectSettingUILogic::RegisterDevice() {
    const char* const function = "RegisterDevice";
    qDebug("%s: %s: %s: Entered", traceTime().constData(), __FILE__, function);
    if (VRKS_DevSrv_RegisterDevInitEventCallback(&NetConnectSettingUILogic::OnDevInitEvent) != 0)
        qDebug("%s: %s: VRKS_DevSrv_RegisterDevInitEventCallback failed", __FILE__, function);
}

void NetConnectSettingUILogic::UnRegisterDevice() {
    const char* const function = "UnRegisterDevice";
    qDebug("%s: %s: %s: Entered", traceTime().constData(), __FILE__, function);
    qDebug("%s: %s: %s: Calling VRKS_DevSrv_UnRegisterDevInitEventCallback()", traceTime().constData(), __FILE__,
           function);
    if (VRKS_DevSrv_UnRegisterDevInitEventCallback(&NetConnectSettingUILogic::OnDevInitEvent) != 0)
        qDebug("%s: %s: %s: VRKS_DevSrv_UnRegisterDevInitEventCallback failed", traceTime().constData(), __FILE__,
               function);
    qDebug("%s: %s: %s: VRKS_DevSrv_UnRegisterDevInitEventCallback Success", traceTime().constData(), __FILE__,
           function);
}

int NetConnectSettingUILogic::OnDevInitEvent(int event, void*) {
    const char* const function = "OnDevInitEvent";
    qDebug("%s: %s: %s:  Entered", traceTime().constData(), __FILE__, function);
    NetConnectSettingUILogic* logic = m_pNetConnectSettingUILogic;
    if (!logic) {
        qDebug("%s: %s: %s: _Instance is NULL ", traceTime().constData(), __FILE__, function);
        return 0;
    }
    bool isReady = event == VRKS_EVENT_DEV_CARD_CHANGED;
    if (event == VRKS_EVENT_DEV_DEVICE_INIT_FINISH) {
        qDebug("%s: %s: %s: VRKS_EVENT_DEV_DEVICE_INIT_FINISH ", traceTime().constData(), __FILE__, function);
        isReady = NetConnectDevice::isReady();
    }
    if (isReady) {
        logic->ResetFlags();
        emit logic->DeviceInit();
    }
    qDebug("%s: %s: %s:  Exit", traceTime().constData(), __FILE__, function);
    return event == VRKS_EVENT_DEV_DEVICE_INIT_FINISH || event == VRKS_EVENT_DEV_CARD_CHANGED ? 1 : 0;
}

void NetConnectSettingUILogic::ResetFlags() { m_bIMSIDefaultForgotten = true; }

NetConnectStorageProblem NetConnectSettingUILogic::LastStorageProblem() const {
    return m_pXMLParse ? m_pXMLParse->lastProblem() : NetConnectStorageProblem();
}

void NetConnectSettingUILogic::PublishStatus(QObject* object) {
    m_pStatusObject = object;
    publishStatus();
}

void NetConnectSettingUILogic::letGo() {
    --m_nHolds;
    m_Mutex.unlock();
}

bool NetConnectSettingUILogic::AreProfilesAwaited() const { return m_Store.isAwaited(); }

void NetConnectSettingUILogic::Follow(bool follows) { m_Store.follow(follows); }

void NetConnectSettingUILogic::publishStatus() {
    if (!m_pStatusObject) return;
    const NetConnectStorageProblem problem = LastStorageProblem();
    m_pStatusObject->setProperty(ORBISDIAL_LAST_STORAGE_PROBLEM, problem.isNull() ? QString() : problem.text());
    m_pStatusObject->setProperty(ORBISDIAL_MATCHED_IMSI_PREFIX, m_strMatchedPrefix);
    m_pStatusObject->setProperty(ORBISDIAL_PROPOSED_DEFAULT, ProposedDefault());
    m_pStatusObject->setProperty(ORBISDIAL_PROPOSED_OPERATOR, ProposedOperator());
    m_pStatusObject->setProperty(ORBISDIAL_PROFILES_AWAITED, AreProfilesAwaited());
}
