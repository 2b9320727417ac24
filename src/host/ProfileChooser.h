// SPDX-License-Identifier: MIT
// The box that chooses the profile to connect with: the user's own ones, then the presets; typing finds.
#ifndef ORBISDIAL_PROFILECHOOSER_H
#define ORBISDIAL_PROFILECHOOSER_H

#include <QComboBox>
#include <optional>

class QStandardItemModel;

// Until somebody chooses, it stands at the default profile. It asks for the list of profiles only when it is entered or
// opened, since that may be long.
class ProfileChooser : public QComboBox {
    Q_OBJECT

public:
    explicit ProfileChooser(QWidget* parent = nullptr);

    // The profiles may have changed. Nothing: nobody can tell yet which is the default one.
    void refresh(const std::optional<QString>& defaultProfile);

    void retranslate();

    // The profile to connect with; empty: the default one.
    QString chosen() const { return m_Chosen; }

    // Whether it stands where somebody put it, be it at the default.
    bool isChosen() const { return m_IsChosen; }

    // The profile at which it stands; empty when there is no default.
    QString current() const { return m_Chosen.isEmpty() ? m_Default : m_Chosen; }

    // Stands at this profile, as if it had been chosen.
    void choose(const QString& name);

    // The list as it is now.
    void fill();

    void showPopup() override;
    QSize minimumSizeHint() const override;

signals:
    void chosenByUser();

    // A new profile from the one at which it stands.
    void copyWanted();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void addSection(const char* id, const QStringList& names);
    void addTitle(const char* id);
    void addProfile(const QString& name);
    void showCurrent();
    void takeTyped();
    int popupWidth() const;
    QString shownName(const QString& name) const;
    int rowOf(const QString& name) const;

    QStandardItemModel* m_Items;
    QString m_Default;
    bool m_IsAwaited = true;
    QString m_Chosen;
    bool m_IsFilled = false;
    bool m_IsChosen = false;
};

#endif
