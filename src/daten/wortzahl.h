// A number out of a read line, with the three messages of its family when it isn't there.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "modell/Global.h"
#include "modell/Meldungen.h"

namespace jorv {

/// Where a value was read, for its messages.
struct Leseort {
    std::string_view datei;
    int zeile = 0;
};

/// The number at the start of the blank-separated word `nummer`; a decimal comma counts as a point. A missing word or a
/// number beyond the type's range shows the message of the family and gives nothing.
std::optional<double> zahl_holen(Global& g, std::string_view zeile, int nummer, const Wertname& wert,
                                 const Leseort& ort);
std::optional<std::int16_t> ganz16_holen(Global& g, std::string_view zeile, int nummer, const Wertname& wert,
                                         const Leseort& ort);
std::optional<std::int32_t> ganz32_holen(Global& g, std::string_view zeile, int nummer, const Wertname& wert,
                                         const Leseort& ort);

/// The names of the three geocentric values in their messages.
inline constexpr Wertname wert_X = {"Konvertierungsfehler beim X-Wert", "X-Wert", "X-Wert"};
inline constexpr Wertname wert_Y = {"Konvertierungsfehler beim Y-Wert", "Y-Wert", "Y-Wert"};
inline constexpr Wertname wert_Z = {"Konvertierungsfehler beim Z-Wert", "Z-Wert", "Z-Wert"};

/// Three numbers from the word `erstes` on: X, Y, Z. False after a message; then some may have been read.
bool xyz_holen(Global& g, std::string_view zeile, int erstes, const Leseort& ort, double& X, double& Y, double& Z);

}  // namespace jorv
