// The header of a RINEX 2 observation file, as far as the records of a project need it. Text in, fields out.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "daten/rinex_abtastung.h"
#include "modell/Global.h"

namespace jorv {

/// Year, month, day, hour, minute, second of GPS time.
using Kopfzeit = std::array<std::int16_t, 6>;

struct Rinexkopf {
    double X = 0, Y = 0, Z = 0;  ///< metres
    std::string Antenne;         ///< the first 40 columns of the antenna line
    std::int32_t Typen = 0, Intervall = 0;
    Kopfzeit Start{}, Ende{};
    bool abgeschlossen = false;  ///< END OF HEADER was met
    /// The inventory, where the data behind a whole header had to be walked for the end time.
    std::optional<std::vector<std::string>> Satelliten;
};

/// Reads the header; without an end time in the header the data too. `name` is for the messages. Nothing after a
/// message, and when the stream's file has failed, which is the caller's to tell.
std::optional<Rinexkopf> rinexkopf_lesen(Global& g, Zeilenstrom& strom, std::string_view name);

}  // namespace jorv
