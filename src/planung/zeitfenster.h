// Time windows of the rovers, and the list of observation days behind the entries of the time overview.
#pragma once

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

struct Zeitfenster {
    Zeitpunkt von, bis;
};

/// The window of one rover: its own span, or the hour centred on it when it is shorter than 60 calendar minutes.
Zeitfenster zeitfenster_von(const OBS& rover);

/// Both window fields of every ROVER_TOREL row: "0" while the option is off; else six digits HHMMSS, the rover's own
/// span, or the hour centred on it when it is shorter than 60 calendar minutes. An abort turns the option off.
/// A limit at exactly midnight gives the last two digits of the year, as it always did.
void zeitfenster_alle(Global& g);

/// The menu command: turns the option over, renews all windows and stamps the project.
void m_grund_zeitfenster_1h(Global& g);

/// Rebuilds g.tage (distinct days of the observation records, ascending). An empty list means that the entry for the
/// whole project is off. An array that can't grow shows its message.
Fehler menue_zeitfenster(Global& g);

}  // namespace jorv
