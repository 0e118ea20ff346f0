#include "planung/zeitachse.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "plattform/text.h"

namespace jorv {

namespace {

constexpr std::int64_t stunde_s = 3600;
constexpr std::array<std::int64_t, 14> schritte_min = {1, 2, 5, 10, 15, 20, 30, 60, 120, 180, 240, 360, 720, 1440};

}  // namespace

Zeitachse::Zeitachse(const Zeitpunkt& von, const Zeitpunkt& bis, double rand)
{
    const auto spanne = static_cast<double>(sekunden_seit_1970(bis) - sekunden_seit_1970(von));
    if (spanne <= 0) return;
    m_beginn = static_cast<double>(sekunden_seit_1970(von)) - rand * spanne;
    m_laenge = spanne * (1 + 2 * rand);
}

double Zeitachse::anteil(const Zeitpunkt& zeit) const
{
    return anteil(static_cast<double>(sekunden_seit_1970(zeit)));
}

double Zeitachse::anteil(double sekunden_seit_1970) const
{
    return m_laenge > 0 ? (sekunden_seit_1970 - m_beginn) / m_laenge : 0;
}

Zeitpunkt Zeitachse::zeit(double anteil) const
{
    return zeitpunkt_aus_sekunden(std::llround(m_beginn + anteil * m_laenge));
}

Zeitachse Zeitachse::ausschnitt(double von, double bis) const
{
    Zeitachse teil;
    teil.m_beginn = m_beginn + von * m_laenge;
    teil.m_laenge = (bis - von) * m_laenge;
    return teil;
}

std::vector<double> Zeitachse::raster(int minuten) const
{
    std::vector<double> alle;
    if (m_laenge <= 0 || minuten < 1) return alle;
    const double schritt = 60.0 * minuten;
    for (double zeit = std::ceil(m_beginn / schritt) * schritt; zeit <= m_beginn + m_laenge; zeit += schritt)
        alle.push_back(anteil(zeit));
    return alle;
}

Balken Zeitachse::balken(const Zeitpunkt& von, const Zeitpunkt& bis) const
{
    return {std::clamp(anteil(von), 0.0, 1.0), std::clamp(anteil(bis), 0.0, 1.0)};
}

std::vector<Zeitmarke> Zeitachse::marken(int hoechstens) const
{
    std::vector<Zeitmarke> alle;
    if (m_laenge <= 0 || hoechstens < 1) return alle;
    // An axis of many days takes steps of whole days.
    auto schritt = static_cast<std::int64_t>(std::ceil(m_laenge / (60.0 * 1440 * hoechstens))) * 1440;
    for (const auto minuten : schritte_min)
        if (m_laenge / (60.0 * static_cast<double>(minuten)) <= hoechstens) {
            schritt = minuten;
            break;
        }
    const auto beginn = static_cast<std::int64_t>(std::ceil(m_beginn));
    const auto ende = static_cast<std::int64_t>(std::floor(m_beginn + m_laenge));
    for (std::int64_t zeit = beginn - beginn % stunde_s; zeit <= ende; zeit += schritt * 60) {
        if (zeit < beginn) continue;
        const Zeitpunkt punkt = zeitpunkt_aus_sekunden(zeit);
        alle.push_back({anteil(punkt), zeitmarke_text(punkt)});
    }
    return alle;
}

std::string zeitmarke_text(const Zeitpunkt& zeit)
{
    return verkettet(zeit.stunde, zeit.minute < 10 ? ":0" : ":", zeit.minute);
}

}  // namespace jorv
