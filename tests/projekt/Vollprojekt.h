// A project in which every array has rows and every field a value of its own.
#pragma once

#include <string>

#include "modell/Global.h"
#include "planung/Beobachtungen.h"
#include "plattform/text.h"

namespace jorv::hilfen {

inline OBS volle_beobachtung(std::string_view name, std::int16_t tag)
{
    OBS o = beobachtung(name, "08:01:02", "10:11:12");
    o.Tag = tag;
    o.Antenne = "1234567             LEIAX1202GG     NONE";
    return o;
}

inline Punkt voller_punkt(std::string_view kennzeichen, double plus)
{
    Punkt p = punkt(kennzeichen, 565123.456 + plus, 5812345.5 + plus);
    p.X = 3770000.125 + plus;
    p.Y = -0.5 - plus;
    p.Z = 5070000 + plus;
    return p;
}

inline ROVER_Settings_Satz volle_einstellung(std::string_view name, int satelliten)
{
    ROVER_Settings_Satz s;
    s.ROVER_Dateiname = name;
    s.Ein_Ausschalterkennung = 0;
    s.StartTime = 80102;
    s.EndTime = 101112;
    s.Elevation = 10;
    s.EpochRate = 15;
    s.DelFirstMinutes = 3;
    s.DelLastMinutes = 4;
    s.Solution = 1;
    s.AnzahlDelSatellite = satelliten;
    for (int i = 1; i <= satelliten; ++i) {
        s.DelSatelliteName[static_cast<std::size_t>(i)] = verkettet(i % 2 != 0 ? "G" : "R", i < 10 ? "0" : "", i);
        s.DelSatellite[static_cast<std::size_t>(i)] = i % 3 == 0 ? 0 : 1;
    }
    return s;
}

inline void basislinie(Global& g, std::string_view von, std::string_view nach)
{
    BASISLINIE_Satz b;
    b.PKK_von = mitte(von, 1, 4);
    b.Datei_von = von;
    b.PKK_nach = mitte(nach, 1, 4);
    b.Datei_nach = nach;
    (void)g.BASISLINIE.anfuegen(b);
}

inline void volles_projekt(Global& g)
{
    for (const char* name : {"5501001a.14o", "55 2001a.14o"}) {
        (void)g.OBS_R.anfuegen(volle_beobachtung(name, 1));
        (void)g.R_Punkt.anfuegen(voller_punkt(links(name, 4), 1));
        (void)g.RINEX_Dateien.anfuegen(name);
    }
    (void)g.ROVER_Settings.anfuegen(volle_einstellung("5501001a.14o", 3));
    (void)g.ROVER_Settings.anfuegen(volle_einstellung("55 2001a.14o", 70));  // a row of more than 254 characters
    (void)g.OBS_S.anfuegen(volle_beobachtung("0590001a.14o", 2));
    (void)g.S_Punkt.anfuegen(voller_punkt("0590", 2));
    (void)g.OBS_V.anfuegen(volle_beobachtung("virt5501001a.14o", 365));
    (void)g.V_Punkt.anfuegen(voller_punkt("virt", 3));
    ROVER_TOREL_Satz t;
    t.ROVER_Dateiname = "5501001a.14o";
    t.Anzahl = 2;
    t.TOREL_Dateiname = {"0590001a.14o", "05 1001a.14o", "", ""};
    t.Status = 2;
    t.Grund = 2;
    t.Schutz = true;
    t.Zeitfenster_Startzeit = "80102";
    t.Zeitfenster_Endzeit = "101112";
    (void)g.ROVER_TOREL.anfuegen(t);
    t = {};
    t.ROVER_Dateiname = "55 2001a.14o";
    (void)g.ROVER_TOREL.anfuegen(t);
    ROVER_VIRT_Satz v;
    v.ROVER_Dateiname = "5501001a.14o";
    v.VIRT_Dateiname = "virt5501001a.14o";
    v.VIRT_Index = 1;
    v.Strecke = 1234.5678901;
    (void)g.ROVER_VIRT.anfuegen(v);
    v = {};
    v.ROVER_Dateiname = "55 2001a.14o";
    (void)g.ROVER_VIRT.anfuegen(v);
    (void)g.GEO_Punkt.anfuegen(figur({punkt("0590", 0, 0.5), punkt("Süd 1", 1000.25, 0), punkt("0592", -7.125, 999)}));
    (void)g.GEO_Punkt.anfuegen(figur({punkt("0590", 1, 2)}));  // an unfinished one
    basislinie(g, "5501001a.14o", "55 2001a.14o");
    (void)g.Antennen_Dateien.anfuegen("leica ant.atx");
    (void)g.Antennen_Dateien.anfuegen("igs08,neu.atx");
    g.Y_min = 560000.5, g.Y_max = 570000.25, g.X_min = 5810000, g.X_max = 5820000, g.Faktor = 12.5;
    g.KNOTEN = {"1", "1", "0", "1", "0", "1", "1", "0"};
    g.Zeitfenster_1h = "1";
    g.Auswertemodus = "L0";
}

/// Every array of a project as text, one row a line, for comparisons that name what differs.
inline std::string abbild_als_text(const Global& g)
{
    std::string t;
    const auto zeile = [&](const auto&... teile) {
        ((t += teile, t += '|'), ...);
        t += '\n';
    };
    const auto z = [](double wert) { return std::to_string(wert); };
    const auto obs = [&](const Feld<OBS>& feld) {
        for (const auto& o : feld)
            zeile(o.Dateiname, o.Punktkennzeichen, z(o.Tag), o.Antenne, datum_text(o.Startzeit()),
                  datum_text(o.Endzeit()), z(o.Startzeit_GPS_Sekunde), z(o.Endzeit_GPS_Sekunde));
    };
    const auto punkte = [&](const Feld<Punkt>& feld) {
        for (const auto& p : feld) zeile(p.Punktkennzeichen, z(p.Rechtswert), z(p.Hochwert), z(p.X), z(p.Y), z(p.Z));
    };
    obs(g.OBS_R), obs(g.OBS_S), obs(g.OBS_V);
    punkte(g.R_Punkt), punkte(g.S_Punkt), punkte(g.V_Punkt);
    for (const auto& r : g.ROVER_TOREL)
        zeile(r.ROVER_Dateiname, z(r.Anzahl), r.TOREL_Dateiname[0], r.TOREL_Dateiname[1], r.TOREL_Dateiname[2],
              r.TOREL_Dateiname[3], z(r.Status), z(r.Grund), z(r.Schutz), r.Zeitfenster_Startzeit,
              r.Zeitfenster_Endzeit);
    for (const auto& v : g.ROVER_VIRT)
        zeile(v.ROVER_Dateiname, v.VIRT_Dateiname, z(v.VIRT_Index), std::to_string(v.Strecke * 1e6));
    for (const auto& s : g.ROVER_Settings) {
        zeile(s.ROVER_Dateiname, z(s.Ein_Ausschalterkennung), z(s.StartTime), z(s.EndTime), z(s.Elevation),
              z(s.EpochRate), z(s.DelFirstMinutes), z(s.DelLastMinutes), z(s.Solution), z(s.AnzahlDelSatellite));
        for (std::size_t i = 0; i < s.DelSatellite.size(); ++i) zeile(s.DelSatelliteName[i], z(s.DelSatellite[i]));
    }
    for (const auto& f : g.GEO_Punkt)
        for (std::size_t i = 0; i < 4; ++i) zeile(z(f.Anzahl), f.Punkt[i], z(f.Rechtswert[i]), z(f.Hochwert[i]));
    for (const auto& b : g.BASISLINIE) zeile(b.PKK_von, b.Datei_von, b.PKK_nach, b.Datei_nach);
    for (const auto& name : g.RINEX_Dateien) zeile(name);
    for (const auto& name : g.Antennen_Dateien) zeile(name);
    zeile(z(g.Y_min), z(g.Y_max), z(g.X_min), z(g.X_max), z(g.Faktor));
    for (const auto& k : g.KNOTEN) zeile(k);
    zeile(g.Verfahrensname, g.Verfahrensnummer, g.Verfahrensmodus, g.Arbeitsverzeichnis, g.Zeitfenster_1h,
          g.Auswertemodus);
    return t;
}

}  // namespace jorv::hilfen
