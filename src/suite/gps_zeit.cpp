#include "suite/gps_zeit.h"

#include "plattform/kalender.h"
#include "plattform/text.h"

namespace jorv::suite {

namespace {

constexpr std::int64_t ANFANG = 3657;  // days from 1.1.1970 to 6.1.1980

}  // namespace

std::optional<GpsZeit> gps_zeit(const Kalenderzeit& k)
{
    const bool uhrzeit =
        k.stunde >= 0 && k.stunde < 24 && k.minute >= 0 && k.minute < 60 && k.sekunde >= 0 && k.sekunde < 61;
    if (k.jahr < 1980 || k.jahr > 9999 || !ist_datum(k.jahr, k.monat, k.tag) || !uhrzeit) return {};
    const std::int64_t tage = tage_seit_1970(k.jahr, k.monat, k.tag) - ANFANG;
    if (tage < 0) return {};
    return verschoben(GpsZeit{tage * 86400 + k.stunde * 3600 + k.minute * 60, 0.0}, k.sekunde);
}

GpsZeit gps_zeit(int woche, double sekunde_der_woche)
{
    return verschoben(GpsZeit{std::int64_t{woche} * 604800, 0.0}, sekunde_der_woche);
}

Kalenderzeit kalenderzeit(const GpsZeit& zeit)
{
    const Zeitpunkt z = zeitpunkt_aus_sekunden(zeit.sekunde + ANFANG * 86400);
    return {z.jahr, z.monat, z.tag, z.stunde, z.minute, z.sekunde + zeit.bruch};
}

std::string zeittext(const GpsZeit& zeit)
{
    const Zeitpunkt z = zeitpunkt_aus_sekunden(auf_sekunde(zeit).sekunde + ANFANG * 86400);
    return verkettet(tag_text(z), " ", uhrzeit_text(z));
}

int tag_im_jahr(const GpsZeit& zeit)
{
    const Kalenderzeit k = kalenderzeit(zeit);
    return tag_des_jahres(k.jahr, k.monat, k.tag);
}

}  // namespace jorv::suite
