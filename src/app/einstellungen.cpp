#include "app/einstellungen.h"

#include <array>
#include <string>

#include "modell/Meldungen.h"
#include "plattform/profil.h"
#include "plattform/sperre.h"
#include "plattform/text.h"
#include "plattform/wort.h"
#include "plattform/zahl.h"
#include "projekt/verfahrensliste.h"

namespace jorv {

namespace {

constexpr std::string_view grundeinstellungen = "GRUNDEINSTELLUNGEN";

// A key and the text setting that it stands for.
struct Textschluessel {
    std::string_view schluessel;
    std::string Global::*feld;
};
struct Zahlschluessel {
    std::string_view schluessel;
    std::int32_t Global::*feld;
};

// Section START in the order of reading and writing: two texts around the window's geometry.
constexpr std::array<Textschluessel, 1> start_vorn = {{{"Bestaetigung", &Global::Bestaetigung}}};
constexpr std::array<Zahlschluessel, 4> start_fenster = {{{"Form_top", &Global::Form_top},
                                                          {"Form_left", &Global::Form_left},
                                                          {"Form_height", &Global::Form_height},
                                                          {"Form_width", &Global::Form_width}}};
constexpr std::array<Textschluessel, 7> start_hinten = {{{"Form_zustand", &Global::Form_zustand},
                                                         {"Editor", &Global::Editor},
                                                         {"Hinweis", &Global::Hinweis},
                                                         {"Hinweis1", &Global::Hinweis1},
                                                         {"Grenzen", &Global::Grenzen},
                                                         {"ErstStart", &Global::ErstStart},
                                                         {"PKZ", &Global::PKZ}}};
// How the window is divided: of this program's own, in a section of its own.
constexpr std::array<Textschluessel, 2> fenster = {
    {{"Baumbreite", &Global::Fenster_Baumbreite}, {"Werkzeugleiste", &Global::Fenster_Werkzeugleiste}}};
// Only the user or an installer changes these: read, never written.
constexpr std::array<Textschluessel, 5> nur_gelesen = {{{"UTM-Zone", &Global::UTM_Zone},
                                                        {"MARKER-Info", &Global::MARKER_Info},
                                                        {"Land", &Global::Land},
                                                        {"Typkalibrierung", &Global::Typkalibrierung},
                                                        {"Gesamtbatch", &Global::Gesamtbatch}}};

struct Listenschluessel {
    std::string_view sektion;
    std::array<std::string, 8> Global::*feld;
};
constexpr std::array<Listenschluessel, 3> listen = {
    {{"VERFAHREN", &Global::Liste_Name}, {"PFADE", &Global::Liste_Pfad}, {"MODUS", &Global::Liste_Modus}}};

void uebernehmen(std::string& feld, std::string_view wert)
{
    if (!wert.empty()) feld = wert;
}

template <typename Tabelle>
void texte_lesen(Global& g, const Profil& profil, std::string_view sektion, const Tabelle& tabelle)
{
    for (const auto& eintrag : tabelle) uebernehmen(g.*eintrag.feld, profil.wert(sektion, eintrag.schluessel));
}

Fehler Dateidaten_KOR_ANTENNEN_lesen(Global& g, std::string_view wert)
{
    if (wert.empty()) wert = "0000-3999";
    g.KOR_ANTENNEN.leeren();
    Wortfolge worte(wert);
    for (Wort wort = worte.naechstes(); wort.status == Wortstatus::gefunden; wort = worte.naechstes()) {
        const auto strich = wort.text.find('-');
        const auto von = wort.text.substr(0, strich);
        const auto bis = strich == std::string_view::npos ? von : wort.text.substr(strich + 1);
        if (!g.KOR_ANTENNEN.anfuegen({std::string(von), std::string(bis)})) {
            stop_melden(g, dimensionierung_meldung(
                               47, "Dateidaten_KOR_ANTENNEN_lesen",
                               verkettet("    ReDim Preserve KOR_ANTENNEN(", g.KOR_ANTENNEN.anzahl() + 1, ")")));
            return Fehler::gesetzt;
        }
    }
    return Fehler::keiner;
}

void Tem_Stationen_lesen(Global& g, std::string_view wert)
{
    if (wert.empty()) return;
    g.Tem_Stationen = {};
    Wortfolge worte(wert);
    for (auto& station : g.Tem_Stationen) station = worte.naechstes().text;
}

void Liste_lesen(Global& g, const Profil& profil)
{
    g.Anzahl_Liste = 0;
    for (const auto& liste : listen) {
        auto& feld = g.*liste.feld;
        feld = {};
        for (int n = 1; n <= 8; ++n) {
            const auto wert = profil.wert(liste.sektion, verkettet(n));
            if (wert.empty()) break;
            feld[static_cast<std::size_t>(n - 1)] = wert;
            if (liste.sektion == "VERFAHREN") ++g.Anzahl_Liste;
        }
    }
}

Fehler nicht_geschrieben(Global& g)
{
    stop_melden(g, datei_meldung("In die Einstellungsdatei: ", g.Einstellungsdatei,
                                 "konnt nicht fehlerfrei geschrieben werden!"));
    return Fehler::gesetzt;
}

}  // namespace

Fehler ini_lesen_START(Global& g)
{
    std::error_code fehler;
    const Profil profil = Profil::aus_datei(g.dateien, g.Einstellungsdatei, fehler);
    if (fehler) {
        stop_melden(g, datei_meldung("Die Einstellungsdatei:", g.Einstellungsdatei, "konnte nicht gelesen werden!"));
        return Fehler::gesetzt;
    }
    return Einstellungen_lesen(g, profil);
}

Fehler Einstellungen_lesen(Global& g, const Profil& profil)
{
    texte_lesen(g, profil, "START", start_vorn);
    for (const auto& eintrag : start_fenster)
        if (const auto zahl = ganz_streng(profil.wert("START", eintrag.schluessel))) g.*eintrag.feld = *zahl;
    texte_lesen(g, profil, "START", start_hinten);
    texte_lesen(g, profil, "FENSTER", fenster);
    uebernehmen(g.Datei_Verzeichnis, profil.wert(grundeinstellungen, "Datei-Verzeichnis"));
    uebernehmen(g.EXE_Verzeichnis, profil.wert(grundeinstellungen, "EXE-Verzeichnis"));
    const auto bereiche = profil.wert(grundeinstellungen, "Nummernbereich KOR-Antennen");
    if (ist_fehler(Dateidaten_KOR_ANTENNEN_lesen(g, bereiche))) return Fehler::gesetzt;
    Tem_Stationen_lesen(g, profil.wert(grundeinstellungen, "Tem-Stationen"));
    texte_lesen(g, profil, grundeinstellungen, nur_gelesen);
    Liste_lesen(g, profil);
    AlleVerfahernLaden(g, profil);
    return Fehler::keiner;
}

void Einstellungen_eintragen(const Global& g, Profil& profil)
{
    for (const auto& eintrag : start_vorn) profil.setzen("START", eintrag.schluessel, g.*eintrag.feld);
    for (const auto& eintrag : start_fenster) profil.setzen("START", eintrag.schluessel, verkettet(g.*eintrag.feld));
    for (const auto& eintrag : start_hinten) profil.setzen("START", eintrag.schluessel, g.*eintrag.feld);
    profil.setzen(grundeinstellungen, "Datei-Verzeichnis", g.Datei_Verzeichnis);
    for (const auto& liste : listen)
        for (int n = 1; n <= 8; ++n)
            profil.setzen(liste.sektion, verkettet(n), (g.*liste.feld)[static_cast<std::size_t>(n - 1)]);
    for (const auto& eintrag : fenster) profil.setzen("FENSTER", eintrag.schluessel, g.*eintrag.feld);
    Verfahrensliste_eintragen(g, profil);
}

Fehler ini_schreiben_START(Global& g)
{
    const Sperre sperre(g.dateien, g.Einstellungsdatei, 5000);
    std::error_code fehler;
    Profil profil = Profil::aus_datei(g.dateien, g.Einstellungsdatei, fehler);
    if (fehler || sperre.besetzt()) return nicht_geschrieben(g);
    Einstellungen_eintragen(g, profil);
    return profil.schreiben(g.dateien, g.Einstellungsdatei) ? nicht_geschrieben(g) : Fehler::keiner;
}

int ini_mischen(Global& g, std::string_view quelle, std::string_view ziel, bool quelle_loeschen,
                bool vorhandene_behalten)
{
    enum Schritt { gut = 0, oeffnen = 1, schliessen = 2, loeschen = 3, lesen = 4, ohne_schluessel = 5, schreiben = 6 };
    const auto melden = [&](std::string_view kopf, std::string_view ende, Schritt schritt) {
        stop_melden(g, datei_meldung(kopf, quelle, ende));
        return static_cast<int>(schritt);
    };
    if (!g.dateien.vorhanden(quelle)) return gut;
    const Gelesen gelesen = g.dateien.lesen_stufenweise(quelle);
    if (gelesen.stufe == Dateistufe::oeffnen)
        return melden("Die angegebene Quelldatei:", u8"konnte nicht geöffnet werden!"_w, oeffnen);
    if (gelesen.stufe == Dateistufe::lesen)
        return melden("In der angegebenen Quelldatei:", "konnte nicht gelesen werden!", lesen);

    std::error_code fehler;
    Profil profil = Profil::aus_datei(g.dateien, ziel, fehler);
    std::string sektion;
    bool geaendert = false;
    Zeilenleser zeilen(gelesen.text);
    while (const auto zeile = zeilen.naechste()) {
        const auto knapp = trimmen(*zeile);
        if (knapp.empty() || knapp.starts_with(';')) continue;
        if (zeile->starts_with('[')) {
            sektion = mitte(*zeile, 2, knapp.size() < 2 ? 0 : knapp.size() - 2);
            continue;
        }
        const auto gleich = zeile->find('=');
        const auto schluessel = trimmen(zeile->substr(0, gleich));
        if (gleich == std::string_view::npos || schluessel.empty()) {
            stop_melden(g, verkettet(u8"Ein Schlüsselname in der Zeile:"_w, "\n", *zeile, "\naus der Quelldatei:\n",
                                     quelle, "\nkonnte nicht gelesen werden!"));
            return ohne_schluessel;
        }
        if (vorhandene_behalten && !profil.wert(sektion, schluessel).empty()) continue;
        profil.setzen(sektion, schluessel, zeile->substr(gleich + 1));
        geaendert = true;
    }
    if (fehler || (geaendert && profil.schreiben(g.dateien, ziel))) {
        (void)nicht_geschrieben(g);
        return schreiben;
    }
    if (gelesen.stufe == Dateistufe::schliessen)
        return melden("Die angegebene Quelldatei:", "konnte nicht geschlossen werden!", schliessen);
    if (quelle_loeschen && g.dateien.loeschen(quelle))
        return melden("Die angegebene Quelldatei:", u8"konnte nicht gelöscht werden!"_w, loeschen);
    return gut;
}

}  // namespace jorv
