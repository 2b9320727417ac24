// SPDX-License-Identifier: MIT
// No modem: every device call fails.
#ifndef ORBISDIAL_NONEBACKEND_H
#define ORBISDIAL_NONEBACKEND_H

#include "../Backend.h"

class NoneBackend : public Backend {};

#endif
