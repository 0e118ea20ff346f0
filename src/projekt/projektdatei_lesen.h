// Reading a project file: the header, and one reader for each array section. The file is read once into a Profil that
// all readers share. Every reader empties its array first, shows its own message and stops at the first bad field.
#pragma once

#include <string_view>

#include "modell/Global.h"
#include "plattform/fehler.h"
#include "plattform/profil.h"

namespace jorv {

/// The file's image. Fails with a message, and without touching the state, when the file isn't there, can't be read or
/// names no project.
Fehler Projektdatei_laden(Global& g, std::string_view projektdatei, Profil& profil);

/// The header out of an image: name, number, mode, work directory, version, view of the map, expansion of the tree.
/// Sets the window's title and puts the project at the head of the recent list. Absent values of the tree stay.
void Verfahren_lesen(Global& g, std::string_view projektdatei, const Profil& profil);

/// Both at once, for a caller that needs the header only.
Fehler Verfahren_lesen(Global& g, std::string_view projektdatei);

/// "TOREL-OBS", "ROVER-OBS" or "FREMD-VIRT-OBS".
Fehler Dateidaten_OBS_lesen(Global& g, const Profil& profil, std::string_view sektion);
/// "GRAPHIK-TOREL", "GRAPHIK-ROVER" or "GRAPHIK-FREMD-VIRT".
Fehler Dateidaten_GRAPHIK_lesen(Global& g, const Profil& profil, std::string_view sektion);
/// Rows of a long session are read whole.
Fehler Dateidaten_ROVER_Settings_lesen(Global& g, const Profil& profil);
/// Reads the time-window option and the evaluation mode too; values that are absent leave them as they are.
Fehler Dateidaten_ROVER_TOREL_lesen(Global& g, const Profil& profil);
Fehler Dateidaten_ROVER_VIRT_lesen(Global& g, const Profil& profil);
Fehler Dateidaten_RINEX_lesen(Global& g, const Profil& profil);
Fehler Dateidaten_Antennen_lesen(Global& g, const Profil& profil);
Fehler Dateidaten_BASISLINIE_lesen(Global& g, const Profil& profil);

/// Everything behind the header in the fixed order, up to the first failure.
Fehler Dateidaten_lesen(Global& g, const Profil& profil);

}  // namespace jorv
