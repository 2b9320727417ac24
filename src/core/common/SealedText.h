// SPDX-License-Identifier: MIT
// How sealed texts are told from others.
#ifndef ORBISDIAL_SEALEDTEXT_H
#define ORBISDIAL_SEALEDTEXT_H

// What a text begins with that CommonUtilsBase::Encrypt made.
constexpr char SealedTextMark[] = "orbis1:";

#endif
