// SPDX-License-Identifier: MIT
// The presets of the whole world: country, operator, plan. One search over all; the details of a plan; a profile of the
// user's own from it, or a connection with it.
#ifndef ORBISDIAL_PRESETSDIALOG_H
#define ORBISDIAL_PRESETSDIALOG_H

#include <QDialog>
#include <QVector>

class PresetTree;
class QDialogButtonBox;
class QFormLayout;
class QItemSelection;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeView;
struct ConnectionPicture;
struct OperatorPreset;

class PresetsDialog : public QDialog {
    Q_OBJECT

public:
    // Stands at the operator, or the country, whose network code a card's number begins with, if any does.
    PresetsDialog(const QString& imsi, QWidget* parent);

    // Whether connecting is possible now.
    void refresh(const ConnectionPicture& picture);

    void retranslate();

signals:
    void connectWanted(const QString& preset);

    // A profile of the user's own was made.
    void profileMade(const QString& name);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Detail {
        const char* id;
        QLabel* title;
        QLabel* value;
    };

    QWidget* buildList();
    QWidget* buildDetails();
    void buildButtons();
    void fill();
    void search();
    void goTo(const QModelIndex& place);
    void showDetails();
    void showDetail(int row, const QString& text);
    void useAsNew();
    void connectNow();
    const OperatorPreset* current() const;

    QString m_Imsi;
    PresetTree* m_Tree;
    QLabel* m_SearchLabel;
    QLineEdit* m_Search;
    QTreeView* m_View;
    QLabel* m_Count;
    QFormLayout* m_Form;
    QLabel* m_Hint;
    QVector<Detail> m_Details;
    QDialogButtonBox* m_Buttons;
    QPushButton* m_Use;
    QPushButton* m_Connect;
    QPushButton* m_Close;
    bool m_MayConnect = false;
    QString m_WhyNot;
};

#endif
