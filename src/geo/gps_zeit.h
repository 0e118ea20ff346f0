// GPS time and dates by the suite's tool WATIME: a generated call file, a waiting start, the first line of its answer.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// Day of year of a civil GPS time, as the text that WATIME gives (its third word less the last three characters).
Fehler gps_zeit_holen(Global& g, std::int16_t jahr, std::int16_t monat, std::int16_t tag, std::int16_t stunde,
                      std::int16_t minute, std::int16_t sekunde, std::string& gps_zeit);

/// Date of a GPS week and day of the week (0 Sunday).
Fehler gps_datum_holen(Global& g, std::int16_t gps_woche, std::int16_t gps_tag, Zeitpunkt& datum);

/// Day of year and date out of an answer line of WATIME; nothing when the word is missing or no date.
std::optional<std::string_view> watime_tag(std::string_view antwort);
std::optional<Zeitpunkt> watime_datum(std::string_view antwort);

}  // namespace jorv
