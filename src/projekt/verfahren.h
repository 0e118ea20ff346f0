// The life of a project: new, open, save, close. Deleting is in verfahren_loeschen.h.
#pragma once

#include <string>
#include <string_view>

#include "modell/Global.h"
#include "plattform/fehler.h"
#include "plattform/oberflaeche.h"
#include "projekt/titel.h"

namespace jorv {

/// Asks for name, directory and mode until a project has been made or the user cancels.
Fehler m_datei_neu(Global& g);

/// What the OK button of that dialog does: checks the choice, makes directory and project file, enters the project
/// under the next free number and opens it. The open project is saved first. Failure has been shown.
Fehler Verfahren_anlegen(Global& g, const Verfahrenswahl& wahl);

/// What a project is opened for. Only to be read it may be open in another program too.
enum class Zugriff { aendern, lesen };

/// Saves the open project and opens another one of the list. A project that could not be read to its end has no
/// commands and is never saved; a file that can't be read at all, or that another program has open to be changed,
/// leaves the open project as it was.
Fehler Verfahren_oeffnen(Global& g, std::string_view name, Zugriff zugriff = Zugriff::aendern);

/// Opens the project of slot n (1 to 8) of the recent list.
Fehler m_dateien_verfahren(Global& g, int n);

/// Tests that directory and project file exist. If not, the project leaves both lists at once; if it is the open one,
/// it is closed.
Fehler Verfahren_pruefen(Global& g, std::string_view name);

/// Saves the open project, if there is one.
void m_datei_sichern(Global& g);

/// Empties the state without saving: no project is open afterwards. Renews tree, map, title and menus.
void Verfahren_schliessen(Global& g);

/// Removes temporary files that a killed program left in the open project's folders.
void reste_wegraeumen(const Global& g);

/// The commands that are off without an open project or after a failed open.
void vier_Menues(Global& g, bool an);

/// All arrays of the open project, baselines too, back to nothing; what was read of it no longer counts as whole.
Fehler Verfahrensdaten_leeren(Global& g);

}  // namespace jorv
