// The computed baselines as observations for an adjustment program.
#pragma once

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// The command "RV-Datei für LOVENA erstellen". Turns each row of jorv_out\export\<Nummer>.MRK (components and their
/// deviations in mm, three correlations, day of year) into two lines of RV001.DAT in the project's folder, components
/// in metres; the file is written whole. A row with a missing or bad field is told and left out. Failure: no rows yet,
/// "no" to overwriting, a file that can't be read or written.
Fehler m_basis_lovena(Global& g);

}  // namespace jorv
