// SPDX-License-Identifier: MIT
// The main window's bare widgets, without plug-ins, texts' translations or what fills them; ends when it has been
// painted.

#include <QComboBox>
#include <QCompleter>
#include <QGridLayout>
#include <QLabel>
#include <QLoggingCategory>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QToolButton>

#include "FirstPaint.h"

static QLabel* wrapped(const char* text) {
    auto* const label = new QLabel(text);
    label->setWordWrap(true);
    return label;
}

// What a window has that shows it only at times.
static QWidget* hidden() {
    auto* const box = new QFrame;
    auto* const layout = new QVBoxLayout(box);
    for (int i = 0; i < 7; ++i) layout->addWidget(wrapped(""));
    for (int i = 0; i < 3; ++i) layout->addWidget(new QPushButton);
    box->hide();
    return box;
}

static QLayout* profileRow() {
    auto* const chooser = new QComboBox;
    chooser->setEditable(true);
    chooser->completer()->setFilterMode(Qt::MatchContains);
    chooser->addItem("No default profile");
    auto* const row = new QHBoxLayout;
    row->addWidget(new QLabel("Profile:"));
    row->addWidget(chooser, 1);
    auto* const copy = new QToolButton;
    copy->setText("+");
    row->addWidget(copy);
    for (const char* text : {"Presets", "Settings"}) row->addWidget(new QPushButton(text));
    return row;
}

static void addMenu(QMainWindow* window, const char* title, std::initializer_list<const char*> entries) {
    QMenu* const menu = window->menuBar()->addMenu(title);
    for (const char* entry : entries) menu->addAction(entry);
}

int main(int argc, char** argv) {
    QLoggingCategory::setFilterRules("default.debug=false\ndefault.warning=false");  // as the program that it is beside
    QApplication application(argc, argv);
    QMainWindow window;
    auto* const middle = new QWidget;
    auto* const grid = new QGridLayout(middle);
    auto* const state = wrapped("Modem service not available");
    QFont large = state->font();
    large.setPointSizeF(large.pointSizeF() * 1.4);
    large.setBold(true);
    state->setFont(large);
    grid->addWidget(state, 0, 1);
    grid->addWidget(new QPushButton("Connect"), 0, 2);
    grid->addWidget(wrapped("OrbisDial finds modems through ModemManager. Install and start it."), 1, 1, 1, 2);
    grid->addWidget(hidden(), 2, 0, 1, 3);
    grid->addLayout(profileRow(), 3, 0, 1, 3);
    grid->setRowStretch(4, 1);
    window.setCentralWidget(middle);
    addMenu(&window, "&Connection", {"Connect", "Unlock", "Presets", "New from this one", "Settings", "Quit"});
    addMenu(&window, "&Help", {"Guide", "About OrbisDial"});
    return FirstPaint::of(&window);
}
