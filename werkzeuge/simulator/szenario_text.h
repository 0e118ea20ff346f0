// The plain text form of a scenario: sections in brackets, lines `Schluessel = Werte`, comments from # to the line's
// end.
#pragma once

#include <string>
#include <string_view>

#include "simulator/simulator.h"

namespace jorv::simulator {

/// Reads a scenario. Returns false with a German sentence in `meldung` that names the line.
/// Sections: [Allgemein], [Wirkungen], [Antenne NUMMER], [Punkt PKZ]; the keys are listed in `hilfe_szenario`.
[[nodiscard]] bool szenario_lesen(std::string_view text, Szenario& szenario, std::string& meldung);

/// The keys of all sections with their units, as text for the user (UTF-8).
std::string hilfe_szenario();

}  // namespace jorv::simulator
