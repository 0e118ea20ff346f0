// The project file: what was read and written is read again as the same records, and what reading skips stays.
#include <algorithm>
#include <array>

#include "Stand.h"
#include "plattform/text.h"
#include "projekt/projektdatei_lesen.h"
#include "projekt/projektdatei_schreiben.h"
#include "ziel.h"

using namespace jorv;

namespace {

constexpr std::string_view datei = "Z:\\p\\001.INI";

bool lesen(fuzz::Stand& stand, const Profil& profil)
{
    Verfahren_lesen(stand.g, datei, profil);
    return !ist_fehler(Dateidaten_lesen(stand.g, profil));
}

std::array<int, 13> anzahlen(const Global& g)
{
    return {g.OBS_R.anzahl(),           g.OBS_S.anzahl(),      g.OBS_V.anzahl(),       g.R_Punkt.anzahl(),
            g.S_Punkt.anzahl(),         g.V_Punkt.anzahl(),    g.ROVER_TOREL.anzahl(), g.ROVER_VIRT.anzahl(),
            g.ROVER_Settings.anzahl(),  g.BASISLINIE.anzahl(), g.GEO_Punkt.anzahl(),   g.RINEX_Dateien.anzahl(),
            g.Antennen_Dateien.anzahl()};
}

std::string geschrieben(const Global& g, Profil profil)
{
    Verfahren_eintragen(g, profil);
    return profil.text();
}

// A section that no reader knows comes back untouched.
constexpr std::string_view fremdes = "[Fremdes Programm]\r\n; Bemerkung\r\nWert = 7 \r\nohne Gleichheitszeichen\r\n";

}  // namespace

JORV_ZIEL(projekt)
{
    fuzz::Stand erster, zweiter;
    const Profil profil(verkettet(fremdes, bytes));
    if (!lesen(erster, profil)) return;
    const std::string text = geschrieben(erster.g, profil);
    fuzz::soll(text.starts_with(fremdes), "what reading skips stays");
    const Profil wieder{std::string(text)};
    fuzz::soll(lesen(zweiter, wieder), "what was written can be read");
    fuzz::soll(anzahlen(erster.g) == anzahlen(zweiter.g), "as many records");
    fuzz::soll(geschrieben(zweiter.g, wieder) == text, "written twice is equal");
}
