#pragma once
// Text of a RINEX 2 observation file: of the virtual station, GPS alone.

#include <string>

#include "plattform/kalender.h"
#include "suite/rinex_beobachtung.h"

namespace jorv::suite {

/// Header and epochs in RINEX 2.11, CR LF. `programm` and `jetzt` fill PGM / RUN BY / DATE; kinds that no observation
/// has are left out.
std::string beobachtung_text(const RinexBeobachtung& beobachtung, std::string_view programm, const Zeitpunkt& jetzt);

}  // namespace jorv::suite
