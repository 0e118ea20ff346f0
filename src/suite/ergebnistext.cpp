#include "suite/ergebnistext.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <utility>

#include "plattform/text.h"
#include "plattform/zahl.h"
#include "suite/spalten.h"

namespace jorv::suite {

namespace {

constexpr double MM = 1000.0;

using Matrix = std::array<std::array<double, 3>, 3>;

Matrix kovarianz(const Ergebnis& e)
{
    const double xy = e.r_xy * e.sigma.x * e.sigma.y, yz = e.r_yz * e.sigma.y * e.sigma.z,
                 zx = e.r_zx * e.sigma.z * e.sigma.x;
    return {{{e.sigma.x * e.sigma.x, xy, zx}, {xy, e.sigma.y * e.sigma.y, yz}, {zx, yz, e.sigma.z * e.sigma.z}}};
}

double korrelation(double wurzel, double a, double b)
{
    return a > 0 && b > 0 ? std::clamp(wurzel * std::abs(wurzel) / (a * b), -1.0, 1.0) : 0.0;
}

// A name of the left column and the values behind it.
std::string zeile(std::string_view name, std::initializer_list<std::string> werte)
{
    std::string text;
    anhaengen_links(text, name, 26);
    for (const std::string& wert : werte) text.append(wert.size() < 15 ? 15 - wert.size() : 1, ' ').append(wert);
    return text.append("\r\n");
}

constexpr std::string_view WERTMARKE = "WERT ", BEGINN = "beginn", ZONE = "zone";
constexpr double SPAETESTENS = 1e11;  // s since 1980, so that a calendar still holds it

struct Wortwert {
    std::string_view name;
    std::string Ergebnis::*ziel;
};

constexpr std::array<Wortwert, 5> WORTWERTE = {{{"basis", &Ergebnis::basis_datei},
                                                {"rover", &Ergebnis::rover_datei},
                                                {"marke", &Ergebnis::rover_marke},
                                                {"typ", &Ergebnis::loesungstyp},
                                                {"antenne", &Ergebnis::antennentyp}}};

struct Zahlwert {
    std::string_view name;
    double& (*ziel)(Ergebnis& e);
};

constexpr std::array<Zahlwert, 24> ZAHLWERTE = {{
    {"bx", [](Ergebnis& e) -> double& { return e.basis.x; }},
    {"by", [](Ergebnis& e) -> double& { return e.basis.y; }},
    {"bz", [](Ergebnis& e) -> double& { return e.basis.z; }},
    {"rx", [](Ergebnis& e) -> double& { return e.rover.x; }},
    {"ry", [](Ergebnis& e) -> double& { return e.rover.y; }},
    {"rz", [](Ergebnis& e) -> double& { return e.rover.z; }},
    {"sx", [](Ergebnis& e) -> double& { return e.sigma.x; }},
    {"sy", [](Ergebnis& e) -> double& { return e.sigma.y; }},
    {"sz", [](Ergebnis& e) -> double& { return e.sigma.z; }},
    {"rxy", [](Ergebnis& e) -> double& { return e.r_xy; }},
    {"ryz", [](Ergebnis& e) -> double& { return e.r_yz; }},
    {"rzx", [](Ergebnis& e) -> double& { return e.r_zx; }},
    {"se", [](Ergebnis& e) -> double& { return e.sigma_enu.e; }},
    {"sn", [](Ergebnis& e) -> double& { return e.sigma_enu.n; }},
    {"sh", [](Ergebnis& e) -> double& { return e.sigma_enu.u; }},
    {"minuten", [](Ergebnis& e) -> double& { return e.minuten; }},
    {"sigma0", [](Ergebnis& e) -> double& { return e.sigma0; }},
    {"amb", [](Ergebnis& e) -> double& { return e.mehrdeutigkeiten; }},
    {"satelliten", [](Ergebnis& e) -> double& { return e.satelliten; }},
    {"pdop_beste", [](Ergebnis& e) -> double& { return e.pdop_beste; }},
    {"pdop_mittel", [](Ergebnis& e) -> double& { return e.pdop_mittel; }},
    {"umgewichtet", [](Ergebnis& e) -> double& { return e.umgewichtet; }},
    {"verhaeltnis", [](Ergebnis& e) -> double& { return e.verhaeltnis; }},
    {"antennenhoehe", [](Ergebnis& e) -> double& { return e.antennenhoehe; }},
}};

}  // namespace

void genauigkeit_setzen(Ergebnis& ziel, const Position& p)
{
    ziel.sigma = p.sigma;
    ziel.r_xy = korrelation(p.gemischt[0], p.sigma.x, p.sigma.y);
    ziel.r_yz = korrelation(p.gemischt[1], p.sigma.y, p.sigma.z);
    ziel.r_zx = korrelation(p.gemischt[2], p.sigma.z, p.sigma.x);
    const Matrix c = kovarianz(ziel);
    const Ort ort(p.ort);
    const auto streuung = [&](std::size_t i) {
        double summe = 0.0;
        for (std::size_t j = 0; j < 3; ++j)
            for (std::size_t k = 0; k < 3; ++k) summe += ort.horizont[i][j] * c[j][k] * ort.horizont[i][k];
        return std::sqrt(std::max(0.0, summe));
    };
    ziel.sigma_enu = {streuung(0), streuung(1), streuung(2)};
}

std::string kurzmeldung(const Ergebnis& e)
{
    return verkettet(e.basis_datei, " - ", e.rover_datei, ": ", e.loesungstyp, ", ", fest(laenge(e.basislinie()), 4),
                     " m, ", e.epochen, " Epochen, sigma0 ", fest(e.sigma0 * MM, 2), " mm");
}

std::string ergebnistext(const Ergebnis& e)
{
    const Geographisch ort = geographisch(e.rover);
    const Utm eben = utm(ort, e.zone);
    const Xyz d = e.basislinie();
    std::string text = zeile("Basis", {e.basis_datei});
    text += zeile("Rover", {e.rover_datei, e.rover_marke});
    text += zeile("Zeitraum (GPS)", {zeittext(e.beginn), zeittext(e.ende)});
    text += zeile(u8"Lösungstyp"_w, {e.loesungstyp});
    text += zeile("Basis X Y Z [m]", {fest(e.basis.x, 4), fest(e.basis.y, 4), fest(e.basis.z, 4)});
    text += zeile("Rover X Y Z [m]", {fest(e.rover.x, 4), fest(e.rover.y, 4), fest(e.rover.z, 4)});
    text += zeile("dX dY dZ [m]", {fest(d.x, 4), fest(d.y, 4), fest(d.z, 4)});
    text += zeile("Strecke [m]", {fest(laenge(d), 4)});
    text += zeile("sX sY sZ [mm]", {fest(e.sigma.x * MM, 2), fest(e.sigma.y * MM, 2), fest(e.sigma.z * MM, 2)});
    text += zeile("rXY rYZ rZX", {fest(e.r_xy, 3), fest(e.r_yz, 3), fest(e.r_zx, 3)});
    text += zeile(verkettet("UTM Zone ", e.zone, " R H h [m]"),
                  {fest(eben.rechtswert, 4), fest(eben.hochwert, 4), fest(ort.hoehe, 4)});
    text +=
        zeile("sE sN sh [mm]", {fest(e.sigma_enu.e * MM, 2), fest(e.sigma_enu.n * MM, 2), fest(e.sigma_enu.u * MM, 2)});
    text += zeile("Sigma 0 [mm]", {fest(e.sigma0 * MM, 2)});
    text += zeile("Epochen, davon fest", {verkettet(e.epochen), verkettet(e.epochen_fest)});
    text += zeile("Mehrdeutigkeiten fest [%]", {fest(e.mehrdeutigkeiten, 1)});
    text += zeile("Satelliten", {fest(e.satelliten, 1)});
    text += zeile("PDOP bester, mittlerer", {fest(e.pdop_beste, 1), fest(e.pdop_mittel, 1)});
    text += zeile(u8"Antenne, Höhe [m]"_w, {e.antennentyp, fest(e.antennenhoehe, 3)});
    text += zeile("Kalibrierung Basis", {e.basis_kalibrierung});
    text += zeile("Kalibrierung Rover", {e.rover_kalibrierung});
    return text.substr(0, text.size() - 2);
}

std::string loesungstext(const Ergebnis& e)
{
    Ergebnis quelle = e;  // the tables name places to write to
    std::string text = ergebnistext(e) + "\r\n\r\n";
    const auto wort = [&](std::string_view name, std::string_view wert) {
        text.append(WERTMARKE).append(name).append("=").append(wert).append("\r\n");
    };
    for (const Wortwert& w : WORTWERTE) wort(w.name, quelle.*w.ziel);
    for (const Zahlwert& z : ZAHLWERTE) wort(z.name, zahl_text(z.ziel(quelle)));
    const GpsZeit tag = auf_sekunde(e.beginn);
    const std::array<std::pair<std::string_view, double>, 9> weitere = {{
        {BEGINN, static_cast<double>(e.beginn.sekunde) + e.beginn.bruch},
        {"ende", static_cast<double>(e.ende.sekunde) + e.ende.bruch},
        {"doy", tag_im_jahr(tag)},
        {"woche", woche(tag)},
        {"wochentag", wochentag(tag)},
        {ZONE, e.zone},
        {"epochen", static_cast<double>(e.epochen)},
        {"epochen_fest", static_cast<double>(e.epochen_fest)},
        {"strecke", laenge(e.basislinie())},
    }};
    for (const auto& [name, wert] : weitere) wort(name, zahl_text(wert));
    return text;
}

std::optional<Ergebnis> loesung_lesen(std::string_view text)
{
    std::map<std::string_view, std::string_view> worte;
    Zeilenleser leser(text);
    while (const auto zeile = leser.naechste()) {
        const auto gleich = zeile->find('=');
        if (!zeile->starts_with(WERTMARKE) || gleich == std::string_view::npos) continue;
        worte[zeile->substr(WERTMARKE.size(), gleich - WERTMARKE.size())] = zeile->substr(gleich + 1);
    }
    Ergebnis e;
    bool ganz = true;
    for (const Wortwert& w : WORTWERTE) {
        ganz = ganz && worte.contains(w.name);
        e.*w.ziel = worte[w.name];
    }
    const auto zahl = [&](std::string_view name) {
        const auto wert = spaltenzahl(worte[name]);
        ganz = ganz && wert;
        return wert.value_or(0.0);
    };
    for (const Zahlwert& z : ZAHLWERTE) z.ziel(e) = zahl(z.name);
    const double beginn = zahl(BEGINN), zone = zahl(ZONE);
    ganz = ganz && beginn >= 0 && beginn < SPAETESTENS && zone >= 1 && zone <= 60;
    if (!ganz) return {};
    e.beginn = verschoben({}, beginn);
    e.zone = static_cast<int>(zone);
    return e;
}

std::string basislinientext(const Ergebnis& e)
{
    const Xyz d = e.basislinie();
    const Matrix c = kovarianz(e);
    const auto drei = [](std::string_view name, double a, double b, double g, int stellen) {
        return zeile(name, {fest(a, stellen), fest(b, stellen), fest(g, stellen)});
    };
    std::string text = zeile("BASISLINIE", {e.basis_datei, e.rover_datei});
    text += zeile("ZEITRAUM", {zeittext(e.beginn), zeittext(e.ende)});
    text += zeile("TYP", {e.loesungstyp});
    text += drei("VON", e.basis.x, e.basis.y, e.basis.z, 4);
    text += drei("NACH", e.rover.x, e.rover.y, e.rover.z, 4);
    text += drei("DIFFERENZ", d.x, d.y, d.z, 4);
    text += drei("KOVARIANZ XX YY ZZ", c[0][0], c[1][1], c[2][2], 10);
    text += drei("KOVARIANZ XY YZ ZX", c[0][1], c[1][2], c[2][0], 10);
    return text;
}

}  // namespace jorv::suite
