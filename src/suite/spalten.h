#pragma once
// Numbers in fixed columns, read and written in bulk: observation files hold hundred thousands of them, so nothing here
// allocates. Blank is not the same as zero, which the readers of whole words do not tell apart.

#include <optional>
#include <string>
#include <string_view>

namespace jorv::suite {

/// The columns [ab, ab + anzahl) of a line counted from 0, as much of them as the line holds, without blanks at the
/// ends.
std::string_view spalten(std::string_view zeile, std::size_t ab, std::size_t anzahl);

/// The number that fills a field wholly (decimal point, exponent by E or D, a sign of either kind).
/// Nothing for a blank field and for anything else, infinity and not-a-number among it.
std::optional<double> spaltenzahl(std::string_view feld);

/// A whole number, or nothing.
std::optional<int> spaltenganz(std::string_view feld);

/// Appends `wert` right-aligned in `breite` with `stellen` decimals and a point; asterisks when it does not fit.
void anhaengen_fest(std::string& ziel, double wert, int breite, int stellen);

/// Appends a text, cut and filled with blanks to `breite`.
void anhaengen_links(std::string& ziel, std::string_view text, std::size_t breite);

}  // namespace jorv::suite
