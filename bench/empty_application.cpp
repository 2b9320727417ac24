// SPDX-License-Identifier: MIT
// The least that a program on Qt's core costs.

#include <QCoreApplication>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return 0;
}
