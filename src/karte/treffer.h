// Which point lies under the pointer.
#pragma once

#include <cmath>

#include "karte/ansicht.h"
#include "modell/Feld.h"

namespace jorv {

/// Index of the first point in array order whose both coordinates differ from the place by no more than `radius`
/// (metres) and that `gilt` accepts; 0 when there is none.
template <typename T, typename Bedingung>
int treffer(const Feld<T>& punkte, const Weltort& ort, double radius, Bedingung gilt)
{
    int index = 0;
    for (const T& p : punkte) {
        ++index;
        if (std::abs(p.Rechtswert - ort.Rechtswert) <= radius && std::abs(p.Hochwert - ort.Hochwert) <= radius &&
            gilt(p))
            return index;
    }
    return 0;
}

template <typename T>
int treffer(const Feld<T>& punkte, const Weltort& ort, double radius)
{
    return treffer(punkte, ort, radius, [](const T&) { return true; });
}

}  // namespace jorv
