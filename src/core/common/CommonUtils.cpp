// SPDX-License-Identifier: MIT
#include "CommonUtils.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QStyle>

#include "Change.h"

namespace {

// Buttons in their order; their numbers are the answers.
constexpr QMessageBox::StandardButton Buttons[] = {QMessageBox::Ok, QMessageBox::Cancel, QMessageBox::Ignore};
static_assert(int(CommonUtils::FirstButton) == Buttons[0] && int(CommonUtils::SecondButton) == Buttons[1] &&
              int(CommonUtils::ThirdButton) == Buttons[2]);

struct ButtonLabel {
    QMessageBox::StandardButton button;
    QString id;
};

QList<ButtonLabel> shownButtons(const QStringList& ids) {
    QList<ButtonLabel> shown;
    for (int i = 0; i < ids.size(); ++i)
        if (!ids.at(i).isEmpty()) shown.append({Buttons[i], ids.at(i)});
    if (shown.isEmpty()) shown.append({Buttons[0], "IDS_OK"});
    return shown;
}

QString labelText(const QString& id) {
    const QString text = Change::tr(id, "NetConnectPlugin");
    return text.isEmpty() ? id : text;
}

// The box itself sets the format of its main text alone.
void setPlainTexts(QMessageBox* box, const QString& text, const QString& informativeText) {
    box->setTextFormat(Qt::PlainText);
    box->setText(text);
    box->setInformativeText(informativeText);
    if (auto* label = box->findChild<QLabel*>("qt_msgbox_informativelabel")) label->setTextFormat(Qt::PlainText);
}

void addButtons(QMessageBox* box, const QList<ButtonLabel>& buttons, int wantedDefault) {
    QMessageBox::StandardButton defaultButton = buttons.first().button;
    for (const ButtonLabel& shown : buttons) {
        box->addButton(shown.button)->setText(labelText(shown.id));
        if (shown.button == wantedDefault) defaultButton = shown.button;
    }
    box->setDefaultButton(defaultButton);
}

// Qt's own box takes its last button when it is closed without one: that would be a decision nobody made.
class MessageBox : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->matches(QKeySequence::Cancel)) return done(CommonUtils::NoAnswer);
        QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override {
        event->accept();
        done(CommonUtils::NoAnswer);
    }
};

bool canShowWidgets() {
    if (qobject_cast<QApplication*>(QCoreApplication::instance())) return true;
    qWarning("CommonUtils::ShowMessage: there is no QApplication to show a message");
    return false;
}

// Shows the box until it is answered. QDialog's own results are no button's.
int answerOf(QMessageBox* box) {
    box->setObjectName("CommonUtils_MessageBox");
    const int answer = box->exec();
    return answer > QDialog::Accepted ? answer : int(CommonUtils::NoAnswer);
}

// Where a window is to be centred; empty when there is no screen.
QRect centringArea(const QWidget* widget) {
    const QWidget* parent = widget->parentWidget() ? widget->parentWidget()->window() : nullptr;
    if (parent && parent->isVisible() && !parent->isMinimized()) return parent->frameGeometry();
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect();
}

// Moves a rectangle into the screen on which its centre lies, or else the first one; its top left corner wins when it
// is too large.
QRect insideScreen(QRect rect) {
    const QScreen* screen = QGuiApplication::screenAt(rect.center());
    if (!screen) screen = QGuiApplication::primaryScreen();
    if (!screen) return rect;
    const QRect area = screen->availableGeometry();
    rect.moveRight(qMin(rect.right(), area.right()));
    rect.moveBottom(qMin(rect.bottom(), area.bottom()));
    rect.moveLeft(qMax(rect.left(), area.left()));
    rect.moveTop(qMax(rect.top(), area.top()));
    return rect;
}

QPointer<QWidget>& mainWindow() {
    static QPointer<QWidget> window;
    return window;
}

}  // namespace

int CommonUtils::ShowMessage(QMessageBox::Icon icon, QWidget* parent, const QString& caption, const QString& text,
                             const QString& button1, const QString& button2, const QString& button3,
                             const QString& informativeText, bool modal, Qt::WindowFlags flags,
                             MessageAnswer defaultButton) {
    if (!canShowWidgets()) return NoAnswer;
    const QPointer<QMessageBox> box = new MessageBox(icon, caption, QString(), QMessageBox::NoButton, parent, flags);
    box->setWindowModality(modal ? Qt::ApplicationModal : Qt::WindowModal);
    setPlainTexts(box, text, informativeText);
    addButtons(box, shownButtons({button1, button2, button3}), defaultButton);
    const int answer = answerOf(box);
    delete box;  // null when the parent took the box along
    return answer;
}

int CommonUtils::ShowMessage(QMessageBox::Icon icon, QWidget* parent, const QString& caption, const QString& text,
                             const QString& button1, const QString& button2, const QString& checkBox, bool* ticked) {
    if (ticked) *ticked = false;
    if (!canShowWidgets()) return NoAnswer;
    const QPointer<QMessageBox> box =
        new MessageBox(icon, caption, QString(), QMessageBox::NoButton, parent, Qt::WindowCloseButtonHint);
    box->setWindowModality(Qt::ApplicationModal);
    setPlainTexts(box, text, QString());
    addButtons(box, shownButtons({button1, button2}), FirstButton);
    box->setCheckBox(new QCheckBox(labelText(checkBox)));
    const int answer = answerOf(box);
    if (ticked && box && answer != NoAnswer) *ticked = box->checkBox()->isChecked();
    delete box;
    return answer;
}

void CommonUtils::MoveCentre(QWidget* widget) {
    if (!widget || !widget->isWindow()) return;
    if (!widget->testAttribute(Qt::WA_Resized)) widget->adjustSize();
    const QRect area = centringArea(widget);
    if (area.isEmpty()) return;
    const QSize size = widget->frameGeometry().size();
    widget->move(insideScreen(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, area)).topLeft());
}

QWidget* CommonUtils::GetMainWindow() { return mainWindow(); }

void CommonUtils::SetMainWindow(QWidget* window) { mainWindow() = window; }
