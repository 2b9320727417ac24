// SPDX-License-Identifier: MIT
#include "RateCurve.h"

#include <QPainter>
#include <algorithm>

namespace {

constexpr int Seconds = 180;
constexpr double LeastTop = 1000;  // bytes a second; less looks like nothing

}  // namespace

RateCurve::RateCurve(QWidget* parent) : QWidget(parent) { setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed); }

void RateCurve::add(double received, double sent) {
    m_Samples.append({received, sent});
    if (m_Samples.size() > Seconds) m_Samples.removeFirst();
    update();
}

void RateCurve::clear() {
    m_Samples.clear();
    update();
}

QSize RateCurve::sizeHint() const { return {12 * fontMetrics().height(), 2 * fontMetrics().height()}; }

// Time runs to the right in every language, as a chart's does.
QPolygonF RateCurve::line(double Sample::*member, double top) const {
    QPolygonF points;
    const qreal step = qreal(width()) / (Seconds - 1);
    const qreal tall = height() - 2;
    for (int i = 0; i < m_Samples.size(); ++i) {
        const qreal x = width() - (m_Samples.size() - 1 - i) * step;
        points.append({x, 1 + tall * (1 - m_Samples[i].*member / top)});
    }
    return points;
}

void RateCurve::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QColor ground = palette().color(QPalette::WindowText);
    ground.setAlpha(20);
    painter.fillRect(rect(), ground);
    double top = LeastTop;
    for (const Sample& sample : m_Samples) top = std::max({top, sample.received, sample.sent});
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawPolyline(line(&Sample::received, top));
    painter.setPen(QPen(palette().color(QPalette::WindowText), 1, Qt::DashLine));
    painter.drawPolyline(line(&Sample::sent, top));
}
