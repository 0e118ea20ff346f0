// The older way: one batch for the whole project, with the programs `wasoft` and `waprt`.
#pragma once

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// The command "nur WaSoft-Batchdatei erstellen", modes E and S: after the antenna test, and the question when a batch
/// is there already, writes <Nummer>.BAT for all green rovers and Jorv.BAT. Failure: another mode, a failed antenna
/// test, "no", or a batch that can't be written. A call file that can't be written is shown but is no failure.
Fehler m_wasoft_erstellen(Global& g);

}  // namespace jorv
