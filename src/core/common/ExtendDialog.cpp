// SPDX-License-Identifier: MIT
#include "ExtendDialog.h"

#include <QVBoxLayout>
#include <QVariant>

ExtendDialog::ExtendDialog(QWidget* parent, Qt::WindowFlags flags, int widgetType) : QDialog(parent, flags) {
    setProperty("widgetType", widgetType);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
}

void ExtendDialog::AddMainWidget(QWidget* widget) {
    if (!widget || widget == m_pMainWidget) return;
    if (m_pMainWidget && m_pMainWidget->parentWidget() == this) {
        layout()->removeWidget(m_pMainWidget);
        m_pMainWidget->hide();
        m_pMainWidget->setParent(nullptr);
    }
    m_pMainWidget = widget;
    layout()->addWidget(widget);
}

QWidget* ExtendDialog::MainWidget() const { return m_pMainWidget; }
