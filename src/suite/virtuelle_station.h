#pragma once
// Program wav2: makes the observations of a virtual reference station at the rover's approximate place from those of
// the nearest station, corrected by the network of the other stations where these fit, with a navigation file beside
// it.

#include <optional>
#include <string>

#include "plattform/uhr.h"
#include "suite/arbeitsordner.h"
#include "suite/aufruf.h"
#include "suite/protokoll.h"
#include "suite/rinex_beobachtung.h"

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

/// Does the whole work: <virt>.<yyo>, <virt>.<yyn> and the protocol file in the folder, with GLONASS in the
/// observations of a station without network also <virt>.<yyg>. Exit status 0, or 1 when there is no virtual station;
/// then the reason is in the protocol and no observation or navigation file is left.
int wav2(const Wav2Aufruf& aufruf, const Arbeitsordner& ordner, const Uhr& uhr, Protokoll& protokoll);

}  // namespace jorv::suite
