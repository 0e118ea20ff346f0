// The lights that rovers would get if the figure under construction were closed now.
#pragma once

#include <string>
#include <vector>

#include "modell/Global.h"

namespace jorv {

struct Roverlicht {
    int rover = 0;  ///< index in R_Punkt
    int bild = 0;   ///< image number of the tree: 1 usable, 2 with reservation, 3 not usable, 9 switched off
};

/// The lights of the rovers that the last figure of g catches, by the rules of automatik, with S_Punkt(weitere) as one
/// more corner where that is a corner to be (0: none). Empty for a figure of fewer than three corners, while none is
/// under construction, and for so many rovers that the pointer would stick. Changes nothing.
std::vector<Roverlicht> lichter_der_figur(const Global& g, int weitere);

/// Whether a click on S_Punkt(station) would add a corner to the figure under construction.
bool waere_neue_ecke(const Global& g, int station);
/// Whether that click would close it.
bool wuerde_schliessen(const Global& g, int station);

}  // namespace jorv
