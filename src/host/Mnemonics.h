// SPDX-License-Identifier: MIT
// Letters that choose a menu's entries.
#ifndef ORBISDIAL_MNEMONICS_H
#define ORBISDIAL_MNEMONICS_H

class QMenu;

namespace Mnemonics {

// From now on each entry has a letter of its own whenever the menu opens, whatever its texts and their language.
void keep(QMenu* menu);

// Gives one to each entry that has none. An entry's object name is the ID of its text.
void give(QMenu* menu);

}  // namespace Mnemonics

#endif
