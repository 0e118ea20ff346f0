#include <cmath>

#include "simulator/datei.h"
#include "simulator/simulator.h"
#include "simulator/text.h"

namespace jorv::simulator {

namespace {

double auf_hundertstel_mm(double meter)
{
    return std::round(meter * 1e5) / 1e5;
}

void block(std::string& aus, const Antenne& antenne)
{
    std::string zeile;
    kopfzeile(aus, "", "START OF ANTENNA");
    links(zeile, antenne.typ, 20);
    links(zeile, antenne.nummer, 20);
    kopfzeile(aus, zeile, "TYPE / SERIAL NO");
    kopfzeile(aus, "SIMULATED           JORV                     1    15-JUN-16", "METH / BY / # / DATE");
    kopfzeile(aus, "     0.0", "DAZI");
    kopfzeile(aus, "     0.0  90.0   5.0", "ZEN1 / ZEN2 / DZEN");
    kopfzeile(aus, "     2", "# OF FREQUENCIES");
    for (std::size_t f = 0; f < 2; ++f) {
        const std::string name = f == 0 ? "   G01" : "   G02";
        kopfzeile(aus, name, "START OF FREQUENCY");
        zeile.clear();
        const Vektor& v = antenne.versatz[f];
        for (const double wert : {v.x, v.y, v.z}) fest(zeile, 1000 * wert, 10, 2);
        kopfzeile(aus, zeile, "NORTH / EAST / UP");
        aus += "   NOAZI";
        for (const double wert : antenne.gang[f]) fest(aus, 1000 * wert, 8, 2);
        aus += '\n';
        kopfzeile(aus, name, "END OF FREQUENCY");
    }
    kopfzeile(aus, "", "END OF ANTENNA");
}

}  // namespace

Antenne antenne_machen(std::string nummer, std::string typ, Vektor versatz1, Vektor versatz2, double gang1,
                       double gang2)
{
    Antenne a;
    a.nummer = std::move(nummer);
    a.typ = std::move(typ);
    a.versatz = {versatz1, versatz2};
    for (Vektor& v : a.versatz) {
        for (double* wert : {&v.x, &v.y, &v.z}) *wert = auf_hundertstel_mm(*wert);
    }
    for (std::size_t i = 0; i < antennen_stuetzstellen; ++i) {
        const double s = std::sin(static_cast<double>(i) * 5 * grad);
        a.gang[0][i] = auf_hundertstel_mm(gang1 * s * s);
        a.gang[1][i] = auf_hundertstel_mm(gang2 * s * s);
    }
    return a;
}

bool antex_schreiben(const Szenario& szenario, const std::filesystem::path& datei, std::string& meldung)
{
    std::string aus;
    kopfzeile(aus, "     1.4            G", "ANTEX VERSION / SYST");
    kopfzeile(aus, "A", "PCV TYPE / REFANT");
    kopfzeile(aus, "SIMULATED INDIVIDUAL CALIBRATIONS", "COMMENT");
    kopfzeile(aus, "", "END OF HEADER");
    for (const Antenne& antenne : szenario.antennen) block(aus, antenne);
    return datei_schreiben(datei, {aus}, meldung);
}

}  // namespace jorv::simulator
