#include "konsole/Befehle.h"

#include <algorithm>
#include <vector>

#include "plattform/text.h"

namespace jorv {

std::span<const Befehl* const> alle_befehle()
{
    static const std::vector<const Befehl*> alle = [] {
        std::vector<const Befehl*> liste;
        for (const auto gruppe :
             {befehle_verfahren(), befehle_import(), befehle_dateien(), befehle_planung(), befehle_rover(),
              befehle_einstellen(), befehle_zeiten(), befehle_karte(), befehle_auswertung(), befehle_basis(),
              befehle_folge(), befehle_katalog(), befehle_hilfe()})
            for (const Befehl& befehl : gruppe) liste.push_back(&befehl);
        return liste;
    }();
    return alle;
}

std::string befehl_zeile(const Befehl& befehl)
{
    return verkettet("jorv ", befehl.name, befehl.aufruf.empty() ? "" : " ", befehl.aufruf);
}

std::string hilfe_uebersicht()
{
    std::string text =
        "jorv [--einstellungen DATEI] [--ja|--nein] [--json] BEFEHL ...\n\n"
        "  --einstellungen DATEI  diese Einstellungsdatei statt der im Dokumentenordner\n"
        "  --ja, --nein           beantwortet jede Frage; ohne sie gilt die Vorgabe der Frage\n"
        "  --json                 Ausgabe für Programme\n\n"
        "NR ist die Nummer eines Verfahrens. Pfade gehen in der Form des Rechners und in DOS-Form.\n\n";
    std::size_t breite = 0;
    for (const Befehl* befehl : alle_befehle()) breite = std::max(breite, befehl->name.size());
    for (const Befehl* befehl : alle_befehle()) {
        const auto satz = befehl->zweck.substr(0, befehl->zweck.find('\n'));
        text += verkettet("  ", befehl->name, std::string(breite - befehl->name.size() + 2, ' '), satz, "\n");
    }
    return text + "\nMehr zu einem Befehl: jorv hilfe BEFEHL\n";
}

}  // namespace jorv
