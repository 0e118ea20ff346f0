// The nearest way to a green light for a rover that hasn't got one, in modes E and S.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "modell/Begruendung.h"
#include "modell/Global.h"

namespace jorv {

enum class Wegart : std::uint8_t {
    keiner,           ///< the project's files offer none
    schutz_aufheben,  ///< the assignment by rule would be green
    figur,            ///< draw a figure of Punkte
    von_hand,         ///< link Dateien by hand and protect them
    einfuegen         ///< take in the files of Bedarf
};

/// A station file that is wanted.
struct Stationsbedarf {
    std::string Punktkennzeichen;
    std::string TOREL_Dateiname;  ///< with day and session as they have to be
    Zeitpunkt von, bis;           ///< span that it has to cover
};

struct Weg {
    Wegart art = Wegart::keiner;
    std::vector<std::string> Punkte;
    std::vector<Dateiurteil> Dateien;
    std::vector<Stationsbedarf> Bedarf;
};

/// Ways that leave the data as they are come first. What is proposed has been tried on a copy: it gives green. Nothing
/// for a rover that is green already and in other modes.
std::optional<Weg> weg_zu_gruen(const Global& g, int rover);

}  // namespace jorv
