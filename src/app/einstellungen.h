// The user's settings file: what the program remembers between two starts, the recent list and the project list.
#pragma once

#include <string_view>

#include "modell/Global.h"
#include "plattform/fehler.h"
#include "plattform/profil.h"

namespace jorv {

/// Fills the settings of `g` from g.Einstellungsdatei; an absent or empty value leaves the default. Ends with the
/// project list.
Fehler ini_lesen_START(Global& g);

/// Writes settings, recent list and project list into g.Einstellungsdatei under its lock; keys that only the user
/// changes, unknown keys and other programs' projects stay as they are on the disk.
Fehler ini_schreiben_START(Global& g);

/// The same out of and into the image of the file.
Fehler Einstellungen_lesen(Global& g, const Profil& profil);
void Einstellungen_eintragen(const Global& g, Profil& profil);

/// Takes the keys of one INI file into another. Returns 0, or the step that failed (its message was shown): 1 open, 2
/// close, 3 delete, 4 read, 5 a line without key, 6 the target.
int ini_mischen(Global& g, std::string_view quelle, std::string_view ziel, bool quelle_loeschen,
                bool vorhandene_behalten);

}  // namespace jorv
