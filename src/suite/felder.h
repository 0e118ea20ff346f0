#pragma once
// The extraction row: fields of fixed width named by codes, one blank between two fields. The columns are an agreement
// with whoever cuts the row by counting.

#include <string>
#include <string_view>
#include <vector>

#include "suite/ergebnis.h"

namespace jorv::suite {

/// Is it a code of the field table?
bool feld_bekannt(std::string_view code);

/// The row of a field list without a line end. Codes that the table lacks are passed over.
std::string feldzeile(const std::vector<std::string>& codes, const Ergebnis& ergebnis);

/// `wert` right-aligned in `breite` with `stellen` decimals. Too long a number loses decimals, then becomes asterisks;
/// with `luft` the first column stays blank, so that neighbours in a group never run together.
std::string feldwert(double wert, int breite, int stellen, bool luft);

}  // namespace jorv::suite
