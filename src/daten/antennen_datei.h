// The antenna calibration files of a project, joined into one project file.
#pragma once

#include <string>
#include <string_view>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// Checks that all files of Antennen_Dateien may go together and joins them, in list order, into <Nummer>.ATX. A file
/// that may not is thrown out of the list with a message, and nothing is written in that call. `kaputte` receives the
/// refused names.
Fehler VerfahrensATX_erzeugen(Global& g, Feld<std::string>& kaputte);
Fehler VerfahrensATX_erzeugen(Global& g);

/// Joins the files of the IGS form into <Nummer>.APC behind a fixed head.
Fehler VerfahrensAPC_erzeugen(Global& g, Feld<std::string>& kaputte);
Fehler VerfahrensAPC_erzeugen(Global& g);

/// Takes the name out of Antennen_Dateien; the file stays on the disk.
void antennen_loeschen(Global& g, std::string_view name);

/// Takes an antenna file out of the project and deletes it, after a question; then the project file is saved. "No" is
/// no failure.
Fehler Antennen_Datei_loeschen(Global& g, const std::string& name);

}  // namespace jorv
