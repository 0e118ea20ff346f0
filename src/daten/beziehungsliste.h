// Relation lists: a text file with two points a line, each pair of which becomes the baselines between their files.
#pragma once

#include <string_view>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// What the file dialog of m_datei_basis_liste opens with; the chosen file must exist.
inline constexpr std::string_view basisliste_auswahl_titel = "Datei mit Basisliniendefinitionen:";
inline constexpr std::string_view basisliste_auswahl_filter = "Alle Dateien (*.*)|*.*";
inline constexpr std::string_view basisliste_auswahl_name = "*.*";

/// What follows the file dialog: loads the list of that path. A name left as it was, or none, does nothing.
Fehler m_datei_basis_liste(Global& g, std::string_view gewaehlt);

/// Reads the list (DOS path, Windows-1252, words VON and NACH separated by blanks, empty lines passed over). A pair
/// without data or of one point twice is warned of and left out; a line with a missing word ends the reading with a
/// failure. The records made so far stay, tree and map are renewed; an unreadable file changes nothing.
Fehler beziehungsliste_laden(Global& g, std::string_view datei);

/// The same for the text of a list; `datei` is for the messages.
Fehler beziehungen_lesen(Global& g, std::string_view text, std::string_view datei);

}  // namespace jorv
