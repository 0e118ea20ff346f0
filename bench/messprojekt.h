// A project of any size, four rows a rover, for the measurements of the project file.
#pragma once

#include <string>

#include "projekt/Vollprojekt.h"

namespace jorv::messen {

inline void volle_rover(Global& g, int rover_zahl)
{
    for (int i = 1; i <= rover_zahl; ++i) {
        const std::string name = verkettet(i, "001a.14o");
        (void)g.OBS_R.anfuegen(hilfen::volle_beobachtung(name, 1));
        (void)g.R_Punkt.anfuegen(hilfen::voller_punkt(verkettet(i), i));
        (void)g.ROVER_Settings.anfuegen(hilfen::volle_einstellung(name, 20));
        ROVER_TOREL_Satz zeile;
        zeile.ROVER_Dateiname = name;
        zeile.Anzahl = 3;
        zeile.TOREL_Dateiname = {"0590001a.14o", "0591001a.14o", "0592001a.14o", ""};
        (void)g.ROVER_TOREL.anfuegen(zeile);
    }
}

}  // namespace jorv::messen
