// The nodes of the project tree, as data.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace jorv {

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
    const Hauptknoten* finden(std::string_view schluessel) const
    {
        for (const auto& k : Knoten)
            if (k.Schluessel == schluessel) return &k;
        return nullptr;
    }
};

}  // namespace jorv
