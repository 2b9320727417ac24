// SPDX-License-Identifier: MIT
// Shows a window and ends the program as soon as it, or a widget in it, has been painted: what comes after that is not
// measured.
#ifndef ORBISDIAL_FIRSTPAINT_H
#define ORBISDIAL_FIRSTPAINT_H

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <cstdlib>
#include <functional>

class FirstPaint : public QObject {
public:
    static int of(QWidget* window) {
        return of(window, window, [] { return true; });
    }

    // Only a paint of the watched widget counts that finds it ready.
    static int of(QWidget* window, QWidget* watched, const std::function<bool()>& isReady) {
        FirstPaint watch;
        watch.m_IsReady = isReady;
        watched->installEventFilter(&watch);
        window->resize(620, 480);
        window->show();
        return QApplication::exec();
    }

    // The window's own children paint in the same pass, right after it.
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint && m_IsReady())
            QMetaObject::invokeMethod(
                qApp, [] { std::_Exit(EXIT_SUCCESS); }, Qt::QueuedConnection);
        return false;
    }

private:
    std::function<bool()> m_IsReady;
};

#endif
