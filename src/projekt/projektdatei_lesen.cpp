#include "projekt/projektdatei_lesen.h"

#include <algorithm>
#include <array>

#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/pfad.h"
#include "plattform/text.h"
#include "plattform/zahl.h"
#include "projekt/geo_lesen.h"
#include "projekt/reihe.h"
#include "projekt/titel.h"
#include "projekt/verfahrensliste.h"

namespace jorv {

namespace {

constexpr std::string_view obs_erste = "    ReDim OBS_S(1) oder ReDim OBS_R(1) oder ReDim OBS_V(1)";
constexpr std::string_view graphik_erste = "    ReDim S_Punkt(1) oder ReDim R_Punkt(1) oder ReDim V_Punkt(1)";

template <typename T>
struct Sektionsziel {
    Sektionsart art;
    Feld<T> Global::*feld;
};

constexpr std::array<Sektionsziel<OBS>, 3> obs_sektionen = {{
    {{"TOREL-OBS", true, false, 17, 18, "Dateidaten_OBS_lesen", obs_erste, "OBS_S"}, &Global::OBS_S},
    {{"ROVER-OBS", true, false, 17, 19, "Dateidaten_OBS_lesen", obs_erste, "OBS_R"}, &Global::OBS_R},
    {{"FREMD-VIRT-OBS", true, false, 17, 72, "Dateidaten_OBS_lesen", obs_erste, "OBS_V"}, &Global::OBS_V},
}};

constexpr std::array<Sektionsziel<Punkt>, 3> graphik_sektionen = {{
    {{"GRAPHIK-TOREL", true, false, 20, 21, "Dateidaten_GRAPHIK_lesen", graphik_erste, "S_Punkt"}, &Global::S_Punkt},
    {{"GRAPHIK-ROVER", true, false, 20, 22, "Dateidaten_GRAPHIK_lesen", graphik_erste, "R_Punkt", ""},
     &Global::R_Punkt},
    {{"GRAPHIK-FREMD-VIRT", true, false, 20, 73, "Dateidaten_GRAPHIK_lesen", graphik_erste, "V_Punkt", ""},
     &Global::V_Punkt},
}};

constexpr Sektionsart art_settings = {
    "ROVER-SETTINGS", false, true, 70, 24, "Dateidaten_ROVER_Settings_lesen", "    ReDim ROVER_Settings(1)",
    "ROVER_Settings"};
constexpr Sektionsart art_torel = {
    "ROVER-TOREL", false, false, 23, 24, "Dateidaten_ROVER_TOREL_lesen", "    ReDim ROVER_TOREL(1)", "ROVER_TOREL"};
constexpr Sektionsart art_virt = {
    "ROVER-VIRT", false, false, 77, 78, "Dateidaten_ROVER_VIRT_lesen", "    ReDim ROVER_VIRT(1)", "ROVER_VIRT"};
constexpr Sektionsart art_rinex = {
    "RINEX-DATEIEN", false, false, 32, 33, "Dateidaten_RINEX_lesen", "    ReDim RINEX_Dateien(0)", "RINEX_Dateien"};
constexpr Sektionsart art_antennen = {
    "ANTENNEN-DATEIEN", false, false, 35, 36, "Dateidaten_Antennen_lesen", "    ReDim Antennen_Dateien(0)",
    "Antennen_Dateien"};
constexpr Sektionsart art_basislinie = {
    "BASISLINIE", true, false, 45, 46, "Dateidaten_BASISLINIE_lesen", "    ReDim BASISLINIE(1)", "BASISLINIE"};

// The target of a section name; an unknown name is a fault of the program.
template <typename T, std::size_t N>
const Sektionsziel<T>& ziel(const std::array<Sektionsziel<T>, N>& ziele, std::string_view sektion)
{
    for (const auto& z : ziele)
        if (z.art.sektion == sektion) return z;
    return ziele.at(N);
}

// The six fields of an instant in a row.
struct Zeitworte {
    Feldwort jahr, monat, tag, stunde, minute, sekunde;
};
constexpr Zeitworte startworte = {"Startzeit-Jahr",   "Startzeit-Monat",  "Startzeit-Tag",
                                  "Startzeit-Stunde", "Startzeit-Minute", "Startzeit-Sekunde"};
constexpr Zeitworte endworte = {"Endzeit-Jahr",   "Endzeit-Monat",  "Endzeit-Tag",
                                "Endzeit-Stunde", "Endzeit-Minute", "Endzeit-Sekunde"};

void obs_zeile(Reihe& reihe, OBS& o, std::string_view)
{
    reihe.text(o.Dateiname, "Dateiname")
        .text(o.Punktkennzeichen, "Punktkennzeichen")
        .ganz(o.Tag, "Tag")
        .text(o.Antenne, "Antenne")
        .ganz(o.Startzeit_Jahr, startworte.jahr)
        .ganz(o.Startzeit_Monat, startworte.monat)
        .ganz(o.Startzeit_Tag, startworte.tag)
        .ganz(o.Startzeit_Stunde, startworte.stunde)
        .ganz(o.Startzeit_Minute, startworte.minute)
        .ganz(o.Startzeit_Sekunde, startworte.sekunde)
        .ganz(o.Endzeit_Jahr, endworte.jahr)
        .ganz(o.Endzeit_Monat, endworte.monat)
        .ganz(o.Endzeit_Tag, endworte.tag)
        .ganz(o.Endzeit_Stunde, endworte.stunde)
        .ganz(o.Endzeit_Minute, endworte.minute)
        .ganz(o.Endzeit_Sekunde, endworte.sekunde)
        .ganz(o.Startzeit_GPS_Sekunde, "Startzeit-GPS-Sekunde")
        .ganz(o.Endzeit_GPS_Sekunde, {"Endzeit-GPS-Sekunde", "Endzeit-GPSSekunde"});
}

void graphik_zeile(Reihe& reihe, Punkt& p, std::string_view)
{
    reihe.text(p.Punktkennzeichen, "Punktkennzeichen")
        .zahl(p.Rechtswert, "Rechtswert")
        .zahl(p.Hochwert, "Hochwert")
        .zahl(p.X, "X-Wert")
        .zahl(p.Y, "Y-Wert")
        .zahl(p.Z, "Z-Wert");
}

void settings_zeile(Reihe& reihe, ROVER_Settings_Satz& s, std::string_view)
{
    reihe.text(s.ROVER_Dateiname, "ROVER-Dateiname in [ROVER-SETTINGS]")
        .ganz(s.Ein_Ausschalterkennung, "Ein-/Ausschalterkennung in [ROVER-SETTINGS]")
        .ganz(s.AnzahlDelSatellite, "AnzahlDelSatellite in [ROVER-SETTINGS]");
    if (s.AnzahlDelSatellite < 0 || s.AnzahlDelSatellite > ROVER_Settings_Satz::max_satelliten)
        reihe.fehler("AnzahlDelSatellite in [ROVER-SETTINGS]");
    for (int i = 1; reihe.gut() && i <= s.AnzahlDelSatellite; ++i)
        reihe.text(s.DelSatelliteName[static_cast<std::size_t>(i)], "DelSatelliteName in [ROVER-SETTINGS]")
            .ganz(s.DelSatellite[static_cast<std::size_t>(i)], "DelSatellite in [ROVER-SETTINGS]");
    reihe.ganz(s.DelFirstMinutes, "DelFirstMinutes in [ROVER-SETTINGS]")
        .ganz(s.DelLastMinutes, "DelLastMinutes in [ROVER-SETTINGS]")
        .ganz(s.Elevation, "Elevation in [ROVER-SETTINGS]")
        .ganz(s.StartTime, "StartTime in [ROVER-SETTINGS]")
        .ganz(s.EpochRate, "EpochRate in [ROVER-SETTINGS]")
        .ganz(s.Solution, "Solution in [ROVER-SETTINGS]")
        .ganz(s.EndTime, "EndTime in [ROVER-SETTINGS]");
}

// A window limit passes through a number, so leading zeros go.
void fenster_wort(Reihe& reihe, std::string& ziel, Feldwort wort)
{
    double zeit = 0;
    if (reihe.zahl(zeit, wort).gut()) ziel = zahl_text(zeit);
}

void torel_zeile(Reihe& reihe, ROVER_TOREL_Satz& r, std::string_view)
{
    constexpr Feldwort name = "TOREL-Dateiname in [ROVER-TOREL]";
    std::uint8_t anzahl = 0;
    reihe.text(r.ROVER_Dateiname, "ROVER-Dateiname in [ROVER-TOREL]")
        .ganz(anzahl, "Anzahl TOREL-Dateiname in [ROVER-TOREL]");
    r.Anzahl = anzahl;
    if (static_cast<std::size_t>(anzahl) > r.TOREL_Dateiname.size()) reihe.fehler(name.konvertierung);
    for (int i = 0; reihe.gut() && i < r.Anzahl; ++i) reihe.text(r.TOREL_Dateiname[static_cast<std::size_t>(i)], name);
    reihe.ganz(r.Status, "Status in [ROVER-TOREL]").schalter(r.Schutz, "Schutz in [ROVER-TOREL]");
    fenster_wort(reihe, r.Zeitfenster_Startzeit, "Zeitfenster-Startzeit in [ROVER-TOREL]");
    fenster_wort(reihe, r.Zeitfenster_Endzeit, "Zeitfenster-Endzeit in [ROVER-TOREL]");
    reihe.ganz(r.Grund, "Grund in [ROVER-TOREL]");
}

void wert_uebernehmen(std::string& ziel, std::string_view wert)
{
    if (!wert.empty()) ziel = wert;
}

void fenster_lesen(Global& g, const Profil& profil)
{
    struct Wert {
        std::string_view schluessel;
        double* ziel;
    };
    const std::array<Wert, 5> werte = {
        {{"Y-min", &g.Y_min}, {"Y-max", &g.Y_max}, {"X-min", &g.X_min}, {"X-max", &g.X_max}, {"Faktor", &g.Faktor}}};
    g.Grafik_Fenster_gelesen = false;
    const auto gelesen = [&](const Wert& wert) {
        const auto zahl = zahl_streng(profil.wert("GRAFIK-FENSTER", wert.schluessel));
        return zahl ? reihenzahl(*zahl) : std::nullopt;
    };
    if (!std::all_of(werte.begin(), werte.end(), gelesen)) return;
    for (const auto& wert : werte) *wert.ziel = *gelesen(wert);
    g.Grafik_Fenster_gelesen = g.Y_max > g.Y_min && g.X_max > g.X_min && g.Faktor > 0;
}

}  // namespace

namespace {

// Name, number and mode stand in the file since its creation. Where somebody lost them, the file's own name and the
// project list know them.
struct Kopf {
    std::string nummer, name, modus;
};

Kopf kopf_lesen(const Global& g, std::string_view projektdatei, const Profil& profil)
{
    Kopf kopf;
    kopf.nummer = ohne_ende(pfad_name(projektdatei), std::string_view(".INI").size());
    wert_uebernehmen(kopf.nummer, profil.wert("VERFAHREN", "Nummer"));
    kopf.name = Name_zu_Nummer(g, kopf.nummer);
    wert_uebernehmen(kopf.name, profil.wert("VERFAHREN", "Name"));
    if (const int i = Index_zu_Name(g, kopf.name); i != 0) kopf.modus = g.Verfahren[i].Modus;
    wert_uebernehmen(kopf.modus, profil.wert("VERFAHREN", "Modus"));
    return kopf;
}

}  // namespace

Fehler Projektdatei_laden(Global& g, std::string_view projektdatei, Profil& profil)
{
    std::error_code fehler;
    if (g.dateien.vorhanden(projektdatei)) {
        profil = Profil::aus_datei(g.dateien, projektdatei, fehler);
        if (!fehler && !kopf_lesen(g, projektdatei, profil).name.empty()) return Fehler::keiner;
    }
    stop_melden(g, verkettet("In der Verfahrensdatei: \n", projektdatei, "\n\nkonnt nicht fehlerfrei gelesen werden!"));
    return Fehler::gesetzt;
}

void Verfahren_lesen(Global& g, std::string_view projektdatei, const Profil& profil)
{
    Kopf kopf = kopf_lesen(g, projektdatei, profil);
    g.Verfahrensdatei = projektdatei;
    g.Verfahrensname = std::move(kopf.name);
    g.Verfahrensnummer = std::move(kopf.nummer);
    g.Verfahrensmodus = std::move(kopf.modus);
    g.Versionsnummer = profil.wert("VERFAHREN", "Versionsnummer");
    g.Versionsdatum = profil.wert("VERFAHREN", "Versionsdatum");
    g.Arbeitsverzeichnis = pfad_ordner(projektdatei);
    wert_uebernehmen(g.Arbeitsverzeichnis, profil.wert("GRUNDEINSTELLUNGEN", "Arbeits-Verzeichnis"));
    fenster_lesen(g, profil);
    for (std::size_t i = 1; i < g.KNOTEN.size(); ++i)
        wert_uebernehmen(g.KNOTEN[i], profil.wert("KNOTEN", verkettet(i)));
    g.oberflaeche->titel_setzen(Titel(g));
    Liste_aufnehmen(g);
}

Fehler Verfahren_lesen(Global& g, std::string_view projektdatei)
{
    const std::string datei(projektdatei);  // may be a text that the header replaces
    Profil profil;
    if (ist_fehler(Projektdatei_laden(g, datei, profil))) return Fehler::gesetzt;
    Verfahren_lesen(g, datei, profil);
    return Fehler::keiner;
}

Fehler Dateidaten_OBS_lesen(Global& g, const Profil& profil, std::string_view sektion)
{
    const auto& z = ziel(obs_sektionen, sektion);
    return sektion_lesen(g, profil, z.art, g.*z.feld, obs_zeile);
}

Fehler Dateidaten_GRAPHIK_lesen(Global& g, const Profil& profil, std::string_view sektion)
{
    const auto& z = ziel(graphik_sektionen, sektion);
    return sektion_lesen(g, profil, z.art, g.*z.feld, graphik_zeile);
}

Fehler Dateidaten_ROVER_Settings_lesen(Global& g, const Profil& profil)
{
    // The message of a failed growth has always named the assignment rows.
    return sektion_lesen(g, profil, art_settings, g.ROVER_Settings, settings_zeile,
                         [&](int) { wachstum_melden(g, art_torel, g.ROVER_TOREL.anzahl()); });
}

Fehler Dateidaten_ROVER_TOREL_lesen(Global& g, const Profil& profil)
{
    wert_uebernehmen(g.Zeitfenster_1h, profil.wert("GRUNDEINSTELLUNGEN", "Zeitfenster 1h"));
    wert_uebernehmen(g.Auswertemodus, profil.wert("GRUNDEINSTELLUNGEN", "Auswertemodus"));
    return sektion_lesen(g, profil, art_torel, g.ROVER_TOREL, torel_zeile);
}

Fehler Dateidaten_ROVER_VIRT_lesen(Global& g, const Profil& profil)
{
    return sektion_lesen(g, profil, art_virt, g.ROVER_VIRT, [](Reihe& reihe, ROVER_VIRT_Satz& v, std::string_view) {
        reihe.text(v.ROVER_Dateiname, "ROVER-Dateiname in [ROVER-VIRT]")
            .text(v.VIRT_Dateiname, "VIRT-Dateiname in [ROVER-VIRT]")
            .ganz(v.VIRT_Index, "VIRT-Index in [ROVER-VIRT]")
            .zahl(v.Strecke, "Strecke in [ROVER-VIRT]");
    });
}

Fehler Dateidaten_RINEX_lesen(Global& g, const Profil& profil)
{
    return sektion_lesen(g, profil, art_rinex, g.RINEX_Dateien, [](Reihe& reihe, std::string& name, std::string_view) {
        reihe.text(name, "RINEX-Dateiname in [RINEX-DATEIEN]");
    });
}

Fehler Dateidaten_Antennen_lesen(Global& g, const Profil& profil)
{
    return sektion_lesen(g, profil, art_antennen, g.Antennen_Dateien,
                         [](Reihe& reihe, std::string& name, std::string_view) {
                             reihe.text(name, "Antennen-Dateiname in [ANTENNEN-DATEIEN]");
                         });
}

Fehler Dateidaten_BASISLINIE_lesen(Global& g, const Profil& profil)
{
    return sektion_lesen(g, profil, art_basislinie, g.BASISLINIE,
                         [](Reihe& reihe, BASISLINIE_Satz& b, std::string_view) {
                             reihe.text(b.PKK_von, "Basislinien-PKK(von)")
                                 .text(b.PKK_nach, "Basislinien-PKK(nach)")
                                 .text(b.Datei_von, "Dateiname der RINEX-Datei(von)")
                                 .text(b.Datei_nach, "Dateiname der RINEX-Datei(nach)");
                         });
}

Fehler Dateidaten_lesen(Global& g, const Profil& profil)
{
    if (ist_fehler(geo_lesen(g, profil))) return Fehler::gesetzt;
    for (const std::string_view sektion : {"TOREL-OBS", "ROVER-OBS", "FREMD-VIRT-OBS"})
        if (ist_fehler(Dateidaten_OBS_lesen(g, profil, sektion))) return Fehler::gesetzt;
    if (ist_fehler(Dateidaten_ROVER_Settings_lesen(g, profil))) return Fehler::gesetzt;
    for (const std::string_view sektion : {"GRAPHIK-TOREL", "GRAPHIK-ROVER", "GRAPHIK-FREMD-VIRT"})
        if (ist_fehler(Dateidaten_GRAPHIK_lesen(g, profil, sektion))) return Fehler::gesetzt;
    for (const auto leser : {Dateidaten_ROVER_TOREL_lesen, Dateidaten_ROVER_VIRT_lesen, Dateidaten_RINEX_lesen,
                             Dateidaten_Antennen_lesen, Dateidaten_BASISLINIE_lesen})
        if (ist_fehler(leser(g, profil))) return Fehler::gesetzt;
    return Fehler::keiner;
}

}  // namespace jorv
