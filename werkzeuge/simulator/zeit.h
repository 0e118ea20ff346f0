// Calendar and GPS time of a scenario. Inside the simulator a time is a double: seconds since 0 h of the scenario's
// day.
#pragma once

#include <chrono>

#include "simulator/simulator.h"

namespace jorv::simulator {

inline constexpr double tageslaenge = 86400;
inline constexpr double wochenlaenge = 7 * tageslaenge;

inline std::chrono::sys_days tageszahl(const Kalendertag& tag)
{
    using namespace std::chrono;
    return sys_days{year{tag.jahr} / month{static_cast<unsigned>(tag.monat)} / day{static_cast<unsigned>(tag.tag)}};
}

/// The day `tage` days later.
inline Kalendertag spaeter(const Kalendertag& tag, int tage)
{
    const std::chrono::year_month_day d{tageszahl(tag) + std::chrono::days{tage}};
    return {static_cast<int>(d.year()), static_cast<int>(static_cast<unsigned>(d.month())),
            static_cast<int>(static_cast<unsigned>(d.day()))};
}

/// Days since 6 January 1980.
inline int gps_tag(const Kalendertag& tag)
{
    return static_cast<int>((tageszahl(tag) - tageszahl({1980, 1, 6})).count());
}

/// 1 to 366.
inline int tag_im_jahr(const Kalendertag& tag)
{
    return static_cast<int>((tageszahl(tag) - tageszahl({tag.jahr, 1, 1})).count()) + 1;
}

/// GPS time minus UTC in seconds at the beginning of the day.
inline int schaltsekunden(const Kalendertag& tag)
{
    constexpr struct {
        Kalendertag ab;
        int sekunden;
    } tafel[] = {{{2017, 1, 1}, 18}, {{2015, 7, 1}, 17}, {{2012, 7, 1}, 16}, {{2009, 1, 1}, 15},
                 {{2006, 1, 1}, 14}, {{1999, 1, 1}, 13}, {{1997, 7, 1}, 12}, {{1996, 1, 1}, 11}};
    for (const auto& zeile : tafel) {
        if (tageszahl(tag) >= tageszahl(zeile.ab)) return zeile.sekunden;
    }
    return 10;
}

/// An epoch taken apart for printing: whole 1e-7 seconds, so that 59.99999999 never appears.
struct Epoche {
    Kalendertag tag;
    int stunde = 0, minute = 0;
    double sekunde = 0;
};

Epoche zerlegen(const Kalendertag& tag, double t);

}  // namespace jorv::simulator
