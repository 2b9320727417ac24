// SPDX-License-Identifier: MIT
// Disabled text that can be read: 4.5 : 1 to each ground that it stands on, in light and dark.
#ifndef ORBISDIAL_READABLEPALETTE_H
#define ORBISDIAL_READABLEPALETTE_H

#include <QObject>
#include <QPalette>

// Keeps the application's palette so while it lives, also when the desktop changes its colours. GUI thread; made before
// the first widget, it costs next to nothing.
class ReadablePalette : public QObject {
    Q_OBJECT

public:
    static constexpr double LeastContrast = 4.5;  // WCAG 2.1, 1.4.3

    ReadablePalette();

    // The palette with what is disabled, and the hints in empty fields, as far towards the text as it takes.
    static QPalette of(QPalette palette);

    // WCAG 2.1's ratio, from 1 to 21.
    static double contrast(const QColor& one, const QColor& other);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void apply();

    bool m_IsApplying = false;
};

#endif
