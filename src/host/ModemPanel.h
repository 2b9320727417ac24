// SPDX-License-Identifier: MIT
// The simulated modem's panel: what the modem and its card report, and what a dialling ends with.
//
// A change takes effect at once and raises the events that a real modem's would; two buttons raise the events by
// themselves. What has no control of its own is set by its name.
#ifndef ORBISDIAL_MODEMPANEL_H
#define ORBISDIAL_MODEMPANEL_H

#include <QVariant>
#include <QVector>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;
class QPushButton;
class QSpinBox;

class ModemPanel : public QWidget {
    Q_OBJECT

public:
    // The controls start with what the modem reports now.
    explicit ModemPanel(QWidget* parent = nullptr);

    // Shows the dialling outcome in force.
    void refresh();

    void retranslate();

private:
    struct Text {
        QWidget* widget;
        const char* id;
    };

    void buildCard(QFormLayout* form);
    void buildNetwork(QFormLayout* form);
    void buildSettings(QFormLayout* form);
    void addRow(QFormLayout* form, const char* id, QWidget* field);
    static QSpinBox* makeNumber(const char* name);
    QPushButton* makeButton(QFormLayout* form, const char* name, const char* id);
    void makeEventButton(QFormLayout* form, const char* name, const char* id, int event);
    void readModem();
    void readValue();
    void connectControls();

    // Sets a value of vrks_simulated_change(); an empty text takes it away.
    void set(const char* name, const QVariant& value);
    void setOutcome();
    void setValue();

    QVector<Text> m_Texts;
    QLineEdit* m_Imsi;
    QCheckBox* m_Ready;
    QCheckBox* m_MultiMode;
    QComboBox* m_CardMode;
    QComboBox* m_ProductType;
    QSpinBox* m_SystemMode;
    QSpinBox* m_SystemSubMode;
    QComboBox* m_Outcome;
    QComboBox* m_Setting;
    QLineEdit* m_Value;
};

#endif
