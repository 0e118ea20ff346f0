#include "simulator/rinex.h"

#include <algorithm>
#include <cmath>

#include "simulator/atmosphaere.h"
#include "simulator/messung.h"
#include "simulator/text.h"
#include "simulator/zeit.h"

namespace jorv::simulator {

Epoche zerlegen(const Kalendertag& tag, double t)
{
    const long long takte = std::llround(t * 1e7), am_tag = 864000000000;
    const long long tage = takte >= 0 ? takte / am_tag : -((am_tag - 1 - takte) / am_tag);
    const long long rest = takte - tage * am_tag;
    return {spaeter(tag, static_cast<int>(tage)), static_cast<int>(rest / 36000000000),
            static_cast<int>(rest / 600000000 % 60), static_cast<double>(rest % 600000000) * 1e-7};
}

namespace {

constexpr std::string_view monate[] = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                       "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};

void erzeuger(std::string& aus, const Kalendertag& tag)
{
    std::string inhalt;
    links(inhalt, "jorv-simulator", 20);
    links(inhalt, "Jorv", 20);
    ganz(inhalt, tag.tag, 2, '0');
    inhalt += '-';
    inhalt += monate[tag.monat - 1];
    inhalt += '-';
    ganz(inhalt, tag.jahr % 100, 2, '0');
    inhalt += " 00:00";
    kopfzeile(aus, inhalt, "PGM / RUN BY / DATE");
}

void zeitzeile(std::string& aus, const Kalendertag& tag, double t, std::string_view label)
{
    const Epoche e = zerlegen(tag, t);
    std::string inhalt;
    for (const int wert : {e.tag.jahr, e.tag.monat, e.tag.tag, e.stunde, e.minute}) ganz(inhalt, wert, 6);
    fest(inhalt, e.sekunde, 13, 7);
    inhalt += "     GPS";
    kopfzeile(aus, inhalt, label);
}

std::string satellitenname(const Satellit& s)
{
    std::string name(1, s.system);
    ganz(name, s.nummer, 2, '0');
    return name;
}

void drei(std::string& aus, Vektor v, std::string_view label)
{
    std::string inhalt;
    for (const double wert : {v.x, v.y, v.z}) fest(inhalt, wert, 14, 4);
    kopfzeile(aus, inhalt, label);
}

std::string beobachtungskopf(const Szenario& szenario, const Punkt& punkt, double erste, double letzte)
{
    std::string k, zeile;
    kopfzeile(k,
              szenario.glonass ? "     2.11           OBSERVATION DATA    M (MIXED)"
                               : "     2.11           OBSERVATION DATA    G (GPS)",
              "RINEX VERSION / TYPE");
    erzeuger(k, szenario.tag);
    kopfzeile(k, "SIMULATED OBSERVATIONS", "COMMENT");
    kopfzeile(k, punkt.name.empty() ? punkt.pkz : punkt.name, "MARKER NAME");
    kopfzeile(k, punkt.pkz, "MARKER NUMBER");
    kopfzeile(k, "SIMULATOR           JORV", "OBSERVER / AGENCY");
    kopfzeile(k, "1                   JORV-SIMULATOR      1.0", "REC # / TYPE / VERS");
    const auto antenne = std::find_if(szenario.antennen.begin(), szenario.antennen.end(),
                                      [&](const Antenne& a) { return a.nummer == punkt.antenne; });
    if (antenne != szenario.antennen.end()) {
        links(zeile, antenne->nummer, 20);
        links(zeile, antenne->typ, 20);
    } else {
        zeile = "0                   UNKNOWN         NONE";
    }
    kopfzeile(k, zeile, "ANT # / TYPE");
    drei(k, punkt.ort + punkt.naeherung, "APPROX POSITION XYZ");
    drei(k, {punkt.antennenhoehe, 0, 0}, "ANTENNA: DELTA H/E/N");
    kopfzeile(k, "     1     1", "WAVELENGTH FACT L1/2");
    kopfzeile(k,
              szenario.signalstaerke ? "     6    C1    L1    P2    L2    S1    S2" : "     4    C1    L1    P2    L2",
              "# / TYPES OF OBSERV");
    zeile.clear();
    fest(zeile, punkt.takt, 10, 3);
    kopfzeile(k, zeile, "INTERVAL");
    zeitzeile(k, szenario.tag, erste, "TIME OF FIRST OBS");
    if (punkt.endzeit_im_kopf) zeitzeile(k, szenario.tag, letzte, "TIME OF LAST OBS");
    if (szenario.glonass) {
        zeile.clear();
        ganz(zeile, schaltsekunden(szenario.tag), 6);
        kopfzeile(k, zeile, "LEAP SECONDS");
    }
    kopfzeile(k, "", "END OF HEADER");
    return k;
}

void epochenzeile(std::string& aus, const Szenario& szenario, double t, const std::vector<Messwert>& werte,
                  const Bahnen& bahnen)
{
    const Epoche e = zerlegen(szenario.tag, t);
    aus += ' ';
    ganz(aus, e.tag.jahr % 100, 2, '0');
    for (const int wert : {e.tag.monat, e.tag.tag, e.stunde, e.minute}) ganz(aus, wert, 3);
    fest(aus, e.sekunde, 11, 7);
    aus += "  0";
    ganz(aus, static_cast<long long>(werte.size()), 3);
    for (std::size_t i = 0; i < werte.size(); ++i) {
        if (i > 0 && i % 12 == 0) aus.append("\n").append(32, ' ');
        aus += satellitenname(bahnen.satelliten()[werte[i].satellit]);
    }
    aus += '\n';
}

void messwertzeilen(std::string& aus, const Szenario& szenario, const Messwert& wert)
{
    for (std::size_t f = 0; f < 2; ++f) {
        fest(aus, wert.code[f], 14, 3);
        aus += "  ";
        fest(aus, wert.phase[f], 14, 3);
        aus += wert.verloren[f] ? '1' : ' ';
        aus += static_cast<char>('0' + std::clamp(static_cast<int>(wert.staerke[f] / 6), 1, 9));
    }
    if (szenario.signalstaerke) {
        // Five observations a line, so S2 stands alone on the second.
        fest(aus, wert.staerke[0], 14, 3);
        aus += '\n';
        fest(aus, wert.staerke[1], 14, 3);
    }
    aus += '\n';
}

bool in_luecke(const Punkt& punkt, double t)
{
    return std::any_of(punkt.luecken.begin(), punkt.luecken.end(),
                       [t](const Luecke& l) { return t >= l.von && t <= l.bis; });
}

}  // namespace

Beobachtungstext beobachtungen(const Szenario& szenario, const Punkt& punkt, const Bahnen& bahnen)
{
    Beobachtungstext text;
    text.gesehen.resize(bahnen.satelliten().size());
    Empfaenger empfaenger(szenario, punkt, bahnen);
    std::vector<Messwert> werte;
    double erste = 0, letzte = 0;
    const auto epochen = static_cast<long long>(std::floor((punkt.bis - punkt.von) / punkt.takt + 1e-6));
    for (long long i = 0; i <= epochen; ++i) {
        const double t = punkt.von + static_cast<double>(i) * punkt.takt;
        if (in_luecke(punkt, t)) continue;
        empfaenger.messen(t, werte);
        if (werte.empty()) continue;
        if (text.koerper.empty()) erste = t;
        letzte = t;
        epochenzeile(text.koerper, szenario, t, werte, bahnen);
        for (const Messwert& wert : werte) {
            messwertzeilen(text.koerper, szenario, wert);
            text.gesehen[wert.satellit] = true;
        }
    }
    text.kopf = beobachtungskopf(szenario, punkt, erste, letzte);
    return text;
}

namespace {

void satzbeginn(std::string& aus, int nummer, const Epoche& e)
{
    ganz(aus, nummer, 2);
    aus += ' ';
    ganz(aus, e.tag.jahr % 100, 2, '0');
    for (const int wert : {e.tag.monat, e.tag.tag, e.stunde, e.minute}) ganz(aus, wert, 3);
    fest(aus, e.sekunde, 5, 1);
}

void viererzeile(std::string& aus, std::initializer_list<double> werte)
{
    aus += "   ";
    for (const double wert : werte) exponent(aus, wert);
    aus += '\n';
}

void gps_satz(std::string& aus, const Szenario& szenario, const Satellit& s, const Bahnsatz& b)
{
    satzbeginn(aus, s.nummer, zerlegen(szenario.tag, b.toe));
    for (const double wert : {b.af0, b.af1, b.af2}) exponent(aus, wert);
    aus += '\n';
    viererzeile(aus, {static_cast<double>(b.iode), b.crs, b.delta_n, b.m0});
    viererzeile(aus, {b.cuc, b.e, b.cus, b.wurzel_a});
    viererzeile(aus, {b.wochensekunde, b.cic, b.omega0, b.cis});
    viererzeile(aus, {b.i0, b.crc, b.omega, b.omega_punkt});
    viererzeile(aus, {b.i_punkt, 1, static_cast<double>(b.woche), 0});
    viererzeile(aus, {2, 0, b.tgd, static_cast<double>(b.iode)});
    viererzeile(aus, {b.wochensekunde - 7200, 4, 0, 0});
}

void glonass_satz(std::string& aus, const Szenario& szenario, const Satellit& s, const Glonasssatz& satz)
{
    const double utc = satz.t - schaltsekunden(szenario.tag);
    satzbeginn(aus, s.nummer, zerlegen(szenario.tag, utc));
    const double wochensekunde = (gps_tag(szenario.tag) % 7) * tageslaenge + utc;
    for (const double wert :
         {satz.uhr, satz.uhrgang, wochensekunde - wochenlaenge * std::floor(wochensekunde / wochenlaenge)}) {
        exponent(aus, wert);
    }
    aus += '\n';
    const Vektor p = 1e-3 * satz.bewegung.ort, v = 1e-3 * satz.bewegung.tempo;
    viererzeile(aus, {p.x, v.x, 0, 0});
    viererzeile(aus, {p.y, v.y, 0, static_cast<double>(s.glonass->kanal)});
    viererzeile(aus, {p.z, v.z, 0, 0});
}

/// The broadcast model has a vertical delay of 5 ns at night; its daily wave carries what the mean content has more.
double tageswelle(const Ionosphaere& ionosphaere)
{
    return std::max(0.0, ionosphaere_laufzeit(ionosphaere.vtec, f_l1) / lichtgeschwindigkeit - 5e-9);
}

void ionosphaerenzeile(std::string& aus, std::initializer_list<double> werte, std::string_view label)
{
    std::string zeile = "  ";
    for (const double wert : werte) exponent(zeile, wert, 12, 4);
    kopfzeile(aus, zeile, label);
}

std::string navigationskopf(const Szenario& szenario, std::string_view art)
{
    std::string k, zeile;
    kopfzeile(k, art, "RINEX VERSION / TYPE");
    erzeuger(k, szenario.tag);
    if (art.find("GLONASS") == std::string_view::npos) {
        ionosphaerenzeile(k, {tageswelle(szenario.wirkungen.ionosphaere), 0, 0, 0}, "ION ALPHA");
        ionosphaerenzeile(k, {131072, 0, 0, 0}, "ION BETA");
    }
    ganz(zeile, schaltsekunden(szenario.tag), 6);
    kopfzeile(k, zeile, "LEAP SECONDS");
    kopfzeile(k, "", "END OF HEADER");
    return k;
}

}  // namespace

std::string navigation_gps(const Szenario& szenario, const Punkt& punkt, const Bahnen& bahnen,
                           const std::vector<bool>& gesehen)
{
    std::string aus = navigationskopf(szenario, "     2.11           N: GPS NAV DATA");
    for (std::size_t i = 0; i < gesehen.size(); ++i) {
        const Satellit& s = bahnen.satelliten()[i];
        if (!gesehen[i] || s.system != 'G') continue;
        for (const Bahnsatz& b : s.saetze) {
            if (b.toe > punkt.von - 7200 && b.toe < punkt.bis + 7200) gps_satz(aus, szenario, s, b);
        }
    }
    return aus;
}

std::string navigation_glonass(const Szenario& szenario, const Punkt& punkt, const Bahnen& bahnen,
                               const std::vector<bool>& gesehen)
{
    std::string aus = navigationskopf(szenario, "     2.11           GLONASS NAV DATA");
    for (std::size_t i = 0; i < gesehen.size(); ++i) {
        const Satellit& s = bahnen.satelliten()[i];
        if (!gesehen[i] || !s.glonass) continue;
        for (const Glonasssatz& satz : s.glonass->saetze) {
            if (satz.t > punkt.von - 1800 && satz.t < punkt.bis + 1800) glonass_satz(aus, szenario, s, satz);
        }
    }
    return aus;
}

}  // namespace jorv::simulator
