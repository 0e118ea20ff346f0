#pragma once
// GPS time as whole seconds since 6.1.1980 plus a fraction, so that differences keep nanoseconds over decades,
// and its civil form. No leap seconds anywhere: RINEX tags, broadcast orbits and the results all run in GPS time.

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>

namespace jorv::suite {

struct GpsZeit {
    std::int64_t sekunde = 0;  // since 6.1.1980 00:00:00 GPS
    double bruch = 0.0;        // 0 <= bruch < 1
    auto operator<=>(const GpsZeit&) const = default;
};

/// A span of GPS time, both ends included.
struct Zeitspanne {
    GpsZeit von, bis;
};

struct Kalenderzeit {
    int jahr = 0, monat = 0, tag = 0, stunde = 0, minute = 0;
    double sekunde = 0.0;
};

/// a - b in seconds.
inline double abstand(const GpsZeit& a, const GpsZeit& b)
{
    return static_cast<double>(a.sekunde - b.sekunde) + (a.bruch - b.bruch);
}

/// The instant `sekunden` after `zeit` (negative: before).
inline GpsZeit verschoben(const GpsZeit& zeit, double sekunden)
{
    const double ganz = std::floor(sekunden + zeit.bruch);
    return {zeit.sekunde + static_cast<std::int64_t>(ganz), sekunden + zeit.bruch - ganz};
}

/// Rounded to the full second: time tags lie some milliseconds beside it, also on the other side of midnight.
inline GpsZeit auf_sekunde(const GpsZeit& zeit)
{
    return {verschoben(zeit, 0.5).sekunde, 0.0};
}

/// "dd.mm.yyyy hh:mm:ss", rounded to the full second.
std::string zeittext(const GpsZeit& zeit);

/// Full year of a two-digit one (80-99 and 00-79), other years unchanged.
inline int volles_jahr(int jahr)
{
    return jahr < 0 || jahr > 99 ? jahr : jahr + (jahr >= 80 ? 1900 : 2000);
}

/// GPS time of a civil date; a second of 60 (and a fraction that rounds up) is taken as the next minute.
/// Nothing for an impossible date or time of day and for dates before 6.1.1980.
std::optional<GpsZeit> gps_zeit(const Kalenderzeit& k);

/// GPS time of a week since 6.1.1980 and seconds in it; a whole week may lie beyond the 1024 of the broadcast count.
GpsZeit gps_zeit(int woche, double sekunde_der_woche);

Kalenderzeit kalenderzeit(const GpsZeit& zeit);

/// Day of the year, 1 to 366, and the two digits of the year as RINEX file names carry them.
int tag_im_jahr(const GpsZeit& zeit);

inline int woche(const GpsZeit& zeit)
{
    return static_cast<int>(zeit.sekunde / 604800);
}
inline int wochentag(const GpsZeit& zeit)
{
    return static_cast<int>(zeit.sekunde % 604800 / 86400);
}

}  // namespace jorv::suite
