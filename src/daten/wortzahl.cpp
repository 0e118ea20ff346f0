#include "daten/wortzahl.h"

#include <array>
#include <cmath>
#include <string>

#include "plattform/text.h"
#include "plattform/wort.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

// The value of the word as `umwandeln` makes it from the number; nothing of both kinds is told apart by the message.
template <typename Umwandlung>
auto holen(Global& g, std::string_view zeile, int nummer, const Wertname& wert, const Leseort& ort,
           Umwandlung umwandeln) -> decltype(umwandeln(0.0))
{
    const Wort wort = wort_finden(zeile, nummer);
    if (wort.status != Wortstatus::gefunden) {
        stop_melden(g, wort_meldung(wert, wortfehler(wort.status), ort.datei, ort.zeile));
        return std::nullopt;
    }
    const auto ergebnis = umwandeln(zahl_lesen(ersetzt(std::string(wort.text), ',', '.')));
    if (!ergebnis) stop_melden(g, wort_meldung(wert, Wortfehler::konvertierung, ort.datei, ort.zeile));
    return ergebnis;
}

}  // namespace

std::optional<double> zahl_holen(Global& g, std::string_view zeile, int nummer, const Wertname& wert,
                                 const Leseort& ort)
{
    return holen(g, zeile, nummer, wert, ort,
                 [](double zahl) { return std::isfinite(zahl) ? std::optional<double>(zahl) : std::nullopt; });
}

std::optional<std::int16_t> ganz16_holen(Global& g, std::string_view zeile, int nummer, const Wertname& wert,
                                         const Leseort& ort)
{
    return holen(g, zeile, nummer, wert, ort, ganz16);
}

std::optional<std::int32_t> ganz32_holen(Global& g, std::string_view zeile, int nummer, const Wertname& wert,
                                         const Leseort& ort)
{
    return holen(g, zeile, nummer, wert, ort, ganz32);
}

bool xyz_holen(Global& g, std::string_view zeile, int erstes, const Leseort& ort, double& X, double& Y, double& Z)
{
    const std::array<const Wertname*, 3> namen = {&wert_X, &wert_Y, &wert_Z};
    const std::array<double*, 3> ziele = {&X, &Y, &Z};
    for (std::size_t i = 0; i < namen.size(); ++i) {
        const auto zahl = zahl_holen(g, zeile, erstes + static_cast<int>(i), *namen[i], ort);
        if (!zahl) return false;
        *ziele[i] = *zahl;
    }
    return true;
}

}  // namespace jorv
