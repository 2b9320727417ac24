// SPDX-License-Identifier: MIT
#include "PresetsDialog.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSplitter>
#include <QTreeView>
#include <utility>

#include "ConnectionPicture.h"
#include "HostText.h"
#include "NewProfileDialog.h"
#include "Plugins.h"
#include "PresetTree.h"
#include "TextValues.h"

namespace {

constexpr int LettersOfList = 52;
constexpr int LettersOfApn = 20;
constexpr int LettersOfDetails = 44;
constexpr int LinesOfList = 32;
constexpr int HiddenLetters = 8;  // however long the password is
constexpr int MostOpened = 400;   // plans; of more, a search opens none

enum DetailRow { Country, Operator, Plan, Apn, Number, User, Password, Authentication, Dns, Codes, DetailCount };

const char* const DetailTitles[DetailCount] = {
    "IDS_HOST_PRESET_COUNTRY", "IDS_HOST_PRESET_OPERATOR", "IDS_HOST_PRESET_PLAN",     "IDS_HOST_PRESET_APN",
    "IDS_HOST_PRESET_NUMBER",  "IDS_HOST_PRESET_USER",     "IDS_HOST_PRESET_PASSWORD", "IDS_HOST_PRESET_AUTHENTICATION",
    "IDS_HOST_PRESET_DNS",     "IDS_HOST_PRESET_CODES"};

bool isTrue(const QString& flag) { return flag == QLatin1String("true"); }

QString joined(QStringList parts) {
    parts.removeAll(QString());
    return parts.join(QLatin1String(", "));
}

QLabel* makeText(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

// "262 01": country and network apart.
QString codesText(const QStringList& codes) {
    constexpr int CountryDigits = 3;
    QStringList texts;
    for (const QString& code : codes)
        texts.append(TextValues::isolated(code.left(CountryDigits) + QChar(QChar::Nbsp) + code.mid(CountryDigits)));
    return joined(texts);
}

QString userText(const DialupProfile& profile) {
    return isTrue(profile.popusername) ? hostText("IDS_HOST_PRESET_ASKED") : profile.user;
}

}  // namespace

PresetsDialog::PresetsDialog(const QString& imsi, QWidget* parent)
    : QDialog(parent),
      m_Imsi(imsi),
      m_Tree(new PresetTree(this)),
      m_SearchLabel(new QLabel),
      m_Search(new QLineEdit),
      m_View(new QTreeView),
      m_Count(makeText("Presets_Count")),
      m_Form(nullptr),
      m_Hint(makeText("Presets_Hint")),
      m_Buttons(new QDialogButtonBox),
      m_Use(new QPushButton),
      m_Connect(new QPushButton),
      m_Close(new QPushButton) {
    setObjectName(QStringLiteral("Host_PresetsDialog"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setAttribute(Qt::WA_DeleteOnClose);
    auto* halves = new QSplitter;
    halves->setChildrenCollapsible(false);
    halves->addWidget(buildList());
    halves->addWidget(buildDetails());
    halves->setStretchFactor(0, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(halves, 1);
    buildButtons();
    layout->addWidget(m_Buttons);
    connect(m_Search, &QLineEdit::textChanged, this, &PresetsDialog::search);
    m_Search->installEventFilter(this);
    retranslate();
    const int letter = fontMetrics().averageCharWidth();
    const QSize wanted((LettersOfList + LettersOfApn + LettersOfDetails) * letter,
                       LinesOfList * fontMetrics().lineSpacing());
    resize(wanted.expandedTo(sizeHint()).boundedTo(screen()->availableGeometry().size() * 9 / 10));
    m_Search->setFocus();
}

QWidget* PresetsDialog::buildList() {
    m_Search->setObjectName(QStringLiteral("Presets_Search"));
    m_Search->setClearButtonEnabled(true);
    m_SearchLabel->setBuddy(m_Search);
    m_View->setObjectName(QStringLiteral("Presets_List"));
    m_View->setModel(m_Tree);
    m_View->setUniformRowHeights(true);
    m_View->setAllColumnsShowFocus(true);
    m_View->setMinimumWidth((LettersOfList / 2) * fontMetrics().averageCharWidth());
    connect(m_View, &QTreeView::doubleClicked, this, [this] {
        if (m_Use->isEnabled()) m_Use->click();
    });
    auto* search = new QHBoxLayout;
    search->addWidget(m_SearchLabel);
    search->addWidget(m_Search, 1);
    auto* box = new QWidget;
    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(search);
    layout->addWidget(m_View, 1);
    layout->addWidget(m_Count);
    return box;
}

QWidget* PresetsDialog::buildDetails() {
    auto* box = new QWidget;
    m_Form = new QFormLayout(box);
    m_Form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_Form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    m_Form->setVerticalSpacing(0);  // a row that is hidden would keep it
    m_Form->addRow(m_Hint);
    for (const char* id : DetailTitles) {
        const Detail detail{id, new QLabel, makeText(id)};
        detail.value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        detail.title->setBuddy(detail.value);
        detail.title->setAlignment(Qt::AlignTop | Qt::AlignLeading);
        for (QLabel* label : {detail.title, detail.value}) label->setContentsMargins(0, 0, 0, fontMetrics().descent());
        m_Form->addRow(detail.title, detail.value);
        m_Details.append(detail);
    }
    auto* area = new QScrollArea;
    area->setObjectName(QStringLiteral("Presets_Details"));
    area->setFrameShape(QFrame::StyledPanel);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(box);
    area->setMinimumWidth(LettersOfDetails * fontMetrics().averageCharWidth());
    return area;
}

void PresetsDialog::buildButtons() {
    m_Use->setObjectName(QStringLiteral("Presets_Use"));
    m_Connect->setObjectName(QStringLiteral("Presets_Connect"));
    m_Close->setObjectName(QStringLiteral("Presets_Close"));
    m_Buttons->addButton(m_Use, QDialogButtonBox::ActionRole);
    m_Buttons->addButton(m_Connect, QDialogButtonBox::ActionRole);
    m_Buttons->addButton(m_Close, QDialogButtonBox::RejectRole);
    m_Use->setDefault(true);
    connect(m_Use, &QPushButton::clicked, this, &PresetsDialog::useAsNew);
    connect(m_Connect, &QPushButton::clicked, this, &PresetsDialog::connectNow);
    connect(m_Buttons, &QDialogButtonBox::rejected, this, &PresetsDialog::reject);
}

void PresetsDialog::refresh(const ConnectionPicture& picture) {
    m_MayConnect = picture.mayConnect();
    m_WhyNot = picture.whyNot.isEmpty() ? picture.headline : picture.whyNot;
    showDetails();
}

void PresetsDialog::retranslate() {
    setWindowTitle(hostText("IDS_HOST_PRESETS_TITLE"));
    m_SearchLabel->setText(hostText("IDS_HOST_PRESETS_SEARCH"));
    m_Search->setPlaceholderText(hostText("IDS_HOST_PRESETS_SEARCH_HINT"));
    m_Search->setAccessibleDescription(m_Search->placeholderText());
    m_View->setAccessibleName(hostText("IDS_HOST_PRESETS_LIST"));
    m_Hint->setText(hostText("IDS_HOST_PRESETS_HINT"));
    for (const Detail& detail : std::as_const(m_Details)) detail.title->setText(directed(hostText(detail.id)));
    m_Use->setText(hostText("IDS_HOST_PRESETS_USE"));
    m_Connect->setText(hostText("IDS_HOST_CONNECT"));
    m_Close->setText(hostText("IDS_HOST_CLOSE"));
    fill();
}

void PresetsDialog::fill() {
    QList<PresetOperator> operators;
    if (IPresetLibrary* const library = Plugins::presets()) library->GetOperators(&operators);
    m_Tree->fill(operators);
    m_View->header()->setSectionResizeMode(PresetTree::Name, QHeaderView::Stretch);
    m_View->header()->setSectionResizeMode(PresetTree::Apn, QHeaderView::Interactive);
    m_View->header()->setStretchLastSection(false);
    m_View->header()->resizeSection(PresetTree::Apn, LettersOfApn * fontMetrics().averageCharWidth());
    connect(m_View->selectionModel(), &QItemSelectionModel::currentChanged, this, &PresetsDialog::showDetails,
            Qt::UniqueConnection);
    search();
}

// What is found first is chosen, so that Return takes it.
void PresetsDialog::search() {
    const bool isSearch = !m_Search->text().trimmed().isEmpty();
    m_View->setUpdatesEnabled(false);
    m_Tree->search(m_Search->text());
    const int count = m_Tree->planCount();
    m_Count->setText(count == 0 ? hostText("IDS_HOST_PRESETS_NONE")
                                : hostText("IDS_HOST_PRESETS_COUNT", {QString::number(count)}));
    if (isSearch && count <= MostOpened)
        m_View->expandAll();
    else
        m_View->collapseAll();
    goTo(isSearch ? m_Tree->likeliestPlan(m_Imsi) : m_Tree->placeOf(m_Imsi));
    m_View->setUpdatesEnabled(true);
}

void PresetsDialog::goTo(const QModelIndex& place) {
    m_View->setCurrentIndex(place);
    if (!place.isValid()) {
        m_View->scrollToTop();
        return showDetails();
    }
    m_View->expand(place);
    m_View->scrollTo(place, QAbstractItemView::PositionAtCenter);
    showDetails();
}

void PresetsDialog::showDetails() {
    const QModelIndex place = m_View->currentIndex();
    const PresetOperator* const one = m_Tree->operatorAt(place);
    const OperatorPreset* const preset = current();
    DialupProfile profile;
    if (preset && Plugins::presets()) Plugins::presets()->GetPreset(preset->name, &profile);
    const bool isNobodys = one && one->names.isEmpty();
    m_Hint->setVisible(!preset);
    showDetail(Country, place.isValid() && !isNobodys ? m_Tree->countryAt(place) : QString());
    showDetail(Operator, one ? joined(one->names) : QString());
    showDetail(Plan, preset ? PresetTree::planText(*preset) : QString());
    showDetail(Apn, preset && preset->apn.isEmpty() ? hostText("IDS_HOST_PRESET_APN_AUTOMATIC") : profile.apn);
    showDetail(Number, profile.phonenumber);
    showDetail(User, userText(profile));
    showDetail(Password, profile.password.isEmpty() || isTrue(profile.popusername)
                             ? QString()
                             : QString(HiddenLetters, QChar(0x2022)));
    showDetail(Authentication, joined({isTrue(profile.chap) ? QStringLiteral("CHAP") : QString(),
                                       isTrue(profile.pap) ? QStringLiteral("PAP") : QString()}));
    showDetail(Dns, joined({profile.dns, profile.dnsalt}));
    showDetail(Codes, one ? codesText(one->networkCodes) : QString());
    m_Use->setEnabled(preset);
    m_Connect->setEnabled(preset && m_MayConnect);
    m_Connect->setToolTip(preset && !m_MayConnect ? m_WhyNot : QString());
    m_Connect->setAccessibleDescription(m_Connect->toolTip());
}

void PresetsDialog::showDetail(int row, const QString& text) {
    const Detail& detail = m_Details.at(row);
    detail.value->setText(directed(TextValues::isolated(text)));
    detail.value->setAccessibleName(detail.title->text() + ' ' + text);
    detail.title->setVisible(!text.isEmpty());
    detail.value->setVisible(!text.isEmpty());
}

void PresetsDialog::useAsNew() {
    const OperatorPreset* const preset = current();
    IPresetLibrary* const library = Plugins::presets();
    DialupProfile profile;
    if (!preset || !library || library->GetPreset(preset->name, &profile) != 0) return;
    const PresetOperator* const one = m_Tree->operatorAt(m_View->currentIndex());
    const QString wish = one->names.isEmpty() ? preset->name : one->names.first() + ' ' + preset->plan;
    auto* const dialog = new NewProfileDialog(profile, wish, this);
    connect(dialog, &NewProfileDialog::made, this, [this](const QString& name) {
        emit profileMade(name);
        accept();
    });
    dialog->open();
}

void PresetsDialog::connectNow() {
    const OperatorPreset* const preset = current();
    if (!preset || !m_MayConnect) return;
    emit connectWanted(preset->name);
    accept();
}

const OperatorPreset* PresetsDialog::current() const { return m_Tree->presetAt(m_View->currentIndex()); }

// Escape clears the search before it closes the dialog.
void PresetsDialog::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel) && !m_Search->text().isEmpty()) {
        m_Search->clear();
        m_Search->setFocus();
        return;
    }
    QDialog::keyPressEvent(event);
}

// From the search the keys that move move in the list.
bool PresetsDialog::eventFilter(QObject* watched, QEvent* event) {
    const bool isKey = watched == m_Search && event->type() == QEvent::KeyPress;
    const int key = isKey ? static_cast<QKeyEvent*>(event)->key() : 0;
    if (key != Qt::Key_Down && key != Qt::Key_PageDown) return QDialog::eventFilter(watched, event);
    if (!m_View->currentIndex().isValid()) m_View->setCurrentIndex(m_Tree->index(0, PresetTree::Name));
    m_View->setFocus(Qt::OtherFocusReason);
    return true;
}
