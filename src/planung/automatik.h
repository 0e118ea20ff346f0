// Which stations serve which rover, and how good that is: the traffic light of every rover.
// Works on the arrays alone. Linear in rovers times figures; station files are found by an index of point names.
#pragma once

#include "modell/Global.h"

namespace jorv {

/// Renews ROVER_TOREL (modes E and S, rows set by hand stay) or ROVER_VIRT (mode F), keeps the reasons in
/// g.Begruendungen and rebuilds the tree. Without a figure the unprotected rovers stay unjudged, which is no failure.
/// An array that can't grow shows its message; the tree is rebuilt all the same.
void automatik(Global& g);

/// The same without the tree.
void zuordnen(Global& g);

}  // namespace jorv
