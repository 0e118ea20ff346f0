#pragma once
// Program wav2: makes the observations of a virtual reference station at the rover's approximate place from those of
// the nearest station, corrected by the network of the other stations where these fit, with a navigation file beside
// it.

#include "plattform/uhr.h"
#include "suite/arbeitsordner.h"
#include "suite/aufruf.h"
#include "suite/protokoll.h"

namespace jorv::suite {

/// Does the whole work: <virt>.<yyo>, <virt>.<yyn> and the protocol file in the folder, with GLONASS in the
/// observations of a station without network also <virt>.<yyg>. Exit status 0, or 1 when there is no virtual station;
/// then the reason is in the protocol and no observation or navigation file is left.
int wav2(const Wav2Aufruf& aufruf, const Arbeitsordner& ordner, const Uhr& uhr, Protokoll& protokoll);

}  // namespace jorv::suite
