// The simulated modem's panel: what the modem and its card report, and what a dialling ends with.
//
// A change takes effect at once, without an event; the two buttons raise the modem's events.
#ifndef ORBISDIAL_MODEMPANEL_H
#define ORBISDIAL_MODEMPANEL_H

#include <QGroupBox>
#include <QVariant>
#include <QVector>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;
class QSpinBox;

class ModemPanel : public QGroupBox {
    Q_OBJECT

public:
    // The controls start with what the modem reports now.
    explicit ModemPanel(QWidget* parent = nullptr);

    // Shows the dialling outcome in force; the dial-up plug-in may have come since.
    void refresh();

    void retranslate();

signals:
    // A value of the modem or the card changed.
    void changed();

    // The same for the system mode and its sub-mode; follows changed().
    void systemModeChanged();

private:
    struct Text {
        QWidget* widget;
        const char* id;
    };

    void buildCard(QFormLayout* form);
    void buildNetwork(QFormLayout* form);
    void addRow(QFormLayout* form, const char* id, QWidget* field);
    static QSpinBox* makeNumber(const char* name);
    void makeEventButton(QFormLayout* form, const char* name, const char* id, int event);
    void readModem();
    void connectControls();

    // Sets a value of vrks_simulated_set(); an empty text takes it away.
    void set(const char* name, const QVariant& value);
    void setSystemMode(const char* name, int mode);
    void setOutcome();

    QVector<Text> m_Texts;
    QLineEdit* m_Imsi;
    QCheckBox* m_Ready;
    QCheckBox* m_MultiMode;
    QComboBox* m_CardMode;
    QComboBox* m_ProductType;
    QSpinBox* m_SystemMode;
    QSpinBox* m_SystemSubMode;
    QComboBox* m_Outcome;
};

#endif
