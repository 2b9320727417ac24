// SPDX-License-Identifier: MIT
// Marks what the host core library exports.
#ifndef ORBISDIAL_HOSTCOREEXPORT_H
#define ORBISDIAL_HOSTCOREEXPORT_H

#include <QtGlobal>

#if defined(HOSTCORE_BUILD)
#define HOSTCORE_EXPORT Q_DECL_EXPORT
#else
#define HOSTCORE_EXPORT Q_DECL_IMPORT
#endif

#endif
