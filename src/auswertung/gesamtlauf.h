// The older way of computing: the batch of the whole project is started once, and nothing is filed rover by rover.
#pragma once

#include "auswertung/lauf.h"
#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// The command "nur WaSoft-Batchdatei ausführen": antenna test, call file anew, run, closing messages. Failure: the
/// test, no batch, an error protocol (<Nummer>.ERR) afterwards, or no rover that counts; each has been told.
Fehler m_wasoft_batch(Global& g, const Lauf_Umgebung& umgebung = {});

/// The whole-project command "WaSoft ausführen": m_wasoft_erstellen, then m_wasoft_batch; "no" to overwriting ends it.
Fehler m_wasoft_run(Global& g, const Lauf_Umgebung& umgebung = {});

}  // namespace jorv
