// SPDX-License-Identifier: MIT
// The host's line edit: a QLineEdit, so that the host's style sheets can tell it apart.
#ifndef ORBISDIAL_EXTENDLINEEDIT_H
#define ORBISDIAL_EXTENDLINEEDIT_H

#include <QLineEdit>

#include "HostCoreExport.h"

class HOSTCORE_EXPORT ExtendLineEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit ExtendLineEdit(QWidget* parent = nullptr);
};

#endif
