// SPDX-License-Identifier: MIT
// The main window's middle: the state, the one button, the transfer while connected, the last failure, and the profile.
#ifndef ORBISDIAL_CONNECTIONVIEW_H
#define ORBISDIAL_CONNECTIONVIEW_H

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>
#include <optional>

#include "ConnectionPicture.h"
#include "TransferRate.h"

class FailurePanel;
struct DataConnection;
class ProfileChooser;
class QLabel;
class QPushButton;
class RateCurve;
class SignalBars;
class StateSign;
class QToolButton;

class ConnectionView : public QWidget {
    Q_OBJECT

public:
    explicit ConnectionView(QWidget* parent = nullptr);

    // Shows what is known.
    void refresh(const ConnectionFacts& facts, const ConnectionPicture& picture);

    // Sets the texts that refresh() does not.
    void retranslate();

    ProfileChooser* chooser() const { return m_Chooser; }

    // Does what the button does.
    void act();

    // Connects with a profile; an empty name takes the default one.
    void connectWith(const QString& profile);

signals:
    void unlockWanted();
    void settingsWanted();
    void presetsWanted();
    void copyWanted();  // of the profile that the chooser stands at

    // The dialler was asked for something.
    void acted();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void buildState();
    QWidget* buildTransfer();
    void refreshButton();
    void refreshSaying(QLabel* label, const QString& text);
    void followTransfer();
    void count();
    void showMonth(const DataConnection& connection);

    ConnectionPicture m_Picture;
    StateSign* m_Sign;
    QLabel* m_State;
    SignalBars* m_Signal;
    QLabel* m_Detail;
    QPushButton* m_Action;
    QLabel* m_Time;
    RateCurve* m_Curve;
    QLabel* m_Rates;
    QLabel* m_Volumes;
    QLabel* m_Month;
    QWidget* m_Transfer;  // the four above
    FailurePanel* m_Failure;
    QLabel* m_ProfileLabel;
    ProfileChooser* m_Chooser;
    QToolButton* m_Copy;
    QPushButton* m_Presets;
    QPushButton* m_Settings;
    QLabel* m_Notes;
    QLabel* m_Card;
    QLabel* m_StorageProblem;

    QTimer m_EachSecond;  // while a connection is up and the window can be seen
    QElapsedTimer m_Clock;
    TransferRate m_Received, m_Sent;
};

#endif
