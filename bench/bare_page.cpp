// SPDX-License-Identifier: MIT
// The settings page's bare widgets, without profiles, texts' translations or logic; ends when it has been painted,
// or with an argument stays.

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "FirstPaint.h"

static QGroupBox* group(const char* title, QLayout* content) {
    auto* const box = new QGroupBox(title);
    box->setLayout(content);
    return box;
}

static QWidget* fields() {
    auto* const name = new QHBoxLayout;
    name->addWidget(new QComboBox);
    auto* const entry = new QLineEdit;
    entry->hide();
    name->addWidget(entry);
    auto* const apn = new QFormLayout;
    apn->addRow(new QRadioButton("Dynamic"), new QRadioButton("Static"));
    apn->addRow("APN:", new QLineEdit);
    auto* const authentication = new QFormLayout;
    for (const char* label : {"Access number:", "User name:", "Password:"})
        authentication->addRow(label, new QLineEdit);
    auto* const protocol = new QHBoxLayout;
    protocol->addWidget(new QCheckBox("CHAP"));
    protocol->addWidget(new QCheckBox("PAP"));

    auto* const page = new QWidget;
    auto* const groups = new QVBoxLayout(page);
    groups->addWidget(group("Profile Name", name));
    groups->addWidget(group("APN", apn));
    groups->addWidget(group("Authentication", authentication));
    groups->addWidget(new QLabel);
    groups->addWidget(new QCheckBox("Ask for user name and password"));
    groups->addWidget(group("Protocol", protocol));
    groups->addStretch();
    return page;
}

int main(int argc, char** argv) {
    QLoggingCategory::setFilterRules("default.debug=false\ndefault.warning=false");  // as the program that it is beside
    QApplication application(argc, argv);
    QWidget window;
    auto* const layout = new QHBoxLayout(&window);
    auto* const tabs = new QTabWidget;
    tabs->addTab(fields(), "Profiles");
    layout->addWidget(tabs);
    auto* const buttons = new QVBoxLayout;
    for (const char* text : {"New", "Delete", "Edit", "Save", "Undo", "Set Default", "Import", "Export"})
        buttons->addWidget(new QPushButton(text));
    buttons->addStretch();
    layout->addLayout(buttons);
    if (argc == 1) return FirstPaint::of(&window);
    window.show();
    return QApplication::exec();
}
