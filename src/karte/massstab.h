// The scale bar of a map.
#pragma once

#include <optional>
#include <string>

#include "karte/ansicht.h"

namespace jorv {

struct Massstab {
    double laenge = 0;  ///< metres
    std::string text;   ///< "10 km "
};

/// The bar for a map of that width (metres): a round length near a fifth of it; nothing for a fifth of at most 10 m.
/// A first digit that goes up from 9 gives the length of one digit less (96 gives 10).
std::optional<Massstab> massstab_zu_breite(double breite);

/// Bar and label at the lower left. The label lies above everything else of the picture.
struct Massstabbild {
    Rechteck balken;
    Schrift schrift;
};

/// Nothing where the shown extent has no bar.
std::optional<Massstabbild> grafik_massstab(const Ansicht& ansicht);

}  // namespace jorv
