// SPDX-License-Identifier: MIT
#include "Host.h"

#include <vrks_simulated.h>

#include <QApplication>
#include <QEvent>
#include <utility>

#include "Change.h"
#include "ChosenModem.h"
#include "CommonUtils.h"
#include "ConnectionView.h"
#include "DeviceText.h"
#include "Plugins.h"
#include "StandardOutput.h"
#include "Startup.h"
#include "StateSign.h"

namespace {

// A window that is minimised, or behind a locked screen, is not painted.
constexpr int LatestStartMs = 1000;

QThread* makeDeviceLoading() {
    return QThread::create([] { vrks_backend_name(nullptr); });
}

// The window says so too.
void reportModemProblem() {
    const char* problem = nullptr;
    vrks_backend_name(&problem);
    if (problem) StandardOutput::writeDiagnostic("orbisdial", DeviceText::inLanguage(QString::fromUtf8(problem)));
}

}  // namespace

Host::Host() : m_DeviceLoading(makeDeviceLoading()), m_Plugins(&m_NotifyService) {
    CommonUtils::SetMainWindow(&m_Window);
    Startup::GetPluginContainer()->AddPlugin(&m_NotifyService, ORBISDIAL_NOTIFYSERVICE_CLSID, NotifyServicePluginKind);
    m_NotifyService.AddListener(ORBISDIAL_HOST_LISTENER_CLSID, this);

    m_Refresh.setSingleShot(true);
    connect(&m_Refresh, &QTimer::timeout, &m_Window, &MainWindow::refresh);
    connect(&m_SettingsPage, &HostSettingsPage::languageChosen, this, &Host::changeLanguage);
    // A session that ends waits for no answer; a signal ends the event loop, and the pages go with what is open.
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this] { m_Window.abandon(); });
    connect(&m_Messages, &DesktopMessages::clicked, &m_Window, &MainWindow::present);
    connect(&m_Messages, &DesktopMessages::failed, this, [this](const Notice& notice) {
        if (m_Tray) m_Tray->say(notice);
    });
    startBehindPaint();
}

void Host::startBehindPaint() {
    m_Window.installEventFilter(this);
    m_LatestStart.setSingleShot(true);
    connect(&m_LatestStart, &QTimer::timeout, this, &Host::startWhenReady);
    m_LatestStart.start(LatestStartMs);
    connect(&m_Window, &MainWindow::beginWanted, this, &Host::start);
    connect(m_DeviceLoading.get(), &QThread::finished, this, &Host::startWhenReady);
    m_DeviceLoading->start();
}

// Never waits.
void Host::startWhenReady() {
    const bool isTime = m_IsSeen || !m_LatestStart.isActive();
    if (isTime && m_DeviceLoading->isFinished()) start();
}

void Host::start() {
    if (m_HasStarted) return;
    m_HasStarted = true;
    m_LatestStart.stop();
    m_DeviceLoading->wait();
    reportModemProblem();
    ChosenModem::use();
    followDevice();
    connect(&m_Window, &MainWindow::refreshed, &m_Messages, [this] { m_Messages.refresh(m_Window.picture()); });
    connect(&m_Window, &MainWindow::refreshed, this, &Host::showSign);
    m_Plugins.start(CommonUtils::GetPluginLibraryPath() + QStringLiteral("/plugins"));
    m_Window.begin(m_Plugins.pages() + QVector<SettingsPage>{{&m_SettingsPage, &m_SettingsPage, "Host", true}},
                   m_Plugins.problems());
    watchPlugins();
    emit started();
}

// In title bars, and wherever a desktop knows no icon of the program's.
void Host::showSign() {
    const ConnectionPicture::Sign sign = m_Window.picture().sign;
    if (std::exchange(m_ShownSign, sign) != sign) QGuiApplication::setWindowIcon(StateSign::icon(sign));
}

void Host::followDevice() {
    m_DeviceEvents.emplace();
    connect(&*m_DeviceEvents, &DeviceEvents::systemModeChanged, this, [this] {
        if (m_NetworkKind.hasChanged()) m_Plugins.notifyAll(NotifySystemModeChanged);
    });
    connect(&*m_DeviceEvents, &DeviceEvents::changed, this, [this] { m_Refresh.start(); });
}

Host::~Host() {
    m_Tray.reset();
    m_Window.clearPages();
    m_Plugins.stop();
    m_NotifyService.RemoveListener(this);
    Startup::GetPluginContainer()->RemovePlugin(&m_NotifyService);
    CommonUtils::SetMainWindow(nullptr);
    m_DeviceLoading->wait();
}

bool Host::changeLanguage(const QString& code) {
    if (!Change::SetLanguage(code)) return false;
    m_Plugins.notifyAll(NotifyLanguageChanged);
    m_SettingsPage.retranslate();
    m_Messages.forget();
    m_Window.retranslate();
    if (m_Tray) m_Tray->retranslate();
    return true;
}

void Host::useTray() {
    if (m_Tray || !QSystemTrayIcon::isSystemTrayAvailable()) return;
    m_Tray = std::make_unique<Tray>();
    connect(m_Tray.get(), &Tray::windowWanted, &m_Window, &MainWindow::present);
    connect(m_Tray.get(), &Tray::quitWanted, &m_Window, &MainWindow::quit);
    connect(m_Tray.get(), &Tray::acted, this, [this] {
        const ConnectionPicture::Action action = m_Window.picture().action;
        const bool opensDialog = action == ConnectionPicture::Unlock || action == ConnectionPicture::ChooseOperator;
        if (opensDialog) m_Window.present();
        m_Window.view()->act();
    });
    connect(m_Tray.get(), &Tray::connectWanted, m_Window.view(), &ConnectionView::connectWith);
    connect(&m_Window, &MainWindow::refreshed, m_Tray.get(), [this] { m_Tray->refresh(m_Window.picture()); });
    m_Tray->refresh(m_Window.picture());
    m_Window.setHidesOnClose(true);
    m_IsSeen = true;
    startWhenReady();
}

int Host::Notify(unsigned int event, unsigned int param1, unsigned int param2) {
    if (event == NotifyConnectionChanged) m_Plugins.notifyAll(event, param1, param2);
    m_Refresh.start();
    return 0;
}

bool Host::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::DynamicPropertyChange) m_Refresh.start();
    // Queued: the window's own children are painted in the same pass.
    if (event->type() == QEvent::Paint && watched == &m_Window && !std::exchange(m_IsSeen, true))
        QMetaObject::invokeMethod(this, &Host::startWhenReady, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void Host::watchPlugins() {
    for (QObject* object : {Plugins::profilesObject(), Plugins::dialerObject()}) {
        if (object) object->installEventFilter(this);
    }
}
