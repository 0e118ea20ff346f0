#include "suite/navigationsdatei.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "suite/spalten.h"

namespace jorv::suite {

std::optional<std::vector<std::string>> kopfzeilen(std::string_view erste, Zeilenleser& leser)
{
    std::vector<std::string> zeilen;
    for (std::optional<std::string_view> zeile = erste; zeile; zeile = leser.naechste()) {
        if (spalten(*zeile, 60, 20) == "END OF HEADER") return zeilen;
        zeilen.emplace_back(*zeile);
    }
    return {};
}

void Navigationsdatei::dazu(Satzzeilen satz)
{
    std::string& ganz = zeilen.emplace_back();
    for (const std::string_view zeile : satz) ganz.append(zeile).append("\r\n");
}

std::string Navigationsdatei::text(const std::function<bool(std::size_t, std::size_t)>& vorher) const
{
    std::string ziel;
    for (const std::string& zeile : kopf) ziel.append(zeile).append("\r\n");
    anhaengen_links(ziel, "", 60);
    ziel.append("END OF HEADER\r\n");
    std::vector<std::size_t> folge(zeilen.size());
    std::iota(folge.begin(), folge.end(), std::size_t{0});
    std::stable_sort(folge.begin(), folge.end(), vorher);
    for (const std::size_t i : folge) ziel.append(zeilen[i]);
    return ziel;
}

bool naechster_satz(Zeilenleser& leser, std::span<std::string_view> satz)
{
    std::size_t anzahl = satz.size();  // lines before the first set belong to none
    while (const auto zeile = leser.naechste()) {
        if (!spalten(*zeile, 0, 2).empty()) anzahl = 0;
        if (anzahl == satz.size()) continue;
        satz[anzahl++] = *zeile;
        if (anzahl == satz.size()) return true;
    }
    return false;
}

std::optional<double> satzzahl(Satzzeilen satz, std::size_t zeile, std::size_t spalte)
{
    return spaltenzahl(spalten(satz[zeile], 3 + 19 * spalte, 19));
}

std::optional<GpsZeit> satzzeit(Satzzeilen satz)
{
    std::array<int, 5> datum{};
    for (std::size_t i = 0; i < datum.size(); ++i) {
        const auto zahl = spaltenganz(spalten(satz[0], 3 + 3 * i, 2));
        if (!zahl) return {};
        datum[i] = *zahl;
    }
    const auto sekunde = spaltenzahl(spalten(satz[0], 17, 5));
    if (!sekunde) return {};
    return gps_zeit({volles_jahr(datum[0]), datum[1], datum[2], datum[3], datum[4], *sekunde});
}

}  // namespace jorv::suite
