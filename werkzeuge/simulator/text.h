// Fixed-column text for RINEX and ANTEX: right-aligned numbers, exponent numbers with the letter D, labels at
// column 61.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace jorv::simulator {

/// Appends a fixed point number right-aligned in `breite`, rounded half away from zero to `stellen` (0..9) digits.
/// A number that doesn't fit takes the room it needs. |wert| must stay below 9e18 / 10^stellen.
void fest(std::string& aus, double wert, int breite, int stellen);
/// Appends a whole number right-aligned, filled with `fuell`.
void ganz(std::string& aus, long long wert, int breite, char fuell = ' ');
/// Appends a number with an exponent by the letter D and one digit before the point, as a rule D19.12.
void exponent(std::string& aus, double wert, int breite = 19, int stellen = 12);
/// The value that `exponent` writes as D19.12, as a reader gets it back.
double gedruckt(double wert);
/// Appends `wert` left-aligned in `breite`, cut when longer.
void links(std::string& aus, std::string_view wert, int breite);
/// One header line: `inhalt` padded to column 60, the label, a line feed.
void kopfzeile(std::string& aus, std::string_view inhalt, std::string_view label);
/// The whole text as a number; nothing when it isn't one.
std::optional<double> zahl(std::string_view text);

}  // namespace jorv::simulator
