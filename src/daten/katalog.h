// The enciphered catalogue of the permanent reference stations.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// Reads the whole catalogue into TOREL_Punkt, then the borders when the setting Grenzen is "1". Failure has shown its
/// message and leaves what had been read up to the failing line.
Fehler torel_coo_laden(Global& g);

/// Adds a station or replaces the coordinates of a known one (which keeps its name), in memory and in the file. A
/// station that is there with the same coordinates changes nothing. Failure has shown its message; the file then holds
/// what it held before. A file that holds stations which could not be read is never written: the new one is known in
/// memory alone.
Fehler torel_grund_neu(Global& g, std::string_view PKZ, double X, double Y, double Z, double Rechtswert,
                       double Hochwert, std::string_view Name);

/// Takes a station out after a question, reads the catalogue again and redraws the map. "No" is no failure.
Fehler torel_punkt_entfernen(Global& g, int index);

/// Makes the catalogue from plain lines "PKZ X Y Z Name" (the name may hold blanks; empty lines are passed over) and
/// takes it into memory. A bad line shows its message, and the old catalogue stays.
Fehler katalog_machen(Global& g, std::string_view listentext);

/// The bytes of a catalogue file into TOREL_Punkt and back; `pfad` is for the messages. A bad line ends the reading
/// with its message; nothing comes back when a station can't be enciphered.
Fehler katalog_aus_text(Global& g, std::string_view chiffrat, std::string_view pfad);
std::optional<std::string> katalog_als_text(const Feld<TOREL_Punkt_Satz>& stationen);

/// The seven German letters in two ASCII letters each.
std::string ascii_umschrift(std::string_view text);

}  // namespace jorv
