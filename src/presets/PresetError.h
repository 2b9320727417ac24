// SPDX-License-Identifier: MIT
// What ends a run of the preset tool: one line for the person who runs it.
#ifndef ORBISDIAL_PRESETERROR_H
#define ORBISDIAL_PRESETERROR_H

#include <QString>
#include <stdexcept>

class PresetError : public std::runtime_error {
public:
    explicit PresetError(const QString& message) : std::runtime_error(message.toStdString()) {}
};

#endif
