#pragma once
// Program wa2: one baseline from a fixed station to a rover, from the files of the working folder to the extraction row
// and the protocols.

#include "plattform/uhr.h"
#include "suite/arbeitsordner.h"
#include "suite/aufruf.h"
#include "suite/ergebnis.h"
#include "suite/loeser.h"
#include "suite/protokoll.h"

namespace jorv::suite {

/// Computes and writes everything. Exit status 0 with a solution; 1 without one, then there is no extraction file and
/// the protocol says why. Extraction and solution files of an earlier run are removed first.
int wa2(const Wa2Aufruf& aufruf, const Arbeitsordner& ordner, const Loeserumgebung& umgebung, const Uhr& uhr,
        Protokoll& protokoll);

}  // namespace jorv::suite
