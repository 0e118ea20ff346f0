// The enciphered border lines that the map draws.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// Reads the border file into Lnd, with progress. An abort by the user turns the borders off (Grenzen "0") and is no
/// failure. Failure has shown its message.
Fehler grafik_grenzen_laden(Global& g);

/// The menu command: turns the borders of the map over, reads them when they go on, and draws the map anew. After an
/// abort or a failure they are off.
void m_grafik_grenzen(Global& g);

/// Makes the border file from plain lines "Typ Rechtswert Hochwert" (metres; empty lines are passed over). A bad line
/// shows its message, and the old file stays.
Fehler grenzen_machen(Global& g, std::string_view listentext);

/// The bytes of a border file into Lnd and back; `pfad` is for the messages. Reading shows progress and can be aborted
/// as above; nothing comes back when a point can't be enciphered.
Fehler grenzen_aus_text(Global& g, std::string_view chiffrat, std::string_view pfad);
std::optional<std::string> grenzen_als_text(const Feld<Lnd_Satz>& punkte);

}  // namespace jorv
