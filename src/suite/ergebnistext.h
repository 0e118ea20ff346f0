#pragma once
// The texts of a result for people, and its values in full precision for programs that print rows from them later.

#include <optional>
#include <string>

#include "suite/ergebnis.h"
#include "suite/loeser_ausgabe.h"

namespace jorv::suite {

/// Takes deviations and correlations over from a position: the last three deviations of the solver are signed roots of
/// covariances. Correlations are clamped to -1 .. 1.
void genauigkeit_setzen(Ergebnis& ziel, const Position& position);

/// A few lines of the computation protocol; lines end in CR LF, the last one without.
std::string ergebnistext(const Ergebnis& e);

/// One line for the standard output.
std::string kurzmeldung(const Ergebnis& e);

/// The result protocol: the same lines and a block of lines "WERT name=value".
std::string loesungstext(const Ergebnis& e);

/// The result of such a protocol, equal to the one that was written in all that the rows print. Nothing when a value of
/// the block is missing or no number.
std::optional<Ergebnis> loesung_lesen(std::string_view text);

/// The baseline alone: names, coordinates, differences, covariances in square metres.
std::string basislinientext(const Ergebnis& e);

}  // namespace jorv::suite
