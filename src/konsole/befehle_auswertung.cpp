#include "auswertung/aufrufdatei.h"
#include "auswertung/lauf.h"
#include "auswertung/rover_batch.h"
#include "konsole/Befehle.h"
#include "konsole/Lage.h"
#include "konsole/ergebnisse.h"
#include "modell/Gemeinsam.h"

namespace jorv {

namespace {

Ausgang batch(Lage& lage)
{
    const int rover = lage.rover_index(lage.wort(1));
    if (rover == 0) return lage.rover_unbekannt(lage.wort(1));
    if (!ist_E_oder_S(lage.g)) return lage.stop("Batchdateien einzelner ROVER gibt es in den Modi E und S!");
    if (ist_fehler(rover_batch_vrs(lage.g, lage.g.OBS_R[rover].Dateiname))) return Ausgang::misslungen;
    lage.aus << utf8_aus_1252(verkettet(batchdatei(lage.g), "\n", aufrufdatei(lage.g), "\n"));
    return Ausgang::gut;
}

Ausgang auswerten(Lage& lage)
{
    lage.geaendert = true;
    const Fehler fehler = m_wasoft_run_n(lage.g);
    lage.aus << (lage.aufruf.json ? ergebnisse_json(lage.g) : utf8_aus_1252(ergebnisse_text(lage.g)));
    return ist_fehler(fehler) ? Ausgang::misslungen : Ausgang::gut;
}

Ausgang ergebnisse(Lage& lage)
{
    lage.aus << (lage.aufruf.json ? ergebnisse_json(lage.g) : utf8_aus_1252(ergebnisse_text(lage.g)));
    return Ausgang::gut;
}

constexpr Befehl befehle[] = {
    {"batch",
     "NR ROVER",
     "schreibt die Batchdatei und die Aufrufdatei eines ROVER, ohne sie auszuführen",
     "jorv batch 1 5501167j.16o",
     2,
     2,
     {},
     Grundlage::verfahren,
     batch},
    {"auswerten",
     "NR",
     "berechnet alle bereiten ROVER und zeigt Lösung und Koordinaten\n"
     "Der Fortschritt steht auf der Fehlerausgabe. Strg-C hält nach dem laufenden ROVER an.",
     "jorv auswerten 1",
     1,
     1,
     {},
     Grundlage::verfahren,
     auswerten},
    {"ergebnisse",
     "NR",
     "zeigt Lösung, Koordinaten und Genauigkeit der berechneten ROVER",
     "jorv ergebnisse 1",
     1,
     1,
     {},
     Grundlage::verfahren,
     ergebnisse},
};

}  // namespace

std::span<const Befehl> befehle_auswertung()
{
    return befehle;
}

}  // namespace jorv
