#include <array>
#include <nlohmann/json.hpp>

#include "auswertung/basis_esa.h"
#include "auswertung/basis_i95.h"
#include "auswertung/basis_lovena.h"
#include "auswertung/export.h"
#include "auswertung/folgeprogramme.h"
#include "konsole/Befehle.h"
#include "konsole/Lage.h"
#include "konsole/batchdateien.h"
#include "modell/Meldungen.h"
#include "plattform/wort.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

Ausgang als_ausgang(Fehler fehler)
{
    return ist_fehler(fehler) ? Ausgang::misslungen : Ausgang::gut;
}

Ausgang esa(Lage& lage)
{
    if (!ist_B(lage.g)) return lage.nicht_in_diesem_modus();
    return als_ausgang(m_basis_esa(lage.g));
}

Ausgang rv(Lage& lage)
{
    if (!ist_B(lage.g)) return lage.nicht_in_diesem_modus();
    return als_ausgang(m_basis_lovena(lage.g));
}

// The hours that the suite's program leaves beside the model.
std::string stundenindex(const Global& g)
{
    return im_Verfahren(g, "model.i95");
}

// Day, hour, index, epochs, satellites and bar of each line behind the head.
std::string stunden_json(std::string_view text)
{
    auto stunden = nlohmann::ordered_json::array();
    Zeilenleser leser(text);
    while (const auto zeile = leser.naechste()) {
        const auto wort = [&](int nummer) { return std::string(wort_finden(*zeile, nummer).text); };
        if (zeile->empty() || zeile->front() < '0' || zeile->front() > '9') continue;
        stunden.push_back({{"Tag", wort(1)},
                           {"Stunde", wort(2)},
                           {"I95", zahl_lesen(wort(3))},
                           {"Epochen", zahl_lesen(wort(4))},
                           {"Satelliten", zahl_lesen(wort(5))}});
    }
    return nlohmann::ordered_json{{"Stunden", stunden}}.dump(2) + "\n";
}

Ausgang i95_bild(Lage& lage)
{
    lage.schirm.fenster_abwarten();
    const auto stunden = lage.g.dateien.lesen(stundenindex(lage.g));
    if (!stunden)
        return lage.stop(
            verkettet(u8"Der Index der Ionosphäre wurde nicht berechnet (siehe "_w, lage.g.Verfahrensnummer, ".LIS)!"));
    lage.aus << (lage.aufruf.json ? stunden_json(*stunden) : utf8_aus_1252(ersetzt(*stunden, "\r\n", "\n")));
    return Ausgang::gut;
}

Ausgang i95(Lage& lage)
{
    if (!ist_B(lage.g)) return lage.nicht_in_diesem_modus();
    // Never the hours of an earlier run.
    if (const auto alt = stundenindex(lage.g); lage.g.dateien.vorhanden(alt) && lage.g.dateien.loeschen(alt))
        return lage.stop(datei_meldung("Die Datei:", alt, u8"konnte nicht gelöscht werden!"_w));
    if (ist_fehler(m_basis_i95(lage.g))) return Ausgang::misslungen;
    if (lage.aufruf.option.contains("--bild")) return i95_bild(lage);
    dateien_nennen(lage);
    return Ausgang::gut;
}

Ausgang mitteln(Lage& lage)
{
    if (ist_B(lage.g)) return lage.nicht_in_diesem_modus();
    return als_ausgang(m_wasoft_runa(lage.g));
}

Ausgang zeichnen(Lage& lage)
{
    return als_ausgang(m_wasoft_holbek(lage.g));
}

Ausgang ausgeben(Lage& lage)
{
    const auto format = exportformat(lage.option("--format"));
    if (!format) return lage.falsch("Das Format ist geojson, csv oder kml.");
    if (!lage.aufruf.option.contains("--nach")) {
        lage.aus << exporttext(lage.g, *format);
        return Ausgang::gut;
    }
    const auto pfad = pfad_aus_wort(lage.g.dateien.laufwerke(), lage.option("--nach"));
    if (!pfad) return lage.pfad_nicht_verwendbar(lage.option("--nach"));
    return als_ausgang(export_schreiben(lage.g, *format, *pfad));
}

constexpr std::array<std::string_view, 1> optionen_i95 = {"--bild"};
constexpr std::array<std::string_view, 2> optionen_export = {"--format=", "--nach="};

constexpr Befehl befehle[] = {
    {"esa",
     "NR",
     "schreibt aus den berechneten Basislinien NR.SIG, NR.AMB und NR.EPO nach jorv_out/export (Modus B)\n"
     "Ein Lauf mit auswerten tut das an seinem Ende selbst.",
     "jorv esa 1",
     1,
     1,
     {},
     Grundlage::verfahren,
     esa},
    {"rv",
     "NR",
     "schreibt die berechneten Basislinien als RV001.DAT für die Ausgleichung (Modus B)\n"
     "Ist die Datei schon da, so wird gefragt; ohne --ja bleibt sie.",
     "jorv rv 1 --ja",
     1,
     1,
     {},
     Grundlage::verfahren,
     rv},
    {"i95", "NR [--bild]",
     "schreibt und startet die Batchdatei für den Index der Ionosphäre am Punkt 0583 (Modus B)\n"
     "Die Ausgabe der Batchdatei, auch der Index jeder Stunde in ppm, steht auf der Fehlerausgabe. Mit --bild kommen\n"
     "die Stunden mit ihren Balken aus der Datei model.i95 auf die Ausgabe.",
     "jorv i95 1 --bild", 1, 1, optionen_i95, Grundlage::verfahren, i95},
    {"mitteln",
     "NR",
     "sammelt die Ergebnisse aller berechneten ROVER in NR.UTM und startet damit die Koordinatenmittelung RUNA\n"
     "Der Auftrag steht in der Verfahrensdatei; RUNA.EXE (oder runa) liegt im EXE-Verzeichnis. Nicht im Modus B.",
     "jorv mitteln 1",
     1,
     1,
     {},
     Grundlage::verfahren,
     mitteln},
    {"zeichnen",
     "NR",
     "startet das Zeichenprogramm HOLBEK mit der Zeichendatei HBNR.DAT, die die Mittelung hinterlassen hat\n"
     "Der Auftrag steht in der Einstellungsdatei; HOLBEK.EXE (oder holbek) liegt im EXE-Verzeichnis.",
     "jorv zeichnen 1",
     1,
     1,
     {},
     Grundlage::verfahren,
     zeichnen},
    {"export", "NR --format geojson|csv|kml [--nach DATEI]",
     "gibt Punkte, Basislinien, Figuren und Zuordnungen für Karten und Tabellen anderer Programme aus\n"
     "Jedes Stück trägt Lösung, Standardabweichungen (mm) und Stationen, geographisch und in Zone 32. Was nicht\n"
     "berechnet ist, liegt, wo der Kopf seiner Datei es nennt. Ohne --nach steht alles auf der Ausgabe.",
     "jorv export 1 --format geojson --nach waldweg.geojson", 1, 1, optionen_export, Grundlage::nur_lesen, ausgeben},
};

}  // namespace

std::span<const Befehl> befehle_folge()
{
    return befehle;
}

}  // namespace jorv
