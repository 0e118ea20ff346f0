// The outside programs that go on with the results: averaging of coordinates and drawing. Each gets its task through
// keys of an INI file and is started in a window of its own.
#pragma once

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// The command "Koordinatenmittelung". Gathers the results of the computed rovers in <Nummer>.UTM (none: told, an older
/// file is used), writes the task into <Nummer>.INI (values that the user has chosen there stay), starts RUNA.EXE of
/// EXE_Verzeichnis with that file and stamps the project. A rover without a readable result is told and left out.
/// Failure, told: no results at all, a file that can't be written, the start failed.
Fehler m_wasoft_runa(Global& g);

/// The command "Graphik". Names the drawing HB<Nummer>.DAT in the section [HOLBEK] of the settings file and starts
/// HOLBEK.EXE of EXE_Verzeichnis with it, in the folder of that file. Failure, told: no drawing yet, the settings can't
/// be written, the start failed.
Fehler m_wasoft_holbek(Global& g);

}  // namespace jorv
