// The settings of one rover as plain data: boxes with their limits, satellites with their ticks, what the traffic light
// means, and what OK takes over.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "modell/Global.h"
#include "planung/zahlenfeld.h"
#include "plattform/fehler.h"

namespace jorv {

/// One of the boxes `chk_satelliten`. A box without a satellite stays inactive.
struct Satellitenkasten {
    std::string Name;             ///< as in the RINEX header
    std::string Text = ". . . ";  ///< caption
    bool aktiv = false;
    bool Haken = false;
};
using Satellitenkaesten = std::array<Satellitenkasten, ROVER_Settings_Satz::max_satelliten>;

Satellitenkasten satellitenkasten(std::string_view name, bool haken);

struct Rovereinstellungen {
    std::string ROVER_Dateiname;
    std::string Titel;
    Zahlenfeld starttime, endtime;  ///< HHMMSS
    Zahlenfeld epochrate;           ///< seconds; 0 shows as an empty box
    Zahlenfeld elevation;           ///< degrees
    Zahlenfeld firstminutes, lastminutes;
    std::int32_t frequenz = 2;  ///< index of opt_frequenz: 0 L0, 1 L1, 2 automatic
    bool einaus = true;
    Satellitenkaesten satelliten;
    bool ampelinfo_sichtbar = false;
    std::string ampelinfo;  ///< two lines
};

/// What a traffic light means, its two lines joined by a line break.
std::string ampel_bedeutung(std::uint8_t status, std::uint8_t grund);

/// The dialog of a rover; nothing when it has no settings.
std::optional<Rovereinstellungen> einstellungen_oeffnen(const Global& g, std::string_view rover);

/// OK: elevation, minutes, frequency, switch and satellites are taken over, the rover's node in the tree gets the image
/// of its light, the project is stamped. Times and interval are shown and checked, never stored. The boxes have been
/// checked when they lost the focus.
Fehler einstellungen_ok(Global& g, const Rovereinstellungen& e);

}  // namespace jorv
