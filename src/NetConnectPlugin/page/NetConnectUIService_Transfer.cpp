// SPDX-License-Identifier: MIT
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include "NetConnectLeastSize.h"
#include "NetConnectPageWatch.h"
#include "NetConnectSettingUILogic.h"
#include "NetConnectUIService.h"
#include "TextValues.h"
#include "Trace.h"

namespace {

const int FrameType = 1;  // ExtendDialog's widget type for small dialogs

QString startingFile() { return QDir::homePath() + QString::fromLatin1("/*.prof"); }
QString fileFilter() { return QString::fromLatin1("Files (*.prof)"); }

QPushButton* createButton(QWidget* parent, const char* name) {
    QPushButton* button = new QPushButton(parent);
    button->setObjectName(QString::fromLatin1(name));
    return button;
}

}  // namespace

void CNetConnectUIService::onClickImportButton() { openTransferDialog(true); }

void CNetConnectUIService::onClickExportButton() { openTransferDialog(false); }

void CNetConnectUIService::openTransferDialog(bool import) {
    if (!m_pNetConnectWidget) return;
    m_bImport = import;
    initImportExportDialog();
    setLanguage();
    setLeastSize(m_pImportExportDialog, QSize(456, 373));
    CommonUtils::MoveCentre(m_pImportExportDialog);
    m_pImportExportDialog->show();
    m_bBrowsed = false;  // what the opening read is forgotten
}

QString CNetConnectUIService::OfferImport(const QString& path) {
    if (!m_pLogic || !m_pNetConnectWidget || !isFunctionOn("IMPORT")) return text("IDS_NETCONNECT_MSG_IMPORT_OFF");
    if (m_Edit.open) return text("IDS_NETCONNECT_TIP_EDIT_OPEN");
    const QString problem = offerProblem(path);
    if (!problem.isEmpty()) return problem;
    openTransferDialog(true);
    readProfileFromFile(path);
    m_pImportExportTree->setRootIsDecorated(true);
    m_pProfileRootItem->setCheckState(0, Qt::Checked);  // and so every profile
    return QString();
}

// Why a file has nothing to offer. The reading leaves nothing behind.
QString CNetConnectUIService::offerProblem(const QString& path) {
    QList<QString> names;
    m_bBrowsed = true;
    const int status = m_pLogic->GetDialUpProfileFromFile(&names, path);
    QString problem;
    if (status == NetConnectSettingUILogic::FileMissing)
        problem = text("IDS_NETCONNECT_MSG_IMPORT_MISSING");
    else if (status != NetConnectSettingUILogic::Success)
        problem = m_pLogic->LastStorageProblem().text();
    else if (names.isEmpty())
        problem = text("IDS_NETCONNECT_MSG_IMPORT_NONE");
    finishTransfer();
    return problem;
}

// Reading a file to import from leaves its default name in the logic: reading everything again puts the user's back.
void CNetConnectUIService::finishTransfer() {
    if (!m_bBrowsed || !m_pLogic) return;
    m_bBrowsed = false;
    m_pLogic->Init();
    applySettingsFromConfigFile();
    rebuildListUnderSelection();
}

void CNetConnectUIService::initImportExportDialog() {
    delete m_pImportExportDialog;  // the previous one, closed by now: nobody shall meet it again
    m_pImportExportDialog = new ExtendDialog(m_pNetConnectWidget, Qt::WindowCloseButtonHint, FrameType);
    m_pImportExportWidget = new QWidget(m_pImportExportDialog);
    m_pImportExportDialog->AddMainWidget(m_pImportExportWidget);
    m_pImportExportDialog->setWindowModality(Qt::WindowModal);
    createTransferWidgets();
    initImportExportTree();
    connect(m_pBtnImportExportOk, SIGNAL(clicked()), this, SLOT(onClickImportExportOkButton()));
    connect(m_pBtnImportExportCancel, SIGNAL(clicked()), this, SLOT(onClickImportExportCancelButton()));
    connect(m_pBtnImportExportBrowse, SIGNAL(clicked()), this, SLOT(onClickImportExportBrowseButton()));
    connect(m_pImportExportDialog, SIGNAL(rejected()), m_pPageWatch, SLOT(onTransferClosed()));
}

void CNetConnectUIService::createTransferWidgets() {
    QWidget* const main = m_pImportExportWidget;
    main->setObjectName(QString::fromLatin1("NetConnectSettingUIPlugin_DialogImportExport"));
    m_pImportExportTree = new QTreeWidget(main);
    m_pImportExportTree->setObjectName(QString::fromLatin1("NetConnectSettingUIPlugin_TreeWidgetImportExport"));
    m_pImportExportTree->setHeaderHidden(true);
    m_pImportExportTree->setSelectionBehavior(QAbstractItemView::SelectItems);
    m_pBtnImportExportBrowse = createButton(main, "NetConnectSettingUIPlugin_ButtonImportBrowse");
    m_pBtnImportExportBrowse->setVisible(m_bImport);
    m_pBtnImportExportOk = createButton(main, "NetConnectSettingUIPlugin_ButtonImportOK");
    m_pBtnImportExportCancel = createButton(main, "NetConnectSettingUIPlugin_ButtonImportCancel");
    m_pBtnImportExportOk->setDefault(true);  // or Return would press Browse, also where that is hidden

    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->setContentsMargins(0, 10, 0, 0);
    buttons->setAlignment(Qt::AlignRight);
    buttons->setSpacing(25);
    buttons->addWidget(m_pBtnImportExportBrowse);
    buttons->addWidget(m_pBtnImportExportOk);
    buttons->addWidget(m_pBtnImportExportCancel);
    QVBoxLayout* layout = new QVBoxLayout(main);
    layout->addWidget(m_pImportExportTree);
    layout->addLayout(buttons);
    layout->addSpacing(10);
}

void CNetConnectUIService::initImportExportTree() {
    m_pProfileRootItem = nullptr;
    if (!m_bImport || (m_pLogic && isFunctionOn("ALLLIB"))) return readProfileFromFile(QString());
    createTransferRoot();
    m_pImportExportTree->setRootIsDecorated(false);
}

void CNetConnectUIService::createTransferRoot() {
    m_pProfileRootItem = new QTreeWidgetItem(m_pImportExportTree);
    m_pProfileRootItem->setText(0, text("IDS_TREENODE_PROFILEINPUTDLG_DIALUP"));
    m_pProfileRootItem->setCheckState(0, Qt::Unchecked);
}

void CNetConnectUIService::readProfileFromFile(QString path) {
    if (!m_pLogic || !m_pImportExportTree) return;
    m_pImportExportTree->disconnect(this);
    m_pImportExportTree->clear();
    m_pCurrentItem = nullptr;
    createTransferRoot();
    m_pProfileRootItem->setExpanded(true);
    QList<QString> names;
    m_bBrowsed = m_bImport;
    if (m_bImport)
        m_pLogic->GetDialUpProfileFromFile(&names, path);
    else
        m_pLogic->GetAllDialUpProfile(&names);
    for (int i = 0; i < names.size(); ++i) {
        m_pCurrentItem = new QTreeWidgetItem(m_pProfileRootItem);
        m_pCurrentItem->setText(0, names.at(i));
        m_pCurrentItem->setCheckState(0, Qt::Unchecked);
    }
    m_pImportExportTree->sortItems(0, Qt::AscendingOrder);
    connect(m_pImportExportTree, SIGNAL(itemClicked(QTreeWidgetItem*, int)), this,
            SLOT(onClickDialupProfileItem(QTreeWidgetItem*, int)));
    // The space key ticks without a click.
    connect(m_pImportExportTree, SIGNAL(itemChanged(QTreeWidgetItem*, int)), this,
            SLOT(onClickDialupProfileItem(QTreeWidgetItem*, int)));
}

// The clicked item is told by its text: a profile that is called as the root behaves like it.
void CNetConnectUIService::onClickDialupProfileItem(QTreeWidgetItem* pParent, int) {
    if (!m_pProfileRootItem || pParent->text(0) != text("IDS_TREENODE_PROFILEINPUTDLG_DIALUP")) return;
    const Qt::CheckState state = m_pProfileRootItem->checkState(0) == Qt::Checked ? Qt::Checked : Qt::Unchecked;
    for (int i = 0; i < m_pProfileRootItem->childCount(); ++i) {
        m_pCurrentItem = m_pProfileRootItem->child(i);
        m_pCurrentItem->setCheckState(0, state);
    }
}

QStringList CNetConnectUIService::tickedProfiles() {
    QStringList names;
    for (int i = 0; m_pProfileRootItem && i < m_pProfileRootItem->childCount(); ++i) {
        m_pCurrentItem = m_pProfileRootItem->child(i);
        if (m_pCurrentItem->checkState(0) == Qt::Checked) names.append(m_pCurrentItem->text(0));
    }
    return names;
}

void CNetConnectUIService::onClickImportExportOkButton() {
    const QPointer<CNetConnectUIService> self(this);
    QStringList names = tickedProfiles();
    if (m_bImport && !names.isEmpty()) importSelectedProfiles(&names);
    if (self && !m_bImport && !names.isEmpty()) {
        m_ImportExportList = names;
        onClickImportExportBrowseButton();
    }
    if (self) onClickImportExportCancelButton();
}

void CNetConnectUIService::onClickImportExportCancelButton() {
    if (m_pImportExportDialog) m_pImportExportDialog->close();
}

void CNetConnectUIService::onClickImportExportBrowseButton() {
    const QPointer<CNetConnectUIService> self(this);
    const QString path = m_bImport ? chooseImportFile() : chooseExportFile();
    if (self && !path.isNull()) onFileSelected(path);
}

QString CNetConnectUIService::chooseImportFile() {
    return QFileDialog::getOpenFileName(m_pImportExportWidget, QString::fromLatin1("Open"), startingFile(),
                                        fileFilter());
}

// Asks about an existing file by itself, since an export merges where the file dialog speaks of replacing.
QString CNetConnectUIService::chooseExportFile() {
    const QPointer<QWidget> parent(m_pImportExportWidget);
    while (parent) {
        QString path = QFileDialog::getSaveFileName(parent, QString::fromLatin1("Save As"), startingFile(),
                                                    fileFilter(), nullptr, QFileDialog::DontConfirmOverwrite);
        if (!path.isNull() && QFileInfo(path).suffix().isEmpty()) path += QString::fromLatin1(".prof");
        if (path.isNull() || !parent) break;
        const QFileInfo file(path);
        if (file.fileName().contains(QLatin1Char('*'))) {
            tell(text("IDS_NETCONNECT_MSG_EXPORT_WILDCARD"), parent);
            continue;
        }
        const QString message =
            TextValues::isolated(file.fileName()) + QLatin1Char(' ') + text("IDS_NETCONNECT_MSG_EXPORT_MERGE");
        if (!file.exists() || question(QMessageBox::Question, message, parent) == CommonUtils::FirstButton)
            return parent ? path : QString();
    }
    return QString();
}

void CNetConnectUIService::onFileSelected(QString path) {
    qDebug("%s: %s: %s called", traceTime().constData(), __FILE__, "onFileSelected");
    if (m_bImport) return readProfileFromFile(path);
    if (m_pLogic) m_pLogic->ExportSelectedProfilesToFile(&m_ImportExportList, path);
}

void CNetConnectUIService::importSelectedProfiles(QStringList* names) {
    if (!m_pLogic) return;
    const QPointer<CNetConnectUIService> self(this);
    m_bImporting = true;
    const int status = m_pLogic->ImportDialupProfiles(names, m_pImportExportDialog);
    if (!self) return;
    m_bImporting = false;
    if (status == 0) {
        m_bBrowsed = false;
        rebuildList();
        notifyProfilesChanged(ORBISDIAL_DIALUP_CLSID);
        notifyProfilesChanged(ORBISDIAL_HOST_LISTENER_CLSID);
    }
    if (m_bReloadPending) return onDeviceInitailize();
    followUserFile();  // what came meanwhile
}
