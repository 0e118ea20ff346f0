#include <array>

#include "auswertung/basis_esa.h"
#include "auswertung/basis_i95.h"
#include "auswertung/basis_lovena.h"
#include "auswertung/export.h"
#include "auswertung/folgeprogramme.h"
#include "konsole/Befehle.h"
#include "konsole/Lage.h"
#include "konsole/batchdateien.h"

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

Ausgang i95(Lage& lage)
{
    if (!ist_B(lage.g)) return lage.nicht_in_diesem_modus();
    if (ist_fehler(m_basis_i95(lage.g))) return Ausgang::misslungen;
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
    {"i95",
     "NR",
     "schreibt und startet die Batchdatei für den Index der Ionosphäre am Punkt 0583 (Modus B)\n"
     "Die Ausgabe der Batchdatei steht auf der Fehlerausgabe. Die eingebaute Suite kann die Modelldatei noch nicht\n"
     "berechnen und sagt das im Protokoll NR.LIS.",
     "jorv i95 1",
     1,
     1,
     {},
     Grundlage::verfahren,
     i95},
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
     "jorv export 1 --format geojson --nach waldweg.geojson", 1, 1, optionen_export, Grundlage::verfahren, ausgeben},
};

}  // namespace

std::span<const Befehl> befehle_folge()
{
    return befehle;
}

}  // namespace jorv
