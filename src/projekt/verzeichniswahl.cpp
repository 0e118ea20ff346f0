#include "projekt/verzeichniswahl.h"

#include <algorithm>

#include "modell/Meldungen.h"
#include "plattform/pfad.h"
#include "plattform/text.h"

namespace jorv {

namespace {

// Characters that no drive of a DOS path takes in a name; one that Windows-1252 lacks has come in as "?".
bool name_moeglich(std::string_view name)
{
    return name.find_first_of("<>:\"/|?*") == std::string_view::npos &&
           std::none_of(name.begin(), name.end(), [](char z) { return static_cast<unsigned char>(z) < 32; });
}

}  // namespace

std::string Verzeichnis_Wahl(std::string_view verzeichnis, std::string_view letzter_teil)
{
    letzter_teil = trimmen(letzter_teil);
    while (letzter_teil.starts_with('\\')) letzter_teil.remove_prefix(1);
    return letzter_teil.empty() ? std::string(verzeichnis) : pfad_verbinden(verzeichnis, letzter_teil);
}

std::optional<std::string> Verzeichnis_uebernehmen(Global& g, std::string_view verzeichnis,
                                                   std::string_view letzter_teil)
{
    std::string pfad = Verzeichnis_Wahl(verzeichnis, letzter_teil);
    const bool da = name_moeglich(letzter_teil) && (g.dateien.ist_ordner(pfad) || !g.dateien.ordner_anlegen(pfad));
    if (da) return pfad;
    g.oberflaeche->meldung(Symbol::warnung, datei_meldung("Das Verzeichnis:", pfad, " konnte nicht angelegt werden!"));
    return std::nullopt;
}

std::string Verzeichnis_Anfang(const Global& g, std::string_view pfad)
{
    while (!pfad.empty() && !g.dateien.ist_ordner(pfad)) {
        const auto ordner = pfad_ordner(pfad);
        if (ordner.size() >= pfad.size()) break;
        pfad = ordner;
    }
    if (ist_dos_pfad(pfad) && g.dateien.ist_ordner(pfad)) return std::string(pfad);
    const auto alle = g.dateien.laufwerke().alle();
    return alle.empty() ? std::string() : pfad_verbinden(alle.front(), "");
}

std::vector<std::string> Unterverzeichnisse(const Global& g, std::string_view verzeichnis)
{
    std::vector<std::string> namen;
    for (const auto& eintrag : g.dateien.ordner_lesen(verzeichnis))
        if (eintrag.ordner && !eintrag.name.starts_with('.')) namen.push_back(eintrag.name);
    std::stable_sort(namen.begin(), namen.end(), [](const auto& a, const auto& b) { return klein(a) < klein(b); });
    return namen;
}

}  // namespace jorv
