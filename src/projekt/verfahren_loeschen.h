// The command that takes the open project out of the lists, and in one region off the disk too.
#pragma once

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// Asks, then removes the open project from both lists and closes it. In region MT its work directory goes with all
/// content, provided that it holds the project file and is no root and none of the user's own folders; a failure there
/// is shown and the rest goes on. "No" is no failure.
Fehler m_datei_loeschen(Global& g);

}  // namespace jorv
