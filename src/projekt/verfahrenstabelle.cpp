#include "projekt/verfahrenstabelle.h"

#include <algorithm>

#include "modell/Gemeinsam.h"
#include "plattform/text.h"

namespace jorv {

namespace {

constexpr std::size_t spalte_name = 1, spalte_pfad = 3, spalte_anlegedatum = 4, spalte_letztdatum = 5;

constexpr std::array<std::string_view, verfahrensspalten> breiten = {
    "___Nummer___", "", "__Modus__", "", "__letzte Bearbeitung___", "__letzte Bearbeitung___", "__Antennen___"};

// "dd.mm.yyyy hh:mm:ss" as "yyyy.mm.dd hh:mm:ss"; anything else stays.
std::string jahr_voran(std::string_view datum)
{
    if (datum.size() < 10 || datum[2] != '.' || datum[5] != '.') return std::string(datum);
    return verkettet(mitte(datum, 7, 4), ".", mitte(datum, 4, 2), ".", mitte(datum, 1, 2), mitte(datum, 11));
}

}  // namespace

Verfahrenstabelle::Verfahrenstabelle(const Global& g)
{
    for (const auto& v : g.Verfahren)
        m_zeilen.push_back(
            {v.Nummer, v.Name, std::string(Modus_Buchstabe(v.Modus)), v.Pfad, v.ErstDatum, v.LetztDatum, v.Antenne});
}

void Verfahrenstabelle::sortieren(std::size_t spalte)
{
    const bool datum = spalte == spalte_anlegedatum || spalte == spalte_letztdatum;
    const auto schluessel = [&](const Verfahrenszeile& z) {
        return datum ? jahr_voran(z.at(spalte)) : klein(z.at(spalte));
    };
    std::stable_sort(m_zeilen.begin(), m_zeilen.end(),
                     [&](const auto& a, const auto& b) { return schluessel(a) < schluessel(b); });
}

std::string Verfahrenstabelle::Breitentext(std::size_t spalte) const
{
    if (spalte != spalte_name && spalte != spalte_pfad) return std::string(breiten.at(spalte));
    return verkettet("__", breitester_Eintrag(spalte), "__");
}

std::string Verfahrenstabelle::breitester_Eintrag(std::size_t spalte) const
{
    std::string breitester(verfahrenskopf.at(spalte));
    for (const auto& zeile : m_zeilen)
        if (zeile[spalte].size() > breitester.size()) breitester = zeile[spalte];
    return breitester;
}

}  // namespace jorv
