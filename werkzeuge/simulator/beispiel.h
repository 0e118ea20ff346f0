// The two scenarios that the program knows by heart: the shipped example and the big file for measurements of speed.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "simulator/simulator.h"

namespace jorv::simulator {

/// The example's scenario in its text form: six stations, eight rovers, all effects moderate.
std::string_view beispiel_text();

/// Writes the example into `ordner`: rinex/, antennen/antennen.atx, katalog.txt, grenzen.txt, figuren.txt,
/// wahrheit.txt and szenario.txt. Returns false with a German sentence in `meldung`.
[[nodiscard]] bool beispiel_schreiben(const std::filesystem::path& ordner, std::string& meldung);

/// One receiver, 24 hours at one second with signal strengths and without TIME OF LAST OBS: about 100 MB.
Szenario grosses_szenario();

}  // namespace jorv::simulator
