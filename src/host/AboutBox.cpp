// SPDX-License-Identifier: MIT
#include "AboutBox.h"

#include <QCoreApplication>
#include <QIcon>
#include <QMessageBox>
#include <QPushButton>

#include "HostText.h"
#include "StateSign.h"

void AboutBox::show(QWidget* parent) {
    const QString version = QCoreApplication::applicationVersion();
    auto* box = new QMessageBox(QMessageBox::NoIcon, hostText("IDS_HOST_ABOUT_TITLE"),
                                hostText("IDS_HOST_ABOUT_VERSION", {version}), QMessageBox::Close, parent);
    box->setObjectName(QStringLiteral("Host_AboutBox"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setIconPixmap(
        QIcon::fromTheme(QStringLiteral("orbisdial"), StateSign::icon(ConnectionPicture::Online)).pixmap(64));
    box->setInformativeText(hostText("IDS_HOST_ABOUT_TEXT", {QString::fromLatin1(qVersion())}));
    box->button(QMessageBox::Close)->setText(hostText("IDS_HOST_CLOSE"));
    box->open();
}
