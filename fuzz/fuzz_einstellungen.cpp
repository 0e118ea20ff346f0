// The settings file.
#include "Stand.h"
#include "app/einstellungen.h"
#include "plattform/text.h"
#include "ziel.h"

using namespace jorv;

namespace {

constexpr std::string_view fremdes = "[Fremdes Programm]\r\n; Bemerkung\r\nWert = 7 \r\n";

std::string geschrieben(const Global& g, Profil profil)
{
    Einstellungen_eintragen(g, profil);
    return profil.text();
}

}  // namespace

JORV_ZIEL(einstellungen)
{
    fuzz::Stand erster, zweiter;
    const Profil profil(verkettet(fremdes, bytes));
    if (ist_fehler(Einstellungen_lesen(erster.g, profil))) return;
    const std::string text = geschrieben(erster.g, profil);
    fuzz::soll(text.starts_with(fremdes), "what reading skips stays");
    const Profil wieder{std::string(text)};
    fuzz::soll(!ist_fehler(Einstellungen_lesen(zweiter.g, wieder)), "what was written can be read");
    fuzz::soll(erster.g.Verfahren.anzahl() == zweiter.g.Verfahren.anzahl(), "as many projects");
    fuzz::soll(erster.g.KOR_ANTENNEN.anzahl() == zweiter.g.KOR_ANTENNEN.anzahl(), "as many ranges");
    fuzz::soll(erster.g.Anzahl_Liste == zweiter.g.Anzahl_Liste, "as many recent projects");
    fuzz::soll(geschrieben(zweiter.g, wieder) == text, "written twice is equal");
}
