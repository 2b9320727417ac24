// SPDX-License-Identifier: MIT
#include "MainWindow.h"

#include <vrks_simulated.h>

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QUrl>
#include <utility>

#include "AboutBox.h"
#include "BalanceDialog.h"
#include "CommonUtils.h"
#include "ConnectionView.h"
#include "DeviceText.h"
#include "HostSettings.h"
#include "HostText.h"
#include "INetConnectSetting.h"
#include "LeastHeight.h"
#include "Mnemonics.h"
#include "ModemPanel.h"
#include "NewProfileDialog.h"
#include "Plugins.h"
#include "PresetsDialog.h"
#include "ProfileChooser.h"
#include "SettingsDialog.h"
#include "SettingsPages.h"
#include "Startup.h"
#include "UnlockDialog.h"

namespace {

// A modem that is plugged in is known long before.
constexpr int SettlingMs = 1500;

// Why the modem that was asked for can't be had; empty when all is well.
QString modemProblem() {
    const char* problem = nullptr;
    vrks_backend_name(&problem);
    return DeviceText::inLanguage(QString::fromUtf8(problem));
}

// In the folder of an installation, or of a build, which has the same shape.
QString guideFile() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/../share/orbisdial/guide/index.html"));
}

}  // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent),
      m_View(new ConnectionView),
      m_ModemPanel(vrks_simulated_active() ? new ModemPanel : nullptr),
      m_ProblemLabel(new QLabel) {
    setObjectName(QStringLiteral("Host_MainWindow"));
    m_ProblemLabel->setObjectName(QStringLiteral("Host_Problems"));
    m_ProblemLabel->setTextFormat(Qt::PlainText);
    m_ProblemLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_ProblemLabel->setWordWrap(true);

    auto* middle = new QWidget;
    auto* layout = new QVBoxLayout(middle);
    layout->addWidget(m_View, 1);
    layout->addWidget(m_ProblemLabel);
    LeastHeight::keep(middle);
    setCentralWidget(middle);
    buildMenus();
    if (m_ModemPanel) addDock();

    connect(m_View, &ConnectionView::acted, this, &MainWindow::refresh);
    connect(m_View, &ConnectionView::unlockWanted, this, &MainWindow::unlock);
    connect(m_View, &ConnectionView::settingsWanted, this, &MainWindow::openSettings);
    connect(m_View, &ConnectionView::presetsWanted, this, &MainWindow::openPresets);
    connect(m_View, &ConnectionView::copyWanted, this, &MainWindow::copyProfile);
    m_Settled.setSingleShot(true);
    connect(&m_Settled, &QTimer::timeout, this, &MainWindow::refresh);
    m_Settled.start(SettlingMs);
    retranslate();
    m_View->setFocus();
}

void MainWindow::begin(const QVector<SettingsPage>& pages, const QVector<PluginProblem>& problems) {
    m_HasBegun = true;
    m_Problems = problems;
    setPages(pages);
    retranslate();
}

void MainWindow::requireBegun() {
    if (!m_HasBegun) emit beginWanted();
}

SettingsPages* MainWindow::pages() {
    requireBegun();
    if (!m_Settings) {
        m_Settings = new SettingsDialog(this);
        m_Settings->pages()->setPages(m_Pages);
        connect(m_Settings->pages(), &SettingsPages::acted, this, &MainWindow::refresh);
    }
    return m_Settings->pages();
}

void MainWindow::setPages(const QVector<SettingsPage>& pages) {
    m_Pages = pages;
    if (m_Settings) m_Settings->pages()->setPages(pages);
}

void MainWindow::clearPages() { setPages({}); }

void MainWindow::openSettings() {
    pages();
    m_Settings->open();
}

void MainWindow::refresh() {
    ConnectionFacts facts = m_HasBegun ? ConnectionFacts::now() : ConnectionFacts::starting();
    facts.isSettling = m_Settled.isActive();
    facts.wantsOperator = facts.wantsOperator && !m_View->chooser()->isChosen();
    m_Picture = ConnectionPicture::of(facts);
    m_View->refresh(facts, m_Picture);
    m_Action->setText(ConnectionPicture::actionText(m_Picture.action));
    m_Action->setEnabled(m_Picture.isActionAllowed);
    m_UnlockAction->setEnabled(m_Picture.canUnlock);
    if (m_Unlock) m_Unlock->refresh();
    if (m_Presets) m_Presets->refresh(m_Picture);
    if (m_Balance) m_Balance->refresh();
    if (m_ModemPanel) m_ModemPanel->refresh();
    if (m_Picture.isUp) rememberConnection();
    emit refreshed();
}

void MainWindow::retranslate() {
    setWindowTitle(hostText(m_ModemPanel ? "IDS_HOST_TITLE_SIMULATED" : "IDS_HOST_TITLE"));
    m_ConnectionMenu->setTitle(hostText("IDS_HOST_MENU_CONNECTION"));
    m_HelpMenu->setTitle(hostText("IDS_HOST_MENU_HELP"));
    for (const Entry& entry : std::as_const(m_Entries)) entry.action->setText(hostText(entry.id));
    if (m_Settings) m_Settings->retranslate();
    m_View->retranslate();
    if (m_Unlock) m_Unlock->retranslate();
    if (m_Presets) m_Presets->retranslate();
    if (m_Copy) m_Copy->retranslate();
    if (m_Balance) m_Balance->retranslate();
    if (m_ModemPanel) m_ModemPanel->retranslate();
    if (m_Dock) retranslateDock();
    const QString problems = problemText();
    m_ProblemLabel->setText(problems);
    m_ProblemLabel->setVisible(!problems.isEmpty());
    refresh();
}

void MainWindow::restore() {
    restoreState(HostSettings::windowState());
    if (!restoreGeometry(HostSettings::windowGeometry()))
        resize(sizeHint().boundedTo(screen()->availableGeometry().size()));
}

void MainWindow::present() {
    if (isMinimized()) showNormal();
    if (isHidden() && !m_LastPlace.isEmpty()) restoreGeometry(m_LastPlace);
    show();
    raise();
    activateWindow();
}

void MainWindow::offerImport(const QString& file) {
    requireBegun();
    present();
    const QString problem = importProblem(file);
    if (problem.isEmpty()) return;
    CommonUtils::ShowMessage(QMessageBox::Warning, QApplication::activeWindow(), hostText("IDS_HOST_TITLE"),
                             hostText("IDS_HOST_IMPORT_FAILED", {file, problem}), QStringLiteral("IDS_OK"));
}

// Empty when the user is being asked now.
QString MainWindow::importProblem(const QString& file) {
    if (QApplication::activeModalWidget()) return hostText("IDS_HOST_IMPORT_BUSY");
    QObject* const profiles =
        Startup::GetPluginContainer()->FindPlugin(ORBISDIAL_NETCONNECT_CLSID, NetConnectSettingKind);
    if (!profiles || !openPage(profiles)) return hostText("IDS_HOST_IMPORT_BUSY");
    QString answer;
    const bool called = QMetaObject::invokeMethod(profiles, ORBISDIAL_OFFER_IMPORT, Q_RETURN_ARG(QString, answer),
                                                  Q_ARG(QString, file));
    return called ? answer : hostText("IDS_HOST_IMPORT_BUSY");
}

// False when the page on show refuses to go, or this one is not there.
bool MainWindow::openPage(const QObject* page) {
    for (const SettingsPage& candidate : std::as_const(m_Pages)) {
        if (candidate.object != page || !pages()->showPage(candidate.pluginName)) continue;
        openSettings();
        return true;
    }
    return false;
}

bool MainWindow::quit() {
    m_IsEnding = true;
    const bool ends = close();
    m_IsEnding = false;
    return ends;
}

void MainWindow::abandon() {
    if (m_Settings) m_Settings->abandon();
    m_IsEnding = true;
}

void MainWindow::unlock() {
    if (!m_Picture.canUnlock) return;
    if (!m_Unlock) {
        m_Unlock = new UnlockDialog(this);
        m_Unlock->setAttribute(Qt::WA_DeleteOnClose);
        m_Unlock->open();
    }
    m_Unlock->activateWindow();
}

void MainWindow::openPresets() {
    requireBegun();
    if (!Plugins::presets()) return;
    if (!m_Presets) {
        m_Presets = new PresetsDialog(ConnectionFacts::now().imsi, this);
        m_Presets->refresh(m_Picture);
        connect(m_Presets, &PresetsDialog::connectWanted, this,
                [this](const QString& preset) { m_View->connectWith(preset); });
        connect(m_Presets, &PresetsDialog::profileMade, this, &MainWindow::useProfile);
        m_Presets->open();
    }
    m_Presets->activateWindow();
}

void MainWindow::copyProfile() {
    INetConnectSetting* const profiles = Plugins::profiles();
    const QString name = m_View->chooser()->current();
    if (m_Copy || name.isEmpty() || !profiles || !Plugins::presets()) return;
    DialupProfile profile;
    profiles->GetDialUpProfile(name, &profile);
    m_Copy = new NewProfileDialog(profile, name, this);
    connect(m_Copy, &NewProfileDialog::made, this, &MainWindow::useProfile);
    m_Copy->open();
}

void MainWindow::useProfile(const QString& name) {
    refresh();
    m_View->chooser()->choose(name);
    refresh();
}

// From then on it is no first start.
void MainWindow::rememberConnection() {
    if (m_IsConnectionRemembered) return;
    m_IsConnectionRemembered = true;
    HostSettings::set(HostSettings::HasConnected, true);
}

// The profile in use tells the operator, else the default, else what is proposed for the card.
void MainWindow::askBalance() {
    if (!m_Balance) {
        const ConnectionFacts facts = ConnectionFacts::now();
        QStringList profiles{facts.defaultProfile, facts.proposedPreset};
        if (!facts.isDown()) profiles.prepend(facts.profile);
        m_Balance = new BalanceDialog(profiles, this);
        m_Balance->setAttribute(Qt::WA_DeleteOnClose);
        m_Balance->open();
    }
    m_Balance->activateWindow();
}

// Room for long names beside the button.
QSize MainWindow::sizeHint() const {
    return QMainWindow::sizeHint().expandedTo({64 * fontMetrics().averageCharWidth(), 0});
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->setAccepted(!m_Settings || m_Settings->finish());
    if (!event->isAccepted()) return;
    const bool hides = m_HidesOnClose && !m_IsEnding && HostSettings::isOn(HostSettings::ClosesToTray);
    m_LastPlace = saveGeometry();  // a window that is shown again is placed anew otherwise
    if (hides) return;
    event->setAccepted(agreesToEnd());
    if (event->isAccepted()) closeForGood();
}

void MainWindow::buildMenus() {
    m_ConnectionMenu = menuBar()->addMenu(QString());
    Mnemonics::keep(m_ConnectionMenu);
    m_Action = m_ConnectionMenu->addAction(QString(), this, &MainWindow::act);
    m_Action->setObjectName(QStringLiteral("IDS_HOST_CONNECT"));
    m_Action->setShortcut(QStringLiteral("Ctrl+Return"));
    m_UnlockAction = addEntry(m_ConnectionMenu, "IDS_HOST_UNLOCK", {}, &MainWindow::unlock);
    addEntry(m_ConnectionMenu, "IDS_HOST_BALANCE", {}, &MainWindow::askBalance);
    m_ConnectionMenu->addSeparator();
    addEntry(m_ConnectionMenu, "IDS_HOST_PRESETS", QStringLiteral("Ctrl+P"), &MainWindow::openPresets);
    addEntry(m_ConnectionMenu, "IDS_HOST_NEW_FROM", QKeySequence::New, &MainWindow::copyProfile);
    m_ConnectionMenu->addSeparator();
    addEntry(m_ConnectionMenu, "IDS_HOST_SETTINGS", QStringLiteral("Ctrl+,"), &MainWindow::openSettings);
    m_ConnectionMenu->addSeparator();
    QAction* const quit = m_ConnectionMenu->addAction(QString(), this, &MainWindow::quit);
    quit->setShortcut(QKeySequence::Quit);
    if (quit->shortcut().isEmpty()) quit->setShortcut(QStringLiteral("Ctrl+Q"));
    quit->setObjectName(QStringLiteral("IDS_HOST_QUIT"));
    quit->setMenuRole(QAction::QuitRole);
    m_Entries.append({quit, "IDS_HOST_QUIT"});
    m_HelpMenu = menuBar()->addMenu(QString());
    Mnemonics::keep(m_HelpMenu);
    addEntry(m_HelpMenu, "IDS_HOST_GUIDE", QKeySequence(Qt::Key_F1), &MainWindow::openGuide);
    addEntry(m_HelpMenu, "IDS_HOST_ABOUT", {}, &MainWindow::showAbout);
}

QAction* MainWindow::addEntry(QMenu* menu, const char* id, const QKeySequence& shortcut, void (MainWindow::*slot)()) {
    QAction* const action = menu->addAction(QString(), this, slot);
    action->setShortcut(shortcut);
    action->setObjectName(QLatin1String(id));
    m_Entries.append({action, id});
    return action;
}

void MainWindow::addDock() {
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(m_ModemPanel);
    m_Dock = new QDockWidget(this);
    m_Dock->setObjectName(QStringLiteral("Host_ModemDock"));
    m_Dock->setWidget(area);
    addDockWidget(Qt::RightDockWidgetArea, m_Dock);
    QAction* const toggle = m_Dock->toggleViewAction();
    toggle->setObjectName(QStringLiteral("IDS_HOST_MODEM_TITLE"));
    m_HelpMenu->insertAction(m_HelpMenu->actions().first(), toggle);
}

// The panel's texts decide its width, unless the screen leaves less beside the connection: then it scrolls.
void MainWindow::retranslateDock() {
    m_Dock->setWindowTitle(hostText("IDS_HOST_MODEM_TITLE"));
    auto* const area = qobject_cast<QScrollArea*>(m_Dock->widget());
    const int bar = area->verticalScrollBar()->sizeHint().width();
    const int left = screen()->availableGeometry().width() - centralWidget()->minimumSizeHint().width() - bar;
    area->setMinimumWidth(qMin(m_ModemPanel->sizeHint().width() + bar, qMax(left, area->minimumSizeHint().width())));
}

void MainWindow::act() { m_View->act(); }

void MainWindow::openGuide() { QDesktopServices::openUrl(QUrl::fromLocalFile(guideFile())); }

void MainWindow::showAbout() { AboutBox::show(this); }

void MainWindow::closeForGood() {
    HostSettings::keepWindow(saveGeometry(), saveState());
    emit closed();
}

// A connection that ends with the program is not ended without a word.
bool MainWindow::agreesToEnd() {
    if (!m_Picture.isUp) return true;
    const DataConnection connection = DataConnection::current();
    const bool stays = connection.isUp() && !(connection.isOwn && connection.endsWithProcess);
    const char* const text = stays ? "IDS_HOST_END_STAYS" : "IDS_HOST_END_DISCONNECTS";
    return CommonUtils::ShowMessage(QMessageBox::Question, this, hostText("IDS_HOST_TITLE"), hostText(text),
                                    hostText("IDS_HOST_QUIT"),
                                    QStringLiteral("IDS_CANCEL")) == CommonUtils::FirstButton;
}

QString MainWindow::problemText() const {
    if (!m_HasBegun) return QString();
    QStringList lines;
    if (!modemProblem().isEmpty()) lines.append(hostText("IDS_HOST_MODEM_PROBLEM", {modemProblem()}));
    for (const PluginProblem& problem : m_Problems) {
        lines.append(hostText("IDS_HOST_PLUGIN_PROBLEM", {QFileInfo(problem.file).fileName(), problem.text()}));
    }
    return lines.join(QLatin1Char('\n'));
}
