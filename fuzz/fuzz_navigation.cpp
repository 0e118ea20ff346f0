// The suite's reader of navigation files: joined and written they are read again as the same sets.
#include <cmath>

#include "Stand.h"
#include "suite/rinex_navigation.h"
#include "ziel.h"

using namespace jorv;
using namespace jorv::suite;

JORV_ZIEL(navigation)
{
    Navigation alles;
    const int gelesen = navigation_lesen(bytes, alles);
    fuzz::soll(alles.saetze.size() == alles.datei.zeilen.size(), "lines for each set");
    if (gelesen < 0) return;
    fuzz::soll(alles.saetze.size() <= static_cast<std::size_t>(gelesen), "not more sets than were read");
    for (const auto& satz : alles.saetze) {
        const auto lage = satellitenlage(satz, verschoben(satz.toe, 900));
        fuzz::soll(std::isfinite(satz.af0 + satz.m0 + satz.e + satz.wurzel_a), "finite elements");
        (void)lage;
    }
    const std::size_t anzahl = alles.saetze.size();
    fuzz::soll(navigation_lesen(bytes, alles) >= gelesen && alles.saetze.size() == anzahl,
               "reading twice adds nothing");
    Navigation wieder;
    const std::string text = navigation_text(alles);
    fuzz::soll(navigation_lesen(text, wieder) == static_cast<int>(anzahl), "written sets are read again");
    fuzz::soll(navigation_text(wieder) == text, "written twice is equal");
    Navigation teil;
    (void)navigation_lesen(fuzz::vordere_zeilen(bytes), teil);
    fuzz::soll(teil.saetze.size() <= anzahl, "a shorter file gives no more");
}
