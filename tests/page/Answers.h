// SPDX-License-Identifier: MIT
// Clicks widgets and answers modal windows the way a person does: by their real buttons.
#ifndef ORBISDIAL_ANSWERS_H
#define ORBISDIAL_ANSWERS_H

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>
#include <QtTest>
#include <functional>

#include "CommonUtils.h"

// Clicks near the edge at which the indicator of a radio button is: the middle may lie beside its text.
inline void clickButton(QAbstractButton* button, const char* name) {
    QVERIFY2(button && button->isVisible() && button->isEnabled(), name);
    const int x = button->isRightToLeft() ? button->width() - 8 : 8;
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(x, button->height() / 2));
}

// Clicks an item's check box, which stands at either end of the row; a click on the name does not tick it.
inline void tickItem(QTreeWidgetItem* item) {
    QVERIFY(item);
    QTreeWidget* tree = item->treeWidget();
    tree->scrollToItem(item);
    const QRect row = tree->visualItemRect(item);
    const Qt::CheckState before = item->checkState(0);
    for (int x = row.left() + 2; item->checkState(0) == before && x < row.right(); x += 4)
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(x, row.center().y()));
    QVERIFY(item->checkState(0) != before);
}

inline QStringList textsOf(const QComboBox* box) {
    QStringList texts;
    for (int i = 0; i < box->count(); ++i) texts.append(box->itemText(i));
    return texts;
}

// Each expected window takes the next answer. A window that nobody expected is closed and fails the test.
class Answers : public QObject {
public:
    using Step = std::function<void()>;

    Answers() {
        connect(&m_Timer, &QTimer::timeout, this, &Answers::look);
        m_Timer.start(5);
    }

    // A message box, answered by its first or second button; meanwhile runs while it is up.
    void box(CommonUtils::MessageAnswer button, Step meanwhile = Step()) {
        m_Steps.append([this, button, meanwhile] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box && box->objectName() == "CommonUtils_MessageBox");
            texts.append(box->text());
            QCOMPARE(box->textFormat(), Qt::PlainText);
            const QPointer<QMessageBox> guard(box);
            if (meanwhile) meanwhile();
            if (guard) QTest::mouseClick(guard->button(QMessageBox::StandardButton(button)), Qt::LeftButton);
        });
    }
    void ok() { box(CommonUtils::FirstButton); }
    void yes(Step meanwhile = Step()) { box(CommonUtils::FirstButton, meanwhile); }
    void no(Step meanwhile = Step()) { box(CommonUtils::SecondButton, meanwhile); }

    // A message box that is closed without one of its buttons.
    void dismiss(Qt::Key key = Qt::Key_unknown) {
        m_Steps.append([this, key] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box);
            texts.append(box->text());
            key == Qt::Key_unknown ? void(box->close()) : QTest::keyClick(box, key);
        });
    }

    // A file dialog: types the path and accepts, or rejects when the path is empty.
    void file(const QString& path) {
        m_Steps.append([path] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            auto* buttons = dialog->findChild<QDialogButtonBox*>();
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(path);
            const auto accept =
                dialog->acceptMode() == QFileDialog::AcceptSave ? QDialogButtonBox::Save : QDialogButtonBox::Open;
            QTest::mouseClick(buttons->button(path.isEmpty() ? QDialogButtonBox::Cancel : accept), Qt::LeftButton);
        });
    }

    bool allGiven() const { return m_Steps.isEmpty(); }

    QStringList texts;  // of the message boxes so far

private:
    void look() {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal || !modal->isVisible() || modal == m_Answered) return;
        if (!qobject_cast<QMessageBox*>(modal) && !qobject_cast<QFileDialog*>(modal)) return;
        m_Answered = modal;
        if (!m_Steps.isEmpty()) return m_Steps.takeFirst()();
        modal->close();
        QFAIL("an unexpected window came up");
    }

    QTimer m_Timer;
    QList<Step> m_Steps;
    QPointer<QWidget> m_Answered;
};

#endif
