// SPDX-License-Identifier: MIT
// What the device SDK says in English, in the current language. The SDK is a C library and knows one language alone.
#ifndef ORBISDIAL_DEVICETEXT_H
#define ORBISDIAL_DEVICETEXT_H

#include <QString>

namespace DeviceText {

// A problem or the words for a failure; what others said, such as a daemon or the network, stays as it is.
QString inLanguage(const QString& english);

}  // namespace DeviceText

#endif
