// Three small files for a later analysis of baselines: sigmas, ambiguities, epochs.
#pragma once

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// The command "ESA-Auswertung". Reads the .TEM rows and the protocol <Nummer>.LIS of the computed baselines (mode B:
/// below jorv_out, else in the project's folder) and writes <Nummer>.SIG, .AMB and .EPO beside the .TEM file, each
/// whole. The date of a row comes from its GPS week and day by WATIME, once for each day. A row with a bad field is
/// told and left out. Failure: no .TEM file, a file that can't be read or written, WATIME gave no date, no room.
Fehler m_basis_esa(Global& g);

/// No room for more than `grenze` observation files.
Fehler m_basis_esa(Global& g, int grenze);

}  // namespace jorv
