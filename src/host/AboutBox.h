// SPDX-License-Identifier: MIT
// Version, licence and libraries.
#ifndef ORBISDIAL_ABOUTBOX_H
#define ORBISDIAL_ABOUTBOX_H

class QWidget;

namespace AboutBox {

// Opens it over the parent and returns at once.
void show(QWidget* parent);

}  // namespace AboutBox

#endif
