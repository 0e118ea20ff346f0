#pragma once
// How the file of a virtual station tells which station it was made from.

#include <optional>
#include <string>
#include <string_view>

namespace jorv::suite {

/// The real station behind a virtual one. The atmosphere's errors grow with this distance although the file's own place
/// is the rover's, so whoever judges a solution asks for it.
struct Herkunft {
    std::string station;
    double strecke = 0.0;            // metres from the virtual place
    double hoehenunterschied = 0.0;  // metres, virtual place minus station
    bool netz = false;               // corrected by other stations, so that the distance counts less
};

/// The comment line of the header that carries it, and back; nothing when the text is no such comment.
std::string herkunft_text(const Herkunft& herkunft);
std::optional<Herkunft> herkunft_lesen(std::string_view kommentar);

}  // namespace jorv::suite
