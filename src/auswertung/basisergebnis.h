// The result of one baseline, read back from the files that a run has left.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "modell/Global.h"

namespace jorv {

struct Basisergebnis {
    std::array<double, 3> d{};  ///< dX dY dZ, metres
    double Strecke = 0;         ///< metres
    std::array<double, 3> s{};  ///< sX sY sZ, mm
    std::array<double, 3> r{};  ///< rXY rYZ rZX
    /// From the file for the later analysis; empty and 0 where it has no such row.
    std::string Loesung;
    double Sigma = 0;          ///< of unit weight, mm
    double Ambiguitaeten = 0;  ///< per cent fixed
};

/// The last row of the baseline's own result file; nothing when there is none or a value in it is no number.
std::optional<Basisergebnis> basisergebnis_lesen(const Global& g, const BASISLINIE_Satz& basislinie);

}  // namespace jorv
