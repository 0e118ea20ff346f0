#include <array>
#include <nlohmann/json.hpp>

#include "auswertung/aufrufdatei.h"
#include "auswertung/basis_gesamt.h"
#include "auswertung/gesamt_batch.h"
#include "auswertung/gesamtlauf.h"
#include "auswertung/lauf.h"
#include "auswertung/laufart.h"
#include "konsole/Befehle.h"
#include "konsole/Lage.h"
#include "konsole/batchdateien.h"
#include "konsole/ergebnisse.h"

namespace jorv {

namespace {

// The name of a rover's file or of a baseline as the project writes it; empty when it has none.
std::string stueck(const Lage& lage, std::string_view wort)
{
    if (ist_B(lage.g)) {
        const int i = lage.basislinie_index(wort);
        return i == 0 ? "" : verkettet(lage.g.BASISLINIE[i].Datei_von, "-", lage.g.BASISLINIE[i].Datei_nach);
    }
    const int i = lage.rover_index(wort);
    return i == 0 ? "" : lage.g.OBS_R[i].Dateiname;
}

Fehler batch_schreiben(Lage& lage, const std::string& name)
{
    if (name.empty()) return ist_B(lage.g) ? m_basis_erstellen(lage.g) : m_wasoft_erstellen(lage.g);
    const Laufart* art = laufart(lage.g);
    return art ? art->batch(lage.g, name) : Fehler::gesetzt;
}

Ausgang batch(Lage& lage)
{
    const std::string name = stueck(lage, lage.wort(1));
    if (name.empty() && !lage.wort(1).empty())
        return ist_B(lage.g) ? lage.basislinie_unbekannt(lage.wort(1)) : lage.rover_unbekannt(lage.wort(1));
    lage.g.emds_ausgabe = lage.aufruf.option.contains("--emds");
    if (ist_fehler(batch_schreiben(lage, name))) return Ausgang::misslungen;
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
    lage.g.emds_ausgabe = lage.aufruf.option.contains("--emds");
    const Fehler fehler = m_wasoft_run_n(lage.g);
    lage.aus << (lage.aufruf.json ? ergebnisse_json(lage.g) : utf8_aus_1252(ergebnisse_text(lage.g)));
    return ist_fehler(fehler) ? Ausgang::misslungen : Ausgang::gut;
}

Ausgang ergebnisse(Lage& lage)
{
    lage.aus << (lage.aufruf.json ? ergebnisse_json(lage.g) : utf8_aus_1252(ergebnisse_text(lage.g)));
    return Ausgang::gut;
}

constexpr std::array<std::string_view, 1> optionen_emds = {"--emds"};

constexpr Befehl befehle[] = {
    {"batch", "NR [ROVER|BASISLINIE] [--emds]",
     "schreibt die Batchdatei und die Aufrufdatei eines ROVER oder einer Basislinie und nennt beide\n"
     "Ausgeführt wird nichts. Ohne Namen ist es die Batchdatei des ganzen Verfahrens (nicht im Modus F). Mit --emds\n"
     "kommt für eine Basislinie der zweite Aufruf dazu, der die Datei NR.EMD füllt.",
     "jorv batch 1 5501167j.16o", 1, 2, optionen_emds, Grundlage::verfahren, batch},
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
    {"auswerten", "NR [--emds]",
     "berechnet alle bereiten ROVER oder alle Basislinien und zeigt Lösung und Ergebnis\n"
     "Der Fortschritt steht auf der Fehlerausgabe. Strg-C hält nach dem laufenden Stück an. Mit --emds wird im\n"
     "Modus B auch NR.EMD geschrieben.",
     "jorv auswerten 1", 1, 1, optionen_emds, Grundlage::verfahren, auswerten},
    {"ergebnisse",
     "NR",
     "zeigt Lösung, Koordinaten oder Vektor und Genauigkeit der berechneten ROVER oder Basislinien",
     "jorv ergebnisse 1",
     1,
     1,
     {},
     Grundlage::nur_lesen,
     ergebnisse},
};

}  // namespace

void dateien_nennen(Lage& lage)
{
    const std::string batch = utf8_aus_1252(batchdatei(lage.g)), aufruf = utf8_aus_1252(aufrufdatei(lage.g));
    if (lage.aufruf.json)
        lage.aus << nlohmann::ordered_json{{"Batchdatei", batch}, {"Aufrufdatei", aufruf}}.dump(2) << '\n';
    else
        lage.aus << batch << '\n' << aufruf << '\n';
}

std::span<const Befehl> befehle_auswertung()
{
    return befehle;
}

}  // namespace jorv
