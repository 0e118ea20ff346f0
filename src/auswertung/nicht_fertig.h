// The way back from "computed" to "to be computed" for one rover.
#pragma once

#include <string_view>

#include "modell/Global.h"

namespace jorv {

/// The tree's command mnu_tree_nichtfertig: deletes protocol, error protocol and result of the rover of that file name,
/// those that are there, and builds the tree anew. A file that can't be deleted is shown; the others go all the same.
void mnu_tree_nichtfertig(Global& g, std::string_view rover);

}  // namespace jorv
