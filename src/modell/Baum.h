// The project tree: a pure function of the state and of the result files on disk.
#pragma once

#include <string_view>

#include "modell/Global.h"
#include "modell/Knoten.h"

namespace jorv {

/// Rebuilds g.baum and g.berechnete_ROVER from the arrays and the files, then lets the screen renew its tree.
void baum_aufbauen(Global& g);

/// The image of rover i (1-based) by its light alone, as if no result file were there.
int rover_bild(const Global& g, int i);

/// Sets the image of a rover's node under "ROVER-Dateien" in place and adjusts g.berechnete_ROVER. The node of a
/// computed rover keeps its image.
void rover_bild_setzen(Global& g, std::string_view rover, int bild);

/// A top node has been expanded or collapsed: kept in KNOTEN for the next save. An unknown key does nothing.
void knoten_oeffnen(Global& g, std::string_view schluessel, bool offen);

}  // namespace jorv
