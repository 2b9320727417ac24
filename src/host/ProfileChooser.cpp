// SPDX-License-Identifier: MIT
#include "ProfileChooser.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QSet>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QWheelEvent>
#include <memory>
#include <utility>

#include "HostText.h"
#include "Plugins.h"
#include "TextValues.h"

namespace {

constexpr int NameRole = Qt::UserRole;
constexpr int LettersOfWidth = 24;
constexpr int LeastLetters = 10;  // of the width, where a large font meets a small screen

// Those of the names that are the user's own; all of them where nobody tells presets apart.
QSet<QString> ownNames(const QStringList& all) {
    QList<QString> own = all;
    if (IPresetLibrary* const library = Plugins::presets()) {
        own.clear();
        library->GetOwnProfileNames(&own);
    }
    return {own.begin(), own.end()};
}

}  // namespace

ProfileChooser::ProfileChooser(QWidget* parent) : QComboBox(parent), m_Items(new QStandardItemModel(this)) {
    setObjectName(QStringLiteral("Host_ProfileChooser"));
    setModel(m_Items);
    setItemDelegate(new QStyledItemDelegate(this));  // the one of a box that can be edited draws past the style
    setEditable(true);
    lineEdit()->setContextMenuPolicy(Qt::NoContextMenu);  // the box has one
    setInsertPolicy(NoInsert);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(LettersOfWidth);
    completer()->setCompletionMode(QCompleter::PopupCompletion);
    completer()->setFilterMode(Qt::MatchContains);
    completer()->setCaseSensitivity(Qt::CaseInsensitive);
    connect(this, QOverload<int>::of(&QComboBox::activated), this, [this](int row) {
        choose(itemData(row, NameRole).toString());
        emit chosenByUser();
        // The completer sets the text once more, and would leave the end of a long name in sight.
        QMetaObject::invokeMethod(this, &ProfileChooser::showCurrent, Qt::QueuedConnection);
    });
    connect(lineEdit(), &QLineEdit::editingFinished, this, &ProfileChooser::takeTyped);
}

void ProfileChooser::refresh(const std::optional<QString>& defaultProfile) {
    m_IsAwaited = !defaultProfile;
    m_Default = defaultProfile.value_or(QString());
    const bool isInUse = hasFocus() || view()->isVisible();
    m_IsFilled = false;
    if (isInUse && !lineEdit()->isModified()) fill();
    if (!isInUse) showCurrent();
}

void ProfileChooser::retranslate() {
    for (QWidget* widget :
         {static_cast<QWidget*>(this), static_cast<QWidget*>(lineEdit()), static_cast<QWidget*>(view())})
        widget->setAccessibleName(hostText("IDS_HOST_PROFILE"));
    m_IsFilled = false;
    showCurrent();
}

void ProfileChooser::choose(const QString& name) {
    m_Chosen = name == m_Default ? QString() : name;
    m_IsChosen = true;
    showCurrent();
}

QSize ProfileChooser::minimumSizeHint() const {
    const int spare = (LettersOfWidth - LeastLetters) * fontMetrics().horizontalAdvance(QLatin1Char('X'));
    return QComboBox::minimumSizeHint() - QSize(spare, 0);
}

// Of the name with the most letters, as measuring thousands takes a second, and no more than the window has room for.
int ProfileChooser::popupWidth() const {
    const int begin = mapTo(window(), isRightToLeft() ? rect().topRight() : rect().topLeft()).x();
    const int room = isRightToLeft() ? begin : window()->width() - begin;
    QString longest;
    for (int row = 0; row < count(); ++row)
        if (itemText(row).size() > longest.size()) longest = itemText(row);
    const int margin = view()->verticalScrollBar()->sizeHint().width() + fontMetrics().height();
    return qMin(fontMetrics().horizontalAdvance(longest) + margin, room);
}

void ProfileChooser::fill() {
    if (m_IsFilled) return;
    m_IsFilled = true;
    QStringList own, presets;
    if (INetConnectSetting* const profiles = Plugins::profiles()) {
        QList<QString> names;
        profiles->GetAllDialUpProfile(&names);
        const QSet<QString> mine = ownNames(names);
        for (const QString& name : std::as_const(names)) (mine.contains(name) ? own : presets).append(name);
    }
    if (!m_Chosen.isEmpty() && !own.contains(m_Chosen) && !presets.contains(m_Chosen)) m_Chosen.clear();
    const QSignalBlocker quiet(this);
    m_Items->clear();
    const bool isMixed = !own.isEmpty() && !presets.isEmpty();
    addSection(isMixed ? "IDS_HOST_PROFILES_OWN" : nullptr, own);
    addSection(isMixed ? "IDS_HOST_PROFILES_PRESETS" : nullptr, presets);
    showCurrent();
}

void ProfileChooser::showPopup() {
    fill();
    view()->setMinimumWidth(popupWidth());
    QComboBox::showPopup();
    QWidget* const popup = view()->window();  // Qt lets a wide one begin at the left in every language
    if (isRightToLeft()) popup->move(mapToGlobal(rect().topRight()).x() + 1 - popup->width(), popup->y());
}

void ProfileChooser::focusInEvent(QFocusEvent* event) {
    fill();
    QComboBox::focusInEvent(event);
    lineEdit()->selectAll();
}

// The wheel scrolls, and must not choose on the way.
void ProfileChooser::wheelEvent(QWheelEvent* event) { event->ignore(); }

void ProfileChooser::contextMenuEvent(QContextMenuEvent* event) {
    const std::unique_ptr<QMenu> menu(lineEdit()->createStandardContextMenu());
    QAction* const first = menu->actions().value(0);
    auto* const copy = new QAction(hostText("IDS_HOST_NEW_FROM"), menu.get());
    copy->setEnabled(!current().isEmpty());
    connect(copy, &QAction::triggered, this, &ProfileChooser::copyWanted);
    menu->insertAction(first, copy);
    menu->insertSeparator(first);
    menu->exec(event->globalPos());
}

void ProfileChooser::addSection(const char* id, const QStringList& names) {
    if (id) addTitle(id);
    for (const QString& name : names) addProfile(name);
}

void ProfileChooser::addTitle(const char* id) {
    auto* const title = new QStandardItem(hostText(id));
    title->setFlags(Qt::NoItemFlags);
    QFont bold = font();
    bold.setBold(true);
    title->setFont(bold);
    m_Items->appendRow(title);
}

void ProfileChooser::addProfile(const QString& name) {
    auto* const item = new QStandardItem(shownName(name));
    item->setData(name, NameRole);
    m_Items->appendRow(item);
}

void ProfileChooser::showCurrent() {
    const QSignalBlocker quiet(this);
    const QString name = current();
    if (!m_IsFilled) {
        m_Items->clear();
        if (!name.isEmpty()) addProfile(name);
    }
    setCurrentIndex(rowOf(name));
    const QString none = m_IsAwaited ? QString() : hostText("IDS_HOST_NO_DEFAULT_PROFILE");
    const QString shown = name.isEmpty() ? none : shownName(name);
    setEditText(shown);
    lineEdit()->setCursorPosition(0);
    setToolTip(directed(TextValues::isolated(shown)) + QLatin1Char('\n') +
               hostText("IDS_HOST_PROFILE_TIP"));  // a long one is cut
}

// What was typed may be a whole name, or the part of a single one.
void ProfileChooser::takeTyped() {
    if (!lineEdit()->isModified()) return;
    const QString typed = currentText().trimmed();
    int found = findText(typed, Qt::MatchFixedString);
    if (found < 0) found = rowOf(typed);
    const auto parts = m_Items->findItems(typed, Qt::MatchContains);
    if (found < 0 && !typed.isEmpty() && parts.size() == 1) found = parts.first()->row();
    const QString name = found < 0 ? QString() : itemData(found, NameRole).toString();
    if (name.isEmpty()) return showCurrent();
    choose(name);
    emit chosenByUser();
}

QString ProfileChooser::shownName(const QString& name) const {
    return name == m_Default ? hostText("IDS_HOST_PROFILE_DEFAULT", {name}) : name;
}

int ProfileChooser::rowOf(const QString& name) const {
    return name.isEmpty() ? -1 : findData(name, NameRole, Qt::MatchExactly | Qt::MatchCaseSensitive);
}
