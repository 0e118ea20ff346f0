// The older way for baselines: one batch for all of them, with the programs `wasoft` and `waprt`.
#pragma once

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// The command "nur Basislinien-Batchdatei erstellen", mode B: after the question when a batch is there already, writes
/// <Nummer>.BAT for all baselines and Jorv.BAT. Its results gather in <Nummer>.MRK and <Nummer>.TEM. Failure: another
/// mode, "no", or a batch that can't be written. A call file that can't be written is shown but is no failure.
Fehler m_basis_erstellen(Global& g);

}  // namespace jorv
