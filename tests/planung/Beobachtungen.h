// Short ways to put observation records and points into a project.
#pragma once

#include <string>
#include <string_view>

#include "modell/Global.h"
#include "plattform/kalender.h"
#include "plattform/text.h"

namespace jorv::hilfen {

/// 1 January 2014 plus seconds.
inline Zeitpunkt am_tag(std::int64_t sekunden)
{
    return zeitpunkt_aus_sekunden(sekunden_seit_1970({2014, 1, 1, 0, 0, 0}) + sekunden);
}

/// "10:00:30" in seconds of the day; "24:10:00" goes on into the next one.
inline std::int64_t uhrzeit(std::string_view text)
{
    const auto zahl = [&](std::size_t stelle) { return (text[stelle] - '0') * 10 + text[stelle + 1] - '0'; };
    return zahl(0) * 3600 + zahl(3) * 60 + zahl(6);
}

inline OBS beobachtung(std::string_view name, std::int64_t von, std::int64_t bis, std::int16_t tag = 1)
{
    OBS o;
    o.Dateiname = name;
    o.Punktkennzeichen = mitte(name, 1, 4);
    o.Tag = tag;
    const auto kurz = [](int wert) { return static_cast<std::int16_t>(wert); };
    const Zeitpunkt a = am_tag(von), e = am_tag(bis);
    o.Startzeit_Jahr = kurz(a.jahr), o.Startzeit_Monat = kurz(a.monat), o.Startzeit_Tag = kurz(a.tag);
    o.Startzeit_Stunde = kurz(a.stunde), o.Startzeit_Minute = kurz(a.minute), o.Startzeit_Sekunde = kurz(a.sekunde);
    o.Endzeit_Jahr = kurz(e.jahr), o.Endzeit_Monat = kurz(e.monat), o.Endzeit_Tag = kurz(e.tag);
    o.Endzeit_Stunde = kurz(e.stunde), o.Endzeit_Minute = kurz(e.minute), o.Endzeit_Sekunde = kurz(e.sekunde);
    o.Startzeit_GPS_Sekunde = hhmmss(a);
    o.Endzeit_GPS_Sekunde = hhmmss(e);
    return o;
}

inline OBS beobachtung(std::string_view name, std::string_view von, std::string_view bis)
{
    return beobachtung(name, uhrzeit(von), uhrzeit(bis));
}

inline Punkt punkt(std::string_view kennzeichen, double rechtswert, double hochwert)
{
    Punkt p;
    p.Punktkennzeichen = kennzeichen;
    p.Rechtswert = rechtswert;
    p.Hochwert = hochwert;
    return p;
}

inline void rover(Global& g, OBS o, double rechtswert, double hochwert)
{
    (void)g.R_Punkt.anfuegen(punkt(o.Punktkennzeichen, rechtswert, hochwert));
    ROVER_Settings_Satz s;
    s.ROVER_Dateiname = o.Dateiname;
    (void)g.ROVER_Settings.anfuegen(s);
    (void)g.OBS_R.anfuegen(std::move(o));
}

inline void station(Global& g, OBS o, double rechtswert = 0, double hochwert = 0)
{
    (void)g.S_Punkt.anfuegen(punkt(o.Punktkennzeichen, rechtswert, hochwert));
    (void)g.OBS_S.anfuegen(std::move(o));
}

inline void fremde(Global& g, OBS o, double rechtswert, double hochwert)
{
    (void)g.V_Punkt.anfuegen(punkt(o.Punktkennzeichen, rechtswert, hochwert));
    (void)g.OBS_V.anfuegen(std::move(o));
}

inline GEO_Punkt_Satz figur(std::initializer_list<Punkt> ecken)
{
    GEO_Punkt_Satz f;
    for (const auto& ecke : ecken) {
        const auto i = static_cast<std::size_t>(f.Anzahl++);
        f.Punkt[i] = ecke.Punktkennzeichen;
        f.Rechtswert[i] = ecke.Rechtswert;
        f.Hochwert[i] = ecke.Hochwert;
    }
    return f;
}

}  // namespace jorv::hilfen
