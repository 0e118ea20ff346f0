#include "suite/phasenzentrum.h"

#include <algorithm>

#include "plattform/text.h"
#include "suite/spalten.h"

namespace jorv::suite {

namespace {

constexpr double MILLIMETER = 0.001;
constexpr std::size_t WERTBREITE = 8;  // columns of a value behind NOAZI

}  // namespace

Phasenzentrum::Phasenzentrum(const RinexKopf& kopf, const std::optional<Antennenblock>& block)
{
    if (block) lesen(*block);
    for (Gang& g : m_gang)
        g.versatz = {g.versatz.e + kopf.antenne_ost, g.versatz.n + kopf.antenne_nord, g.versatz.u + kopf.antennenhoehe};
}

void Phasenzentrum::lesen(const Antennenblock& block)
{
    Gang* gang = nullptr;
    Zeilenleser leser(block.text);
    while (const auto zeile = leser.naechste()) {
        const std::string_view marke = spalten(*zeile, 60, 20);
        if (marke == "ZEN1 / ZEN2 / DZEN") {
            m_schritt = std::max(0.1, spaltenzahl(spalten(*zeile, 14, 6)).value_or(5.0));
        } else if (marke == "START OF FREQUENCY") {
            const std::string_view name = spalten(*zeile, 3, 3);
            gang = name == "G01" ? m_gang.data() : name == "G02" ? &m_gang[1] : nullptr;
        } else if (marke == "END OF FREQUENCY") {
            gang = nullptr;
        } else if (gang && marke == "NORTH / EAST / UP") {
            const auto feld = [&](std::size_t i) {
                return spaltenzahl(spalten(*zeile, 10 * i, 10)).value_or(0.0) * MILLIMETER;
            };
            gang->versatz = {feld(1), feld(0), feld(2)};
        } else if (gang && spalten(*zeile, 0, 8) == "NOAZI") {
            gang->werte.clear();
            for (std::size_t i = WERTBREITE; i < zeile->size(); i += WERTBREITE) {
                const auto wert = spaltenzahl(spalten(*zeile, i, WERTBREITE));
                if (!wert) break;
                gang->werte.push_back(*wert * MILLIMETER);
            }
        }
    }
}

double Phasenzentrum::laenger(std::size_t frequenz, const Enu& richtung) const
{
    const Gang& g = m_gang[frequenz];
    const double versatz = g.versatz.e * richtung.e + g.versatz.n * richtung.n + g.versatz.u * richtung.u;
    if (g.werte.empty()) return -versatz;
    const double zenit = std::acos(std::clamp(richtung.u, -1.0, 1.0)) / GRAD;
    const double stelle = std::clamp(zenit / m_schritt, 0.0, static_cast<double>(g.werte.size() - 1));
    const auto unten = static_cast<std::size_t>(stelle), oben = std::min(unten + 1, g.werte.size() - 1);
    const double anteil = stelle - static_cast<double>(unten);
    return (1.0 - anteil) * g.werte[unten] + anteil * g.werte[oben] - versatz;
}

}  // namespace jorv::suite
