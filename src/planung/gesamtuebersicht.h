// The time overview of a project or of one of its days, as plain data: a row for each observation on one time axis.
#pragma once

#include <string>
#include <string_view>

#include "modell/Feld.h"
#include "modell/Global.h"
#include "planung/zeitachse.h"
#include "plattform/fehler.h"

namespace jorv {

struct Uebersichtszeile {
    std::string Dateiname;
    Zeitpunkt Beginn, Ende;  ///< first and last epoch
    std::string Hinweis;     ///< tool tip
    Zeilenfarbe farbe = Zeilenfarbe::grau;
    Balken balken;
};

struct Gesamtuebersicht {
    std::string Titel;
    /// Rovers, stations (modes E and S), foreign stations (mode F); shown in this order from top to bottom.
    Feld<Uebersichtszeile> zeit_r, zeit_s, zeit_v;
    Feld<std::int32_t> pos_s;  ///< place of each row from the top, in rows
    Zeitpunkt frueheste, spaeteste;
    Zeitachse achse;
};

/// The rows of day g.tage[g.zeit_tag], of the whole project with g.zeit_tag 0. In mode F the foreign stations alone
/// set the axis as soon as the first one belongs, so a rover may lie outside. An array that can't grow shows its
/// message and leaves no rows.
Fehler gesamtuebersicht_oeffnen(Global& g, Gesamtuebersicht& u);

/// The command of entry `eintrag` of m_grafik_zeiten: day g.tage[eintrag], the whole project with 0. Then as above.
Fehler m_grafik_zeiten(Global& g, int eintrag, Gesamtuebersicht& u);

}  // namespace jorv
