// SPDX-License-Identifier: MIT
#include "NetConnectLockSign.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QStyle>

#include "NetConnectUIService.h"

namespace {

// In a font's measure; the sign is as wide as it is high.
int signSide(const QFontMetrics& metrics) { return metrics.ascent(); }
int signRoom(const QFontMetrics& metrics) { return signSide(metrics) + metrics.height() / 3; }

void paintSign(QPainter* painter, const QRectF& place, const QColor& colour) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(place.topLeft());
    painter->scale(place.width() / 16, place.height() / 16);
    painter->setPen(QPen(colour, 1.6));
    painter->setBrush(Qt::NoBrush);
    painter->drawArc(QRectF(5, 2, 6, 8), 0, 180 * 16);
    painter->drawLine(QPointF(5, 6), QPointF(5, 8));
    painter->drawLine(QPointF(11, 6), QPointF(11, 8));
    painter->setPen(Qt::NoPen);
    painter->setBrush(colour);
    painter->drawRoundedRect(QRectF(3, 7.5, 10, 7), 1, 1);
    painter->restore();
}

QRect signPlace(const QFontMetrics& metrics, const QRect& area, Qt::LayoutDirection direction, Qt::Alignment side) {
    const QSize size(signSide(metrics), signSide(metrics));
    return QStyle::alignedRect(direction, side | Qt::AlignVCenter, size, area);
}

}  // namespace

NetConnectProfileDelegate::NetConnectProfileDelegate(CNetConnectUIService* service, QObject* parent)
    : QStyledItemDelegate(parent), m_pService(service) {}

void NetConnectProfileDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const {
    if (!m_pService->isPreset(index.row())) return QStyledItemDelegate::paint(painter, option, index);
    // The name keeps off the sign; what is chosen is marked below both.
    QApplication::style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter);
    const int room = 2 * signRoom(option.fontMetrics);
    const bool isMirrored = option.direction == Qt::RightToLeft;
    QStyleOptionViewItem name(option);
    name.rect.adjust(isMirrored ? room : 0, 0, isMirrored ? 0 : -room, 0);
    QStyledItemDelegate::paint(painter, name, index);
    const bool isSelected = option.state & QStyle::State_Selected;
    const QColor colour = option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    const int margin = signRoom(option.fontMetrics) - signSide(option.fontMetrics);
    const QRect area = option.rect.adjusted(margin, 0, -margin, 0);
    paintSign(painter, signPlace(option.fontMetrics, area, option.direction, Qt::AlignRight), colour);
}

QSize NetConnectProfileDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(2 * signRoom(option.fontMetrics), 0);
}

NetConnectLockNotice::NetConnectLockNotice(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    makeRoom();
}

void NetConnectLockNotice::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    QPainter painter(this);
    const QRect place = signPlace(fontMetrics(), rect(), layoutDirection(), Qt::AlignLeft);
    paintSign(&painter, place, palette().color(QPalette::WindowText));
}

void NetConnectLockNotice::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange) makeRoom();
}

void NetConnectLockNotice::makeRoom() {
    const int room = signRoom(fontMetrics());
    setContentsMargins(isRightToLeft() ? 0 : room, 0, isRightToLeft() ? room : 0, 0);
}
