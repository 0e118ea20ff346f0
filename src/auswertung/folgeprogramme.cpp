#include "auswertung/folgeprogramme.h"

#include <array>
#include <span>
#include <string>
#include <utility>

#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "modell/Version.h"
#include "plattform/fensterstart.h"
#include "plattform/pfad.h"
#include "plattform/profil.h"
#include "plattform/text.h"
#include "projekt/verfahrensliste.h"

namespace jorv {

namespace {

constexpr std::string_view eingabe = "Die RuNA-Eingabedatei:";

struct Aufgabenzeile {
    std::string_view sektion, schluessel, wert;
    bool immer;  // else only where the key is empty
};

// {V} folder of the project, {N} its number, {NAME} its name, {E} the editor, {VERSION} as in the batches.
constexpr std::string_view titel_mittelung =
    "Verfahren -->{NAME}<--({N})  MITTELUNG (Jorv, Version {VERSION} vom {DATUM})";
constexpr std::string_view titel_graphik = "Verfahren -->{NAME}<--({N})  GRAPHIK (Jorv, Version {VERSION} vom {DATUM})";
constexpr std::string_view verfahren_1 = "RUNA-VERFAHREN NR 1";

constexpr std::array<Aufgabenzeile, 11> aufgabe_mittelung = {
    {{"RUNA", "Icon", "{V}\\Jorv.ICO", true},
     {"RUNA", "Titel", titel_mittelung, true},
     {"RUNA-START", "Editor", "{E}", false},
     {"RUNA-GRUNDEINSTELLUNGEN", "Dateiverzeichnis", "{V}", false},
     {verfahren_1, u8"Identität"_w, "{NAME}", false},
     {verfahren_1, "Koordinatendatei", "{V}\\{N}.UTM", true},
     {verfahren_1, "Protokolldatei", "{V}\\{N}.MIT", false},
     {verfahren_1, "HOLBEK-Datei", "{V}\\HB{N}.DAT", false},
     {verfahren_1, u8"Fortführungsdatei"_w, "{V}\\{N}.PIFF", false},
     {verfahren_1, "PELIDE-Datei", "{V}\\AU{N}.DAT", false},
     {verfahren_1, "TIRSO-Datei", "{V}\\{N}.TIR", false}}};

constexpr std::array<Aufgabenzeile, 3> aufgabe_graphik = {{{"HOLBEK", "Icon", "{V}\\Jorv.ICO", true},
                                                           {"HOLBEK", "Titel", titel_graphik, true},
                                                           {"HOLBEK", "Graphikdatei", "{V}\\HB{N}.DAT", true}}};

std::string eingesetzt(const Global& g, std::string_view vorlage)
{
    // The name last: it may hold anything.
    const std::pair<std::string_view, std::string_view> namen[] = {
        {"{V}", g.Arbeitsverzeichnis}, {"{N}", g.Verfahrensnummer}, {"{VERSION}", programm_version},
        {"{DATUM}", programm_datum},   {"{E}", g.Editor},           {"{NAME}", g.Verfahrensname}};
    std::string text(vorlage);
    for (const auto& [name, wert] : namen) text = ersetzt(text, name, wert);
    return text;
}

void aufgabe_eintragen(const Global& g, Profil& profil, std::span<const Aufgabenzeile> aufgabe)
{
    for (const auto& z : aufgabe)
        if (z.immer || profil.wert(z.sektion, z.schluessel).empty())
            profil.setzen(z.sektion, z.schluessel, eingesetzt(g, z.wert));
}

Fehler starten(Global& g, std::string_view name, std::string_view argument, std::string_view ordner)
{
    const std::string programm = pfad_verbinden(g.EXE_Verzeichnis, verkettet(name, ".EXE"));
    const std::error_code fehler =
        g.oberflaeche->im_fenster_starten(programm_start(g.dateien, programm, argument, ordner));
    if (!fehler) return Fehler::keiner;
    stop_melden(g, verkettet("FEHLER !!!\n", startfehler_text(fehler), " beim Start von ", name));
    return Fehler::gesetzt;
}

// The lines of one result file; a file that can't be read gives none.
std::string ergebnis_lesen(Global& g, std::string_view rover)
{
    const std::string datei = im_Verfahren(g, verkettet("jorv_out\\dat_rov\\", rover, ".UTM"));
    if (!g.dateien.vorhanden(datei)) {
        stop_melden(g, datei_meldung(u8"Eine Ergebnisdatei für die ROVER-Datei:"_w, rover, "existiert noch nicht!"));
        return {};
    }
    const Gelesen gelesen = g.dateien.lesen_stufenweise(datei);
    if (gelesen.stufe == Dateistufe::oeffnen)
        stop_melden(g, datei_meldung("Die Ergebnisdatei:", datei, u8"konnte nicht geöffnet werden!"_w));
    else if (gelesen.stufe == Dateistufe::schliessen)
        stop_melden(g, datei_meldung("Die Ergebnisdatei::", datei, "konnte nicht richtig geschlossen werden!"));
    else if (!gelesen.gut())
        stop_melden(g, datei_meldung("Die Ergebnisdatei:", datei, "konnte nicht richtig gelesen werden!"));
    std::string zeilen;
    const bool ganz = gelesen.gut() || gelesen.stufe == Dateistufe::schliessen;
    Zeilenleser leser(ganz ? std::string_view(gelesen.text) : std::string_view{});
    while (const auto zeile = leser.naechste()) zeilen += verkettet(*zeile, "\r\n");
    return zeilen;
}

Fehler ergebnisse_sammeln(Global& g, const std::string& ziel)
{
    const Hauptknoten* knoten = ist_B(g) ? nullptr : g.baum.finden("E_Datei");
    if (!knoten || knoten->Kinder.empty()) {
        if (!ist_B(g)) stop_melden(g, "Es sind keine Ergebnis-Dateien im aktuellen Verfahren vorhanden!");
        return Fehler::keiner;
    }
    std::string text;
    for (const auto& rover : knoten->Kinder) text += ergebnis_lesen(g, rover.Text);
    if (text.empty()) return Fehler::gesetzt;  // each file has been told
    switch (g.dateien.schreiben_stufenweise(ziel, text)) {
        case Dateistufe::gut:
            return Fehler::keiner;
        case Dateistufe::oeffnen:
            stop_melden(g, datei_meldung(eingabe, ziel, "konnte nicht angelegt werden!"));
            break;
        case Dateistufe::schliessen:
            stop_melden(g, datei_meldung("Die RuNA-Eingabedatei::", ziel, "konnte nicht richtig geschlossen werden!"));
            break;
        default:
            stop_melden(g,
                        datei_meldung("In die RuNA-Eingabedatei::", ziel, "konnte nicht richtig geschrieben werden!"));
    }
    return Fehler::gesetzt;
}

Fehler aufgabe_schreiben(Global& g, const std::string& datei)
{
    std::error_code fehler;
    Profil profil = Profil::aus_datei(g.dateien, datei, fehler);
    if (!fehler) {
        aufgabe_eintragen(g, profil, aufgabe_mittelung);
        fehler = profil.schreiben(g.dateien, datei);
    }
    if (!fehler) return Fehler::keiner;
    stop_melden(g, datei_meldung("In die Aufrufdatei:", datei, "konnte nicht richtig geschrieben werden!"));
    return Fehler::gesetzt;
}

}  // namespace

Fehler m_wasoft_runa(Global& g)
{
    const std::string koordinaten = Verfahrens_Datei(g, ".UTM"), aufruf = Verfahrens_Datei(g, ".INI");
    if (const Fehler fehler = ergebnisse_sammeln(g, koordinaten); ist_fehler(fehler)) return fehler;
    if (!g.dateien.vorhanden(koordinaten)) {
        stop_melden(g, u8"Eine Koordinatendatei für das RUNA existiert noch nicht!"_w);
        return Fehler::gesetzt;
    }
    if (const Fehler fehler = aufgabe_schreiben(g, aufruf); ist_fehler(fehler)) return fehler;
    const Fehler fehler = starten(g, "RUNA", aufruf, g.Arbeitsverzeichnis);
    Datum_setzen(g);
    return fehler;
}

Fehler m_wasoft_holbek(Global& g)
{
    if (!g.dateien.vorhanden(im_Verfahren(g, verkettet("HB", g.Verfahrensnummer, ".DAT")))) {
        stop_melden(g, u8"Eine Zeichendatei für HOLBEK existiert noch nicht!"_w);
        return Fehler::gesetzt;
    }
    {
        Einstellungen_gesperrt einstellungen(g);
        aufgabe_eintragen(g, einstellungen.profil(), aufgabe_graphik);
        if (const Fehler fehler = einstellungen.schreiben(); ist_fehler(fehler)) return fehler;
    }
    return starten(g, "HOLBEK", pfad_name(g.Einstellungsdatei), pfad_ordner(g.Einstellungsdatei));
}

}  // namespace jorv
