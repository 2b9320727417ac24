// SPDX-License-Identifier: MIT
#include "ReadablePalette.h"

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <algorithm>
#include <cmath>

namespace {

constexpr QPalette::ColorRole Grounds[] = {QPalette::Window, QPalette::Base, QPalette::Button};
// Percent: styles paint tabs and buttons lighter than the palette says, dark ones most, and darker.
constexpr int Lighter = 150;
constexpr int Darker = 112;

constexpr int Steps = 32;  // from the disabled colour to the text's

double linear(double part) { return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); }

double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

QColor mixed(const QColor& from, const QColor& to, double part) {
    const auto between = [part](double one, double other) { return one + (other - one) * part; };
    return QColor::fromRgbF(between(from.redF(), to.redF()), between(from.greenF(), to.greenF()),
                            between(from.blueF(), to.blueF()));
}

QList<QColor> groundsOf(const QPalette& palette) {
    QList<QColor> grounds;
    for (const QPalette::ColorRole role : Grounds) {
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Disabled}) {
            const QColor& ground = palette.color(group, role);
            grounds << ground << ground.lighter(Lighter) << ground.darker(Darker);
        }
    }
    return grounds;
}

bool isReadable(const QColor& text, const QList<QColor>& grounds) {
    return std::all_of(grounds.begin(), grounds.end(), [&text](const QColor& ground) {
        return ReadablePalette::contrast(text, ground) >= ReadablePalette::LeastContrast;
    });
}

// The palest that can be read; the text's own colour where nothing paler can.
QColor readable(const QColor& pale, const QColor& text, const QList<QColor>& grounds) {
    for (int step = 0; step < Steps; ++step) {
        const QColor colour = mixed(pale, text, double(step) / Steps);
        if (isReadable(colour, grounds)) return colour;
    }
    return text;
}

}  // namespace

ReadablePalette::ReadablePalette() {
    qApp->installEventFilter(this);
    apply();
}

QPalette ReadablePalette::of(QPalette palette) {
    const QList<QColor> grounds = groundsOf(palette);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        const QColor text = palette.color(QPalette::Active, role);
        palette.setColor(QPalette::Disabled, role, readable(palette.color(QPalette::Disabled, role), text, grounds));
    }
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    const QColor hint = mixed(palette.color(QPalette::Active, QPalette::Base), text, 0.5);
    palette.setColor(QPalette::PlaceholderText, readable(hint, text, grounds));
    return palette;
}

double ReadablePalette::contrast(const QColor& one, const QColor& other) {
    const double first = luminance(one), second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

bool ReadablePalette::eventFilter(QObject* watched, QEvent* event) {
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) apply();
    return QObject::eventFilter(watched, event);
}

// What an application sets hides the desktop's colours until it is taken back.
void ReadablePalette::apply() {
    if (m_IsApplying) return;
    const QScopedValueRollback<bool> applying(m_IsApplying, true);
    QApplication::setPalette(QPalette());
    QApplication::setPalette(of(QApplication::palette()));
}
