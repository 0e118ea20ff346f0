#include "suite/loeser_ausgabe.h"

#include <algorithm>
#include <optional>

#include "plattform/text.h"
#include "suite/spalten.h"

namespace jorv::suite {

namespace {

constexpr std::size_t POSITIONSWORTE = 15;
constexpr std::size_t RESTWORTE = 17;

// The words of a line that has exactly N; with `leere` two separators in a row hold an empty word.
template <std::size_t N>
std::optional<std::array<std::string_view, N>> zerlegt(std::string_view zeile, char trenner, bool leere)
{
    std::array<std::string_view, N> worte;
    std::size_t anzahl = 0;
    for (std::size_t stelle = 0; stelle <= zeile.size();) {
        const auto ende = std::min(zeile.find(trenner, stelle), zeile.size());
        if (leere || ende > stelle) {
            if (anzahl == N) return {};
            worte[anzahl++] = zeile.substr(stelle, ende - stelle);
        }
        stelle = ende + 1;
    }
    return anzahl == N ? std::optional(worte) : std::nullopt;
}

// "2005/04/02" and "00:00:30.000".
std::optional<GpsZeit> zeit_aus(std::string_view datum, std::string_view uhr)
{
    const auto tag = zerlegt<3>(datum, '/', true), zeit = zerlegt<3>(uhr, ':', true);
    if (!tag || !zeit) return {};
    const auto &d = *tag, &u = *zeit;
    std::array<int, 5> zahl{};
    const std::array<std::string_view, 5> teile = {d[0], d[1], d[2], u[0], u[1]};
    for (std::size_t i = 0; i < teile.size(); ++i) zahl[i] = spaltenganz(teile[i]).value_or(-1);
    return gps_zeit({zahl[0], zahl[1], zahl[2], zahl[3], zahl[4], spaltenzahl(u[2]).value_or(-1.0)});
}

std::optional<Position> position_lesen(std::string_view zeile)
{
    const auto worte = zerlegt<POSITIONSWORTE>(zeile, ' ', false);
    if (!worte) return {};
    const auto& wort = *worte;
    const auto zeit = zeit_aus(wort[0], wort[1]);
    std::array<double, 13> zahl{};
    for (std::size_t i = 0; i < zahl.size(); ++i) {
        const auto wert = spaltenzahl(wort[i + 2]);
        if (!wert) return {};
        zahl[i] = *wert;
    }
    if (!zeit || zahl[3] < 0 || zahl[3] > 9) return {};
    Position p;
    p.zeit = *zeit;
    p.ort = {zahl[0], zahl[1], zahl[2]};
    p.guete = static_cast<Guete>(static_cast<int>(zahl[3]));
    p.sigma = {zahl[5], zahl[6], zahl[7]};
    p.gemischt = {zahl[8], zahl[9], zahl[10]};
    p.verhaeltnis = zahl[12];
    return p;
}

std::optional<Restzeile> rest_lesen(std::string_view zeile)
{
    const auto worte = zerlegt<RESTWORTE>(zeile, ',', true);
    if (!worte) return {};
    const auto& wort = *worte;
    const auto woche = spaltenganz(wort[1]), frequenz = spaltenganz(wort[4]), gueltig = spaltenganz(wort[9]),
               fest = spaltenganz(wort[11]);
    const auto sekunde = spaltenzahl(wort[2]), azimut = spaltenzahl(wort[5]), elevation = spaltenzahl(wort[6]),
               rest_code = spaltenzahl(wort[7]), rest = spaltenzahl(wort[8]);
    if (!woche || !frequenz || !gueltig || !fest || !sekunde || !azimut || !elevation || !rest_code || !rest) return {};
    if (*woche < 0 || *sekunde < 0 || *sekunde > 604800) return {};
    return Restzeile{gps_zeit(*woche, *sekunde),
                     std::string(wort[3]),
                     *frequenz,
                     *azimut * GRAD,
                     *elevation * GRAD,
                     *rest_code,
                     *rest,
                     *gueltig == 1,
                     *fest >= 2};
}

}  // namespace

Loeserausgabe loeserausgabe_lesen(std::string_view positionen, std::string_view statistik)
{
    Loeserausgabe ausgabe;
    Zeilenleser leser(positionen);
    while (const auto zeile = leser.naechste()) {
        if (zeile->starts_with("% program"))
            ausgabe.programm = trimmen(zeile->substr(std::min(zeile->find(':') + 1, zeile->size())));
        if (zeile->empty() || zeile->front() == '%') continue;
        if (const auto position = position_lesen(*zeile)) ausgabe.positionen.push_back(*position);
    }
    Zeilenleser statistikleser(statistik);
    while (const auto zeile = statistikleser.naechste()) {
        if (!zeile->starts_with("$SAT,")) continue;
        if (auto rest = rest_lesen(*zeile)) ausgabe.reste.push_back(std::move(*rest));
    }
    return ausgabe;
}

}  // namespace jorv::suite
