// The letters of the map: their heights, and what room a text takes. Whoever paints has the real font; to keep labels
// apart an estimate is enough.
#pragma once

#include <string_view>

#include "plattform/text.h"

namespace jorv {

inline constexpr double schrift_pkz = 11, schrift_massstab = 11, schrift_hinweis = 12;

/// Room at both ends of a text with a background of its own.
inline constexpr double textrand = 6;

/// Width of a line in a common sans serif font of that height.
inline double schriftbreite(std::string_view text, double groesse)
{
    constexpr double mittlere_breite = 0.6;
    return static_cast<double>(trimmen(text).size()) * groesse * mittlere_breite;
}

/// Height of the line.
inline double schrifthoehe(double groesse)
{
    return groesse * 1.1;
}

}  // namespace jorv
