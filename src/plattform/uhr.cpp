#include "plattform/uhr.h"

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string_view>

#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

std::optional<Zeitpunkt> aus_iso(std::string_view text)
{
    if (text.size() != 19 || text[4] != '-' || text[7] != '-' || text[10] != 'T' || text[13] != ':' || text[16] != ':')
        return std::nullopt;
    int werte[6];
    constexpr std::size_t ab[6] = {0, 5, 8, 11, 14, 17};
    for (std::size_t i = 0; i < 6; ++i) {
        const auto wert = ganz_streng(text.substr(ab[i], i == 0 ? 4 : 2));
        if (!wert) return std::nullopt;
        werte[i] = *wert;
    }
    if (!ist_datum(werte[0], werte[1], werte[2])) return std::nullopt;
    return Zeitpunkt{werte[0], werte[1], werte[2], werte[3], werte[4], werte[5]};
}

}  // namespace

Zeitpunkt Systemuhr::jetzt() const
{
    if (const char* fest = std::getenv("JORV_JETZT"))
        if (const auto zeit = aus_iso(fest)) return *zeit;
    const std::time_t sekunden = std::time(nullptr);
    std::tm teile{};
#ifdef _WIN32
    localtime_s(&teile, &sekunden);
#else
    localtime_r(&sekunden, &teile);
#endif
    return {teile.tm_year + 1900, teile.tm_mon + 1, teile.tm_mday, teile.tm_hour, teile.tm_min, teile.tm_sec};
}

}  // namespace jorv
