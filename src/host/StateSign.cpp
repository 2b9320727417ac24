// SPDX-License-Identifier: MIT
#include "StateSign.h"

#include <QPainter>
#include <QPainterPath>

#include "HostText.h"

namespace {

constexpr int BarCount = 5;

// Each keeps 3 : 1 to light and dark windows alike.
struct Look {
    QRgb colour;
    void (*paint)(QPainter*, const QColor&);
};

// All are painted into a square of 100 by 100.
constexpr qreal Thickness = 11;

QPen pen(const QColor& colour) { return QPen(colour, Thickness, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin); }

void paintRing(QPainter* painter, const QColor& colour) {
    painter->setPen(pen(colour));
    painter->drawEllipse(QRectF(12, 12, 76, 76));
}

void paintCrossedRing(QPainter* painter, const QColor& colour) {
    paintRing(painter, colour);
    painter->drawLine(QPointF(25, 75), QPointF(75, 25));
}

void paintTriangle(QPainter* painter, const QColor& colour) {
    painter->setPen(pen(colour));
    painter->setBrush(colour);
    painter->drawPolygon(QPolygonF({QPointF(50, 14), QPointF(90, 84), QPointF(10, 84)}));
    painter->setPen(pen(Qt::white));
    painter->drawLine(QPointF(50, 42), QPointF(50, 58));
    painter->drawPoint(QPointF(50, 76));
}

void paintDots(QPainter* painter, const QColor& colour) {
    paintRing(painter, colour);
    painter->setPen(Qt::NoPen);
    painter->setBrush(colour);
    for (const int x : {31, 50, 69}) painter->drawEllipse(QPointF(x, 50), 6.5, 6.5);
}

void paintDisc(QPainter* painter, const QColor& colour) {
    painter->setPen(Qt::NoPen);
    painter->setBrush(colour);
    painter->drawEllipse(QRectF(6, 6, 88, 88));
    painter->setPen(pen(Qt::white));
    painter->setBrush(Qt::NoBrush);
}

void paintTick(QPainter* painter, const QColor& colour) {
    paintDisc(painter, colour);
    painter->drawPolyline(QPolygonF({QPointF(29, 52), QPointF(44, 67), QPointF(71, 36)}));
}

void paintCross(QPainter* painter, const QColor& colour) {
    paintDisc(painter, colour);
    painter->drawLine(QPointF(34, 34), QPointF(66, 66));
    painter->drawLine(QPointF(66, 34), QPointF(34, 66));
}

// In the order of ConnectionPicture::Sign.
const Look Looks[] = {{0xff7a7f87, paintRing}, {0xff7a7f87, paintCrossedRing}, {0xffb86e00, paintTriangle},
                      {0xff2f7fd6, paintDots}, {0xff23883f, paintTick},        {0xffd03a34, paintCross}};

void paintSign(QPainter* painter, const QRectF& place, ConnectionPicture::Sign sign) {
    const qreal side = qMin(place.width(), place.height());
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(place.center() - QPointF(side / 2, side / 2));
    painter->scale(side / 100, side / 100);
    painter->setBrush(Qt::NoBrush);
    Looks[sign].paint(painter, QColor::fromRgb(Looks[sign].colour));
}

}  // namespace

StateSign::StateSign(QWidget* parent) : QWidget(parent) { setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed); }

void StateSign::setSign(ConnectionPicture::Sign sign) {
    if (sign == m_Sign) return;
    m_Sign = sign;
    update();
}

QSize StateSign::sizeHint() const {
    const int side = 5 * fontMetrics().height() / 2;
    return {side, side};
}

QIcon StateSign::icon(ConnectionPicture::Sign sign) {
    QIcon icon;
    for (const int side : {16, 22, 24, 32, 48, 64}) {
        QPixmap picture(side, side);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paintSign(&painter, QRectF(0, 0, side, side), sign);
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

void StateSign::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintSign(&painter, rect(), m_Sign);
}

SignalBars::SignalBars(QWidget* parent) : QWidget(parent) { setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed); }

void SignalBars::setPercent(int percent) {
    setVisible(percent >= 0);
    if (percent == m_Percent) return;
    m_Percent = percent;
    setAccessibleName(percent < 0 ? QString() : hostText("IDS_HOST_SIGNAL", {QString::number(percent)}));
    update();
}

QSize SignalBars::sizeHint() const {
    const int height = fontMetrics().ascent();
    return {height * 3 / 2, height};
}

void SignalBars::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const qreal step = qreal(width()) / BarCount;
    const int lit = (m_Percent * BarCount + 99) / 100;
    for (int i = 0; i < BarCount; ++i) {
        const qreal tall = height() * qreal(i + 1) / BarCount;
        QColor colour = palette().color(QPalette::WindowText);
        if (i >= lit) colour.setAlpha(60);
        const int place = isRightToLeft() ? BarCount - 1 - i : i;
        painter.fillRect(QRectF(place * step, height() - tall, step * 0.7, tall), colour);
    }
}
