#include "suite/koordinaten.h"

#include <algorithm>
#include <array>

#include "plattform/text.h"
#include "suite/spalten.h"

namespace jorv::suite {

namespace {

constexpr std::size_t PKZ_LAENGE = 4;

std::string schluessel(std::string_view name)
{
    return gross(links(name, PKZ_LAENGE));
}

std::optional<Xyz> ort_lesen(std::string_view rest)
{
    std::array<double, 3> wert{};
    for (double& zahl : wert) {
        rest = trimmen(rest);
        const auto ende = std::min(rest.find(' '), rest.size());
        const auto gelesen = spaltenzahl(rest.substr(0, ende));
        if (!gelesen) return {};
        zahl = *gelesen;
        rest.remove_prefix(ende);
    }
    return Xyz{wert[0], wert[1], wert[2]};
}

}  // namespace

Koordinaten::Koordinaten(const Arbeitsordner& ordner, const std::string& name, Protokoll& protokoll)
{
    if (name.empty()) return;
    std::error_code fehler;
    const Abbild abbild = ordner.lesen(name, fehler);
    if (fehler) {
        protokoll.warnung(verkettet("Die Koordinatendatei ", name, u8" fehlt: Koordinaten aus den Dateiköpfen."_w));
        return;
    }
    m_name = name;
    Zeilenleser leser(abbild.text());
    while (const auto zeile = leser.naechste()) {
        const auto ende = std::min(zeile->find(' '), zeile->size());
        if (const auto ort = ort_lesen(zeile->substr(ende))) m_punkte[schluessel(zeile->substr(0, ende))] = *ort;
    }
}

Xyz Koordinaten::ort(const Beobachtungsdatei& datei, Protokoll& protokoll) const
{
    if (const auto punkt = m_punkte.find(schluessel(datei.name)); punkt != m_punkte.end()) return punkt->second;
    if (!m_name.empty())
        protokoll.warnung(
            verkettet("Der Punkt ", schluessel(datei.name), " fehlt in ", m_name, ": Koordinaten aus dem Dateikopf."));
    return datei.daten.kopf.ort;
}

}  // namespace jorv::suite
