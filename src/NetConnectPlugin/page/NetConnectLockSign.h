// SPDX-License-Identifier: MIT
// The padlock of what can't be changed: presets in the list of profiles, and the notice that says why.
#ifndef ORBISDIAL_NETCONNECTLOCKSIGN_H
#define ORBISDIAL_NETCONNECTLOCKSIGN_H

#include <QLabel>
#include <QStyledItemDelegate>

class CNetConnectUIService;

// Puts a padlock behind the names of presets; the items themselves stay as they are.
class NetConnectProfileDelegate : public QStyledItemDelegate {
public:
    // Both live as long as the list's view.
    NetConnectProfileDelegate(CNetConnectUIService* service, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    CNetConnectUIService* m_pService;
};

// A text behind a padlock.
class NetConnectLockNotice : public QLabel {
public:
    explicit NetConnectLockNotice(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeRoom();
};

#endif
