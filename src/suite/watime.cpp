#include "suite/watime.h"

#include <array>

#include "plattform/text.h"
#include "plattform/zahl.h"
#include "suite/gps_zeit.h"

namespace jorv::suite {

namespace {

constexpr int LETZTE_WOCHE = 300000;  // the year 7729: nothing sensible lies beyond

std::optional<GpsZeit> aus_woche(std::string_view wort)
{
    const auto strich = wort.find('/');
    if (strich == std::string_view::npos) return {};
    const auto woche = ganz_streng(wort.substr(0, strich)), tag = ganz_streng(wort.substr(strich + 1));
    if (!woche || !tag || *woche < 0 || *woche > LETZTE_WOCHE || *tag < 0 || *tag > 6) return {};
    return gps_zeit(*woche, *tag * 86400.0);
}

std::optional<GpsZeit> aus_datum(const Worte& worte)
{
    std::array<int, 6> zahl{};
    for (std::size_t i = 0; i < zahl.size(); ++i) {
        const auto wert = ganz_streng(worte[i]);
        if (!wert) return {};
        zahl[i] = *wert;
    }
    return gps_zeit({volles_jahr(zahl[0]), zahl[1], zahl[2], zahl[3], zahl[4], static_cast<double>(zahl[5])});
}

std::string gefuellt(std::int64_t zahl, std::size_t breite)
{
    const std::string text = verkettet(zahl);
    return std::string(breite > text.size() ? breite - text.size() : 0, '0') + text;
}

}  // namespace

std::optional<std::string> watime(const Worte& worte)
{
    std::optional<GpsZeit> zeit;
    if (worte.size() == 1) zeit = aus_woche(worte[0]);
    if (worte.size() == 6) zeit = aus_datum(worte);
    if (!zeit || woche(*zeit) > LETZTE_WOCHE) return {};
    const std::int64_t hundertstel = zeit->sekunde % 86400 * 100 / 86400;
    return verkettet(zeittext(*zeit), " ", gefuellt(tag_im_jahr(*zeit), 3), ".", gefuellt(hundertstel, 2), " ",
                     gefuellt(woche(*zeit), 4), "/", wochentag(*zeit), " ", gefuellt(zeit->sekunde % 604800, 6));
}

}  // namespace jorv::suite
