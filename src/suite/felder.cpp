#include "suite/felder.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "plattform/text.h"
#include "plattform/zahl.h"
#include "suite/spalten.h"

namespace jorv::suite {

namespace {

constexpr double MM = 1000.0;
constexpr int PKZ_BREITE = 4;

struct Feld {
    std::string_view code;
    // `hinter_sigma`: the list had the field SDV before. There day and PDOP have another form, as the third list of a
    // baseline wants them.
    std::string (*text)(const Ergebnis& e, bool hinter_sigma);
};

std::string links_in(std::string_view text, std::size_t breite)
{
    std::string feld;
    anhaengen_links(feld, text, breite);
    return feld;
}

std::string gruppe(std::initializer_list<double> werte, int breite, int stellen)
{
    std::string feld;
    for (const double wert : werte) feld += feldwert(wert, breite, stellen, true);
    return feld;
}

std::string koordinaten(const Ergebnis& e)
{
    const Geographisch ort = geographisch(e.rover);
    const Utm eben = utm(ort, e.zone);
    return feldwert(eben.rechtswert, 15, 4, true) + feldwert(eben.hochwert, 15, 4, true) +
           feldwert(ort.hoehe, 13, 4, true);
}

std::string tag(const Ergebnis& e, bool hinter_sigma)
{
    const std::string nummer = verkettet(tag_im_jahr(auf_sekunde(e.beginn)));
    if (!hinter_sigma) return std::string(3 - std::min<std::size_t>(3, nummer.size()), '0') + nummer;
    const std::string woche_und_tag = verkettet(woche(auf_sekunde(e.beginn)), "/", wochentag(auf_sekunde(e.beginn)));
    return std::string(6 - std::min<std::size_t>(6, woche_und_tag.size()), ' ') + woche_und_tag;
}

std::string uhrzeit(const GpsZeit& zeit)
{
    const Kalenderzeit k = kalenderzeit(auf_sekunde(zeit));
    const int zahl = 10000 + k.stunde * 100 + k.minute;
    return verkettet(zahl).substr(1);
}

std::string sitzung(const Ergebnis& e)
{
    const std::string_view zeichen = mitte(e.rover_datei, 8, 1);
    return zeichen.empty() || zeichen == "." ? " " : std::string(zeichen);
}

constexpr std::array<Feld, 22> FELDER = {{
    {"NS1", [](const Ergebnis& e, bool) { return links_in(e.basis_datei, PKZ_BREITE); }},
    {"NS2", [](const Ergebnis& e, bool) { return links_in(e.rover_datei, PKZ_BREITE); }},
    {"NL2", [](const Ergebnis& e, bool) { return links_in(e.rover_marke, 20); }},
    {"CU2", [](const Ergebnis& e, bool) { return koordinaten(e); }},
    {"DOY", tag},
    {"SES", [](const Ergebnis& e, bool) { return sitzung(e); }},
    {"TDM", [](const Ergebnis& e, bool) { return feldwert(e.minuten, 7, 1, false); }},
    {"BSU",
     [](const Ergebnis& e, bool) {
         return gruppe({e.sigma_enu.e * MM, e.sigma_enu.n * MM, e.sigma_enu.u * MM}, 7, 2);
     }},
    {"STY", [](const Ergebnis& e, bool) { return links_in(e.loesungstyp, 10); }},
    {"AMB", [](const Ergebnis& e, bool) { return feldwert(e.mehrdeutigkeiten, 5, 1, false); }},
    {"SDV", [](const Ergebnis& e, bool) { return feldwert(e.sigma0 * MM, 9, 2, false); }},
    {"SVA", [](const Ergebnis& e, bool) { return feldwert(e.satelliten, 4, 1, false); }},
    {"PDM", [](const Ergebnis& e, bool) { return feldwert(e.pdop_beste, 9, 1, false); }},
    {"ROB", [](const Ergebnis& e, bool) { return feldwert(e.umgewichtet, 5, 1, false); }},
    {"PDA",
     [](const Ergebnis& e, bool hinter_sigma) { return feldwert(e.pdop_mittel, hinter_sigma ? 6 : 9, 1, false); }},
    {"AH2", [](const Ergebnis& e, bool) { return feldwert(e.antennenhoehe, 7, 3, false); }},
    {"AT2", [](const Ergebnis& e, bool) { return links_in(e.antennentyp, 20); }},
    {"TSH", [](const Ergebnis& e, bool) { return uhrzeit(e.beginn); }},
    {"BCX",
     [](const Ergebnis& e, bool) {
         const Xyz d = e.basislinie();
         return gruppe({d.x * MM, d.y * MM, d.z * MM}, 12, 1);
     }},
    {"BLE", [](const Ergebnis& e, bool) { return feldwert(laenge(e.basislinie()) * MM, 12, 1, false); }},
    {"BSX",
     [](const Ergebnis& e, bool) {
         return gruppe({e.sigma.x * MM, e.sigma.y * MM, e.sigma.z * MM}, 7, 2);
     }},
    {"BXX",
     [](const Ergebnis& e, bool) {
         return gruppe({e.r_xy, e.r_yz, e.r_zx}, 7, 3);
     }},
}};

const Feld* feld_finden(std::string_view code)
{
    const auto feld =
        std::find_if(FELDER.begin(), FELDER.end(), [&](const Feld& f) { return !code.empty() && f.code == code; });
    return feld == FELDER.end() ? nullptr : &*feld;
}

}  // namespace

bool feld_bekannt(std::string_view code)
{
    return feld_finden(code) != nullptr;
}

std::string feldwert(double wert, int breite, int stellen, bool luft)
{
    const auto platz = static_cast<std::size_t>(breite);
    for (int s = stellen; s >= 0; --s) {
        const std::string text = fest(wert, s);
        if (text.size() + (luft ? 1 : 0) > platz) continue;
        return std::string(platz - text.size(), ' ') + text;
    }
    return luft ? " " + std::string(platz - 1, '*') : std::string(platz, '*');
}

std::string feldzeile(const std::vector<std::string>& codes, const Ergebnis& ergebnis)
{
    std::string zeile;
    bool hinter_sigma = false;
    std::string_view vorher;
    for (const std::string& code : codes) {
        const Feld* feld = feld_finden(code);
        if (!feld) continue;
        // A list begins with the names of the points.
        const bool listenanfang = code == "NS1" || ((code == "NS2" || code == "NL2") && vorher != "NS1");
        hinter_sigma = (hinter_sigma && !listenanfang) || code == "SDV";
        if (!zeile.empty()) zeile += ' ';
        zeile += feld->text(ergebnis, hinter_sigma && code != "SDV");
        vorher = code;
    }
    return zeile;
}

}  // namespace jorv::suite
