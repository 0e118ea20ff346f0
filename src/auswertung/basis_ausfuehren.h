// The older way for baselines: the batch of all of them is started in a window of its own, and nobody waits for it.
#pragma once

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// The command "nur Basislinien-Batchdatei ausführen": call file anew, start. Nothing is evaluated: the batch itself
/// writes <Nummer>.MRK and .TEM. Failure: no batch, or it can't be started; each has been told.
Fehler m_basis_batch(Global& g);

/// The command "Basislinien berechnen": m_basis_erstellen, then m_basis_batch; "no" to overwriting ends it.
Fehler m_basis_run(Global& g);

/// Starts the call file in a window of its own and returns at once. A failure has been shown.
Fehler aufrufdatei_starten(Global& g);

}  // namespace jorv
