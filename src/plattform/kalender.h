// Civil dates and times without time zones (observation times are GPS time, project dates local time), and their German
// text.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace jorv {

/// A civil instant to the whole second. Gregorian calendar; a second of 60 is allowed and counts on.
struct Zeitpunkt {
    int jahr = 0, monat = 0, tag = 0, stunde = 0, minute = 0, sekunde = 0;
};

/// Days since 1 January 1970 and back (proleptic Gregorian calendar).
std::int64_t tage_seit_1970(int jahr, int monat, int tag);
Zeitpunkt datum_aus_tagen(std::int64_t tage);

/// Seconds since 1 January 1970 00:00:00 in the instant's own time scale, and back. Fields out of range count on.
std::int64_t sekunden_seit_1970(const Zeitpunkt& zeit);
Zeitpunkt zeitpunkt_aus_sekunden(std::int64_t sekunden);

bool ist_datum(int jahr, int monat, int tag);
int tag_des_jahres(int jahr, int monat, int tag);

/// Calendar minute difference bis - von: both instants are cut to whole minutes first.
std::int64_t minuten_zwischen(const Zeitpunkt& von, const Zeitpunkt& bis);

/// Order of two instants (by seconds, so 10:59:60 equals 11:00:00).
std::strong_ordering operator<=>(const Zeitpunkt& a, const Zeitpunkt& b);
bool operator==(const Zeitpunkt& a, const Zeitpunkt& b);

/// "dd.mm.yyyy hh:mm:ss"; exactly midnight gives "dd.mm.yyyy" alone.
std::string datum_text(const Zeitpunkt& zeit);
/// "dd.mm.yyyy" and "hh:mm:ss".
std::string tag_text(const Zeitpunkt& zeit);
std::string uhrzeit_text(const Zeitpunkt& zeit);

/// Reads "d.m.yyyy" with an optional " h:m[:s]"; nothing when it is no date.
std::optional<Zeitpunkt> datum_lesen(std::string_view text);

/// Hour, minute, second as the decimal number HHMMSS.
constexpr std::int32_t hhmmss(const Zeitpunkt& zeit)
{
    return zeit.stunde * 10000 + zeit.minute * 100 + zeit.sekunde;
}

}  // namespace jorv
