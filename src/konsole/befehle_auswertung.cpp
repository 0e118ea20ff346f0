#include <nlohmann/json.hpp>

#include "auswertung/aufrufdatei.h"
#include "auswertung/gesamt_batch.h"
#include "auswertung/gesamtlauf.h"
#include "auswertung/lauf.h"
#include "auswertung/laufart.h"
#include "konsole/Befehle.h"
#include "konsole/Lage.h"
#include "konsole/ergebnisse.h"

namespace jorv {

namespace {

// The two files that a batch command has written.
void dateien_nennen(Lage& lage)
{
    const std::string batch = utf8_aus_1252(batchdatei(lage.g)), aufruf = utf8_aus_1252(aufrufdatei(lage.g));
    if (lage.aufruf.json)
        lage.aus << nlohmann::ordered_json{{"Batchdatei", batch}, {"Aufrufdatei", aufruf}}.dump(2) << '\n';
    else
        lage.aus << batch << '\n' << aufruf << '\n';
}

Fehler batch_schreiben(Lage& lage, int rover)
{
    if (rover == 0) return m_wasoft_erstellen(lage.g);
    const Laufart* art = laufart(lage.g);
    return art ? art->batch(lage.g, lage.g.OBS_R[rover].Dateiname) : Fehler::gesetzt;
}

Ausgang batch(Lage& lage)
{
    const int rover = lage.rover_index(lage.wort(1));
    if (rover == 0 && !lage.wort(1).empty()) return lage.rover_unbekannt(lage.wort(1));
    if (ist_fehler(batch_schreiben(lage, rover))) return Ausgang::misslungen;
    dateien_nennen(lage);
    return Ausgang::gut;
}

Ausgang wasoft(Lage& lage)
{
    struct Schritt {
        std::string_view wort;
        Fehler (*befehl)(Global&);
    };
    constexpr Schritt schritte[] = {{"erstellen", [](Global& g) { return m_wasoft_erstellen(g); }},
                                    {"ausfuehren", [](Global& g) { return m_wasoft_batch(g); }},
                                    {"beides", [](Global& g) { return m_wasoft_run(g); }}};
    for (const auto& schritt : schritte) {
        if (schritt.wort != lage.wort(1)) continue;
        lage.geaendert = schritt.wort != "erstellen";
        if (ist_fehler(schritt.befehl(lage.g))) return Ausgang::misslungen;
        dateien_nennen(lage);
        return Ausgang::gut;
    }
    return lage.falsch(verkettet(lage.wort(1), " ist weder erstellen noch ausfuehren noch beides."));
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
     "NR [ROVER]",
     "schreibt die Batchdatei und die Aufrufdatei eines ROVER, ohne sie auszuführen, und nennt beide\n"
     "Ohne ROVER wird die Batchdatei des ganzen Verfahrens geschrieben (Modus E und S).",
     "jorv batch 1 5501167j.16o",
     1,
     2,
     {},
     Grundlage::verfahren,
     batch},
    {"wasoft",
     "NR erstellen|ausfuehren|beides",
     "der ältere Weg: eine Batchdatei für das ganze Verfahren erstellen, ausführen oder beides (Modus E und S)\n"
     "Ist schon eine Batchdatei da, so wird gefragt. Ergebnisse, Protokolle und Kurzprotokoll aller ROVER stehen\n"
     "danach in NR.UTM, NR.LIS und NR.KRZ, Einzelnes unter jorv_out. Frühere Ergebnisse einzelner ROVER gehen\n"
     "dabei verloren.",
     "jorv wasoft 1 beides --ja",
     2,
     2,
     {},
     Grundlage::verfahren,
     wasoft},
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
