// The bar on top of the main window: the default profile, the connection, the SIM card and what it selected, and
// the last storage problem.
//
// It keeps nothing: every refresh asks the plug-ins in the container again, so it is right whichever come and go.
#ifndef ORBISDIAL_CONNECTIONBAR_H
#define ORBISDIAL_CONNECTIONBAR_H

#include <QWidget>

class QLabel;
class QPushButton;

class ConnectionBar : public QWidget {
    Q_OBJECT

public:
    explicit ConnectionBar(QWidget* parent = nullptr);

    // Asks everything again and shows it in the current language.
    void refresh();

private:
    void onClickConnect();

    void refreshConnection();
    void refreshProfiles();

    QLabel* m_Profile;
    QLabel* m_State;
    QPushButton* m_Connect;
    QLabel* m_Sim;
    QLabel* m_StorageProblem;
};

#endif
