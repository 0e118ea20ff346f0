// How many rovers a run computes at once.
#pragma once

#include "modell/Global.h"

namespace jorv {

/// One for each core with the built-in suite, one after the other with any other: only of our own programs we know that
/// they keep to the folder they are started in. The key "Gleichzeitig" in the settings' section [GRUNDEINSTELLUNGEN]
/// lays down a number for both (1: one after the other). Windows: always 1, its interpreter can't move a folder.
int gleichzeitige_rover(const Global& g);

}  // namespace jorv
