#pragma once
// Finds the observation files of reference stations in the folder by the four characters of their names, reads what a
// rover's span needs of them, and the broadcast orbits that belong to it.

#include <optional>
#include <string>
#include <vector>

#include "suite/arbeitsordner.h"
#include "suite/glonass.h"
#include "suite/protokoll.h"
#include "suite/rinex_beobachtung.h"
#include "suite/rinex_navigation.h"

namespace jorv::suite {

/// A rover's or station's file as the programs need it.
struct Beobachtungsdatei {
    std::string name;
    RinexBeobachtung daten;
};

/// Reads an observation file of the folder; its remarks go to the protocol. Nothing, with an ERROR line, when it can't
/// be used.
std::optional<Beobachtungsdatei> datei_lesen(const Arbeitsordner& ordner, std::string_view name, Umfang umfang,
                                             Protokoll& protokoll, const std::optional<Zeitspanne>& fenster = {},
                                             Systeme systeme = Systeme::gps);

/// A plausible place on the ground: between 6300 and 6450 km from the earth's centre.
bool ist_erdort(const Xyz& ort);

/// Observation files of the station for the days of the span among the folder's names, those of the rover's session
/// first.
std::vector<std::string> stationsdateien(const std::vector<std::string>& alle, std::string_view station,
                                         std::string_view rover, const Zeitspanne& spanne);

/// The station's observations inside the span (an interval of its own wider at both ends), joined from as many of the
/// files as are needed. Nothing when none holds any.
std::optional<Beobachtungsdatei> station_lesen(const Arbeitsordner& ordner, const std::vector<std::string>& dateien,
                                               const Zeitspanne& spanne, Protokoll& protokoll,
                                               Systeme systeme = Systeme::gps);

/// The GLONASS sets beside all stems; nothing when none has any.
Glonassnavigation glonass_suchen(const Arbeitsordner& ordner, const std::vector<std::string>& beobachtungsdateien,
                                 Protokoll& protokoll);

/// GPS navigation: of the first stem that has a file, or of all stems when `alle` is set; without any, every
/// navigation file of the folder for the year of the last name.
Navigation navigation_suchen(const Arbeitsordner& ordner, const std::vector<std::string>& beobachtungsdateien,
                             bool alle, Protokoll& protokoll);

/// The two parts of the name of a RINEX file that name the kind: "30400920.05o" with kind 'n' gives "30400920.05n".
std::string mit_art(std::string_view dateiname, char art);

}  // namespace jorv::suite
