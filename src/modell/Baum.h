// The project tree as data: a pure function of the state and of the result files on disk.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace jorv {

struct Global;

struct Knoten {
    std::string Text;
    int Bild = 0;  ///< 1 usable, 2 with reservation, 3 not usable, 9 off or without identifier, 11 computed, 0 no light
};

struct Hauptknoten {
    std::string Schluessel;  ///< "R_Datei", "S_Datei", ...
    std::string Text;
    int KNOTEN = 0;  ///< slot of the expansion state
    bool offen = true;
    std::vector<Knoten> Kinder;
};

struct Baum {
    std::vector<Hauptknoten> Knoten;

    /// The top node of that key; nullptr where the mode has none.
    const Hauptknoten* finden(std::string_view schluessel) const;
};

/// Rebuilds g.baum and g.berechnete_ROVER from the arrays and the files, then lets the screen renew its tree.
void baum_aufbauen(Global& g);

/// The image of rover i (1-based) by its light alone, as if no result file were there.
int rover_bild(const Global& g, int i);

}  // namespace jorv
