// Shows a window and ends the program as soon as it has been painted: what comes after that is not measured.
#ifndef ORBISDIAL_FIRSTPAINT_H
#define ORBISDIAL_FIRSTPAINT_H

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <cstdlib>

class FirstPaint : public QObject {
public:
    static int of(QWidget* window) {
        FirstPaint watch;
        window->installEventFilter(&watch);
        window->resize(620, 480);
        window->show();
        return QApplication::exec();
    }

    // The window's own children paint in the same pass, right after it.
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            QMetaObject::invokeMethod(
                qApp, [] { std::_Exit(EXIT_SUCCESS); }, Qt::QueuedConnection);
        return false;
    }
};

#endif
