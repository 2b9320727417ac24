// SPDX-License-Identifier: MIT
// Shows a window and, as soon as it or a widget in it has been painted, says so on the standard output and ends the
// program: what comes after that is not measured.
#ifndef ORBISDIAL_FIRSTPAINT_H
#define ORBISDIAL_FIRSTPAINT_H

#include <unistd.h>

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

    static void end() { std::_Exit(::write(STDOUT_FILENO, "\n", 1) == 1 ? EXIT_SUCCESS : EXIT_FAILURE); }

    // The window's own children paint in the same pass, right after it.
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint && m_IsReady())
            QMetaObject::invokeMethod(qApp, &FirstPaint::end, Qt::QueuedConnection);
        return false;
    }

private:
    std::function<bool()> m_IsReady;
};

#endif
