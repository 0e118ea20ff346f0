#pragma once
// Program wasoft: the older call for both steps of a rover, the virtual station and the baseline from it, and for
// single baselines. The work is that of wav2 and wa2.

#include "plattform/uhr.h"
#include "suite/arbeitsordner.h"
#include "suite/aufruf.h"
#include "suite/loeser.h"
#include "suite/protokoll.h"

namespace jorv::suite {

/// Runs one call. Leaves <name>.<yyo>, <name>.<yyn>, <name>.vrt or <rover's stem>.prt; the caller prints the protocol.
/// Exit status 0 or 1. A step of a rover that failed also leaves its messages in wav2.err, a good one none.
int wasoft(const Worte& worte, const Arbeitsordner& ordner, const Loeserumgebung& umgebung, const Uhr& uhr,
           Protokoll& protokoll);

}  // namespace jorv::suite
