// SPDX-License-Identifier: MIT
// What scrolls only where there is too little room for it.
#ifndef ORBISDIAL_NETCONNECTSCROLLPLACE_H
#define ORBISDIAL_NETCONNECTSCROLLPLACE_H

#include <QEvent>
#include <QLayout>
#include <QScrollArea>

// Asks for as much room as what it shows, and looks the same there. Fixed heights would overlap with less.
class NetConnectScrollPlace : public QScrollArea {
public:
    explicit NetConnectScrollPlace(QLayout* layout) {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidgetResizable(true);
        layout->setContentsMargins(0, 0, 0, 0);
        QWidget* content = new QWidget;
        content->setLayout(layout);
        setWidget(content);
        content->setAutoFillBackground(false);
        viewport()->setAutoFillBackground(false);
    }

    QSize sizeHint() const override { return widget()->sizeHint(); }
    QSize minimumSizeHint() const override { return widget()->minimumSizeHint(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
        return QScrollArea::eventFilter(watched, event);
    }

private:
    Q_DISABLE_COPY(NetConnectScrollPlace)
};

#endif
