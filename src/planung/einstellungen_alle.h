// The settings of all rovers as plain data: each button carries one value over to every rover under "ROVER-Dateien".
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "modell/Global.h"
#include "planung/einstellungen_rover.h"
#include "planung/zahlenfeld.h"
#include "plattform/fehler.h"
#include "plattform/text.h"

namespace jorv {

inline constexpr std::string_view einstellungen_alle_titel = u8"Einstellungen für alle ROVER"_w;

/// The buttons, off until the value of each has been changed.
enum class Alleknopf { cmd_start, cmd_ende, cmd_elevation, cmd_frequenz, cmd_satellit };

struct EinstellungenAlle {
    Zahlenfeld firstminutes, lastminutes;  ///< limits differ from those of a single rover
    Zahlenfeld elevation;                  ///< degrees
    std::int32_t frequenz = 2;
    bool emds_aktiv = false, emds = false;  ///< box chk_emds, for baselines only
    Satellitenkaesten satelliten;           ///< of all rovers, ascending, all ticked
    std::array<bool, 5> frei{};             ///< which buttons are enabled, by Alleknopf

    void geaendert(Alleknopf knopf) { frei[static_cast<std::size_t>(knopf)] = true; }
    bool ist_frei(Alleknopf knopf) const { return frei[static_cast<std::size_t>(knopf)]; }
};

/// Opens the dialog; `gewaehlter_rover` is the one selected in the tree, if any. Without a rover to compute it says so
/// and fails: the window closes. More than 70 different satellites show a message, the further ones get no box.
Fehler einstellungen_alle_oeffnen(Global& g, std::string_view gewaehlter_rover, EinstellungenAlle& e);

/// A button: its value goes to every rover under "ROVER-Dateien" at once and the project is stamped. A value beyond the
/// limits of its box is refused with the box's warning.
Fehler einstellungen_alle_uebernehmen(Global& g, EinstellungenAlle& e, Alleknopf knopf);

/// The box of the extra output file of baselines.
void emds_setzen(Global& g, EinstellungenAlle& e, bool an);

}  // namespace jorv
