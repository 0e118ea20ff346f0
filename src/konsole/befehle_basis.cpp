#include <nlohmann/json.hpp>

#include "auswertung/basis_ausfuehren.h"
#include "auswertung/basis_gesamt.h"
#include "auswertung/baumbefehle.h"
#include "daten/beziehungsliste.h"
#include "konsole/Befehle.h"
#include "konsole/Lage.h"
#include "konsole/batchdateien.h"

namespace jorv {

namespace {

std::string basislinie_name(const BASISLINIE_Satz& b)
{
    return verkettet(b.Datei_von, "-", b.Datei_nach);
}

void basislinien_nennen(Lage& lage)
{
    auto namen = nlohmann::ordered_json::array();
    for (const auto& b : lage.g.BASISLINIE) namen.push_back(utf8_aus_1252(basislinie_name(b)));
    if (lage.aufruf.json)
        lage.aus << nlohmann::ordered_json{{"Basislinien", namen}}.dump(2) << '\n';
    else
        for (const auto& name : namen) lage.aus << name.get<std::string>() << '\n';
}

Ausgang basislinien(Lage& lage)
{
    if (!ist_B(lage.g)) return lage.nicht_in_diesem_modus();
    const auto pfad = pfad_aus_wort(lage.g.dateien.laufwerke(), lage.wort(1));
    if (!pfad) return lage.pfad_nicht_verwendbar(lage.wort(1));
    const int vorher = lage.g.BASISLINIE.anzahl();
    const Fehler fehler = m_datei_basis_liste(lage.g, *pfad);
    lage.geaendert = lage.g.BASISLINIE.anzahl() != vorher;
    basislinien_nennen(lage);
    return ist_fehler(fehler) ? Ausgang::misslungen : Ausgang::gut;
}

Ausgang basislinie_loeschen(Lage& lage)
{
    if (!ist_B(lage.g)) return lage.nicht_in_diesem_modus();
    const int stelle = lage.basislinie_index(lage.wort(1));
    if (stelle == 0) return lage.basislinie_unbekannt(lage.wort(1));
    const int vorher = lage.g.BASISLINIE.anzahl();
    const std::string name = basislinie_name(lage.g.BASISLINIE[stelle]);
    const std::string eltern = baum_eltern_von(lage.g.baum, {"B_Datei", "BB_Datei"}, name);
    const Fehler fehler = baum_befehl(lage.g, "mnu_tree_loeschen", name, eltern).fehler;
    lage.geaendert = lage.g.BASISLINIE.anzahl() != vorher;
    return ist_fehler(fehler) ? Ausgang::misslungen : Ausgang::gut;
}

Ausgang basis(Lage& lage)
{
    struct Schritt {
        std::string_view wort;
        Fehler (*befehl)(Global&);
    };
    constexpr Schritt schritte[] = {
        {"erstellen", m_basis_erstellen}, {"ausfuehren", m_basis_batch}, {"beides", m_basis_run}};
    for (const auto& schritt : schritte) {
        if (schritt.wort != lage.wort(1)) continue;
        if (!ist_B(lage.g)) return lage.nicht_in_diesem_modus();
        if (ist_fehler(schritt.befehl(lage.g))) return Ausgang::misslungen;
        dateien_nennen(lage);
        return Ausgang::gut;
    }
    return lage.falsch(verkettet(lage.wort(1), " ist weder erstellen noch ausfuehren noch beides."));
}

constexpr Befehl befehle[] = {
    {"basislinien",
     "NR LISTE",
     "bildet aus einer Liste von Punktpaaren die Basislinien des Verfahrens und nennt alle (Modus B)\n"
     "Jede Zeile nennt zwei Punkte, VON und NACH. Je zwei Dateien der beiden Punkte, die sich zeitlich überdecken,\n"
     "geben eine Basislinie; was schon da ist, kommt nicht noch einmal dazu.",
     "jorv basislinien 1 punktbeziehungen.txt",
     2,
     2,
     {},
     Grundlage::verfahren,
     basislinien},
    {"basislinie-loeschen",
     "NR NAME",
     "nimmt nach einer Frage eine Basislinie mit ihren Ergebnissen aus dem Verfahren\n"
     "Ihr Name besteht aus den beiden Dateinamen. Ohne --ja bleibt sie.",
     "jorv basislinie-loeschen 1 5501167j.16o-5502167j.16o --ja",
     2,
     2,
     {},
     Grundlage::verfahren,
     basislinie_loeschen},
    {"basis",
     "NR erstellen|ausfuehren|beides",
     "der ältere Weg: eine Batchdatei für alle Basislinien erstellen, ausführen oder beides (Modus B)\n"
     "Ist schon eine Batchdatei da, so wird gefragt. Ergebnisse und Protokoll stehen danach in NR.MRK, NR.TEM und\n"
     "NR.LIS, die Berichte unter jorv_out.",
     "jorv basis 1 beides --ja",
     2,
     2,
     {},
     Grundlage::verfahren,
     basis},
};

}  // namespace

std::span<const Befehl> befehle_basis()
{
    return befehle;
}

}  // namespace jorv
