// Turns an observation file of the project into its records: rover, reference station or virtual point.
#pragma once

#include <string>
#include <string_view>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

enum class Punktart { rover, virtuell, station };

/// Rover by the name, else a virtual point when it begins with "virt" (lower case only), else a station.
Punktart punktart(const Global& g, std::string_view name);

/// The message of a position that can't be converted.
std::string umrechnung_meldung(Punktart art, std::string_view name);

/// Reads the header of the file (bare name, in the project directory), the data section too where the header has no end
/// time, and appends one point record and one observation record, for a rover also its settings record. Positions are
/// metres, times are the file's GPS time. Failure has shown its message; a failed conversion leaves the new records
/// behind, empty.
Fehler punkt_info_lesen(Global& g, const std::string& name);

}  // namespace jorv
