#include <optional>
#include <string>
#include <vector>

#include "konsole/Befehle.h"
#include "konsole/Lage.h"
#include "konsole/zeigen.h"
#include "modell/Gemeinsam.h"
#include "planung/einstellungen_alle.h"
#include "planung/einstellungen_rover.h"

namespace jorv {

namespace {

// One word of the command: "Elevation=10", "SV:G05=0".
struct Angabe {
    std::string_view wort;
    std::string_view schluessel;
    std::string satellit;  // Windows-1252, only for "SV:"
    std::string wert;
};

constexpr std::string_view satellit_anfang = "SV:";

std::optional<Angabe> angabe_lesen(std::string_view wort)
{
    const auto gleich = wort.find('=');
    if (gleich == std::string_view::npos) return std::nullopt;
    Angabe a{wort, wort.substr(0, gleich), "", std::string(wort.substr(gleich + 1))};
    if (a.wert.empty() || a.wert.find_first_not_of("0123456789") != std::string::npos) return std::nullopt;
    if (a.schluessel.starts_with(satellit_anfang)) {
        a.satellit = text_aus_utf8_mit_ersatz(a.schluessel.substr(satellit_anfang.size()));
        a.schluessel = satellit_anfang;
    }
    return a;
}

// What the words may name in one of the two forms.
struct Felder {
    Zahlenfeld &elevation, &firstminutes, &lastminutes;
    std::int32_t& frequenz;
    bool* einaus;  // nullptr: the form for all rovers has no switch
    Satellitenkaesten& satelliten;
};

Ausgang zahl_setzen(Lage& lage, Zahlenfeld& feld, const Angabe& a)
{
    feld.text_setzen(a.wert);
    return feld.pruefen(lage.schirm) ? Ausgang::gut : Ausgang::misslungen;
}

// True or false for the words of a box; nothing for any other.
std::optional<bool> haken(const Angabe& a)
{
    if (a.wert != "0" && a.wert != "1") return std::nullopt;
    return a.wert == "1";
}

Ausgang satellit_setzen(Lage& lage, Satellitenkaesten& kaesten, const Angabe& a)
{
    const auto an = haken(a);
    if (!an) return lage.falsch(verkettet(a.wort, ": ein Satellit ist mit 1 an, mit 0 aus."));
    for (auto& kasten : kaesten)
        if (kasten.aktiv && gleich_ohne_gross(kasten.Name, a.satellit)) {
            kasten.Haken = *an;
            return Ausgang::gut;
        }
    return lage.stop(verkettet("Den Satelliten ", a.satellit, " hat der ROVER nicht beobachtet!"));
}

Ausgang setzen(Lage& lage, const Felder& felder, const Angabe& a)
{
    if (a.schluessel == "Elevation") return zahl_setzen(lage, felder.elevation, a);
    if (a.schluessel == "DelFirstMinutes") return zahl_setzen(lage, felder.firstminutes, a);
    if (a.schluessel == "DelLastMinutes") return zahl_setzen(lage, felder.lastminutes, a);
    if (a.schluessel == satellit_anfang) return satellit_setzen(lage, felder.satelliten, a);
    if (a.schluessel == "Solution") {
        if (a.wert != "0" && a.wert != "1" && a.wert != "2")
            return lage.falsch(verkettet(a.wort, ": 0 ist iono.-frei L0, 1 ist L1, 2 ist automatisch."));
        felder.frequenz = a.wert[0] - '0';
        return Ausgang::gut;
    }
    if (a.schluessel == "Ein" && felder.einaus) {
        const auto an = haken(a);
        if (!an) return lage.falsch(verkettet(a.wort, ": ein ROVER ist mit 1 an, mit 0 aus."));
        *felder.einaus = *an;
        return Ausgang::gut;
    }
    return lage.falsch(verkettet("Die Einstellung ", a.schluessel, " gibt es hier nicht."));
}

Ausgang alle_setzen(Lage& lage, const Felder& felder, const std::vector<Angabe>& angaben)
{
    for (const auto& angabe : angaben)
        if (const Ausgang ausgang = setzen(lage, felder, angabe); ausgang != Ausgang::gut) return ausgang;
    return Ausgang::gut;
}

Ausgang eines(Lage& lage, int rover, const std::vector<Angabe>& angaben)
{
    auto e = einstellungen_oeffnen(lage.g, lage.g.OBS_R[rover].Dateiname);
    if (!e) return lage.rover_unbekannt(lage.wort(1));
    const Felder felder{e->elevation, e->firstminutes, e->lastminutes, e->frequenz, &e->einaus, e->satelliten};
    if (const Ausgang ausgang = alle_setzen(lage, felder, angaben); ausgang != Ausgang::gut) return ausgang;
    return ist_fehler(einstellungen_ok(lage.g, *e)) ? Ausgang::misslungen : Ausgang::gut;
}

Alleknopf knopf(const Angabe& a)
{
    if (a.schluessel == "Elevation") return Alleknopf::cmd_elevation;
    if (a.schluessel == "DelFirstMinutes") return Alleknopf::cmd_start;
    if (a.schluessel == "DelLastMinutes") return Alleknopf::cmd_ende;
    return a.schluessel == "Solution" ? Alleknopf::cmd_frequenz : Alleknopf::cmd_satellit;
}

// All words are checked before the first button is pressed, for each takes effect at once.
Ausgang alle(Lage& lage, const std::vector<Angabe>& angaben)
{
    EinstellungenAlle e;
    if (ist_fehler(einstellungen_alle_oeffnen(lage.g, "", e))) return Ausgang::misslungen;
    const Felder felder{e.elevation, e.firstminutes, e.lastminutes, e.frequenz, nullptr, e.satelliten};
    if (const Ausgang ausgang = alle_setzen(lage, felder, angaben); ausgang != Ausgang::gut) return ausgang;
    for (const auto& angabe : angaben)
        if (ist_fehler(einstellungen_alle_uebernehmen(lage.g, e, knopf(angabe)))) return Ausgang::misslungen;
    return Ausgang::gut;
}

Ausgang einstellen(Lage& lage)
{
    std::vector<Angabe> angaben;
    for (std::size_t i = 2; i < lage.aufruf.worte.size(); ++i) {
        auto angabe = angabe_lesen(lage.wort(i));
        if (!angabe) return lage.falsch(verkettet(lage.wort(i), " ist keine Einstellung SCHLUESSEL=ZAHL."));
        angaben.push_back(std::move(*angabe));
    }
    const bool fuer_alle = lage.wort(1) == "alle";
    const int rover = fuer_alle ? 0 : lage.rover_index(lage.wort(1));
    if (!fuer_alle && rover == 0) return lage.rover_unbekannt(lage.wort(1));
    if (!angaben.empty()) {
        const Ausgang ausgang = fuer_alle ? alle(lage, angaben) : eines(lage, rover, angaben);
        if (ausgang != Ausgang::gut) return ausgang;
        lage.geaendert = true;
    }
    lage.aus << (lage.aufruf.json ? einstellungen_json(lage.g, rover)
                                  : utf8_aus_1252(einstellungen_text(lage.g, rover)));
    return Ausgang::gut;
}

constexpr Befehl befehle[] = {
    {"einstellen",
     "NR ROVER|alle [SCHLUESSEL=WERT...]",
     "setzt Einstellungen eines ROVER oder aller zu berechnenden ROVER und zeigt sie\n"
     "Elevation=0..90 (alle: 0..60)       Elevationsmaske in Grad\n"
     "DelFirstMinutes=0..60               Minuten, die zu Beginn nicht benutzt werden\n"
     "DelLastMinutes=0..60 (alle: 0..90)  Minuten, die am Ende nicht benutzt werden\n"
     "Solution=0|1|2                      iono.-frei L0, L1, automatisch\n"
     "Ein=0|1                             nimmt an der nächsten Berechnung teil (nur für einen ROVER)\n"
     "SV:G05=0|1                          Satellit aus oder an; bei alle sind die nicht genannten an\n"
     "Ist eine Angabe falsch, so wird keine übernommen. Ohne Angaben wird nur gezeigt.",
     "jorv einstellen 1 5501167j.16o Elevation=10 SV:G05=0",
     2,
     beliebig_viele,
     {},
     Grundlage::verfahren,
     einstellen},
};

}  // namespace

std::span<const Befehl> befehle_einstellen()
{
    return befehle;
}

}  // namespace jorv
