#include "suite/washmod.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

#include "plattform/text.h"
#include "plattform/zahl.h"
#include "suite/spalten.h"

namespace jorv::suite {

namespace {

constexpr double ERDRADIUS = 6371.0, SCHALE = 6821.0;  // km
constexpr double ANTEIL = 0.95;
constexpr double JE_ZEICHEN = 0.25;  // ppm
constexpr std::size_t BALKEN = 48;   // characters at most

struct Stunde {
    std::vector<double> neigungen;
    std::set<std::int64_t> epochen;
    std::set<int> satelliten;
};

// The smallest value that the share of all doesn't exceed.
double quantil(std::vector<double> werte)
{
    const auto rang = std::ceil(ANTEIL * static_cast<double>(werte.size()));
    const auto stelle = werte.begin() + static_cast<std::ptrdiff_t>(std::max(rang, 1.0)) - 1;
    std::nth_element(werte.begin(), stelle, werte.end());
    return *stelle;
}

std::string balken(double ppm)
{
    const auto laenge = static_cast<std::size_t>(std::lround(ppm / JE_ZEICHEN));
    std::string text(std::min(std::max<std::size_t>(laenge, 1), BALKEN), '=');
    return laenge > BALKEN ? text + ">" : text;
}

std::string stundenzeile(const Stundenindex& s)
{
    const std::string beginn = zeittext({s.stunde * 3600, 0.0});
    const std::string ende = zeittext({(s.stunde + 1) * 3600, 0.0});
    std::string zeile = verkettet(beginn.substr(0, 13), "-", ende.substr(11, 2));
    anhaengen_fest(zeile, s.i95, 9, 2);
    anhaengen_fest(zeile, static_cast<double>(s.epochen), 9, 0);
    anhaengen_fest(zeile, static_cast<double>(s.satelliten), 12, 0);
    return verkettet(zeile, "  ", balken(s.i95));
}

}  // namespace

double zenitneigung(const Modellzeile& zeile)
{
    const double sinus = ERDRADIUS * std::cos(zeile.elevation) / SCHALE;
    return std::hypot(zeile.ionosphaere.nord, zeile.ionosphaere.ost) * std::sqrt(1.0 - sinus * sinus);
}

std::vector<Stundenindex> i95(const std::vector<Modellzeile>& zeilen)
{
    std::map<std::int64_t, Stunde> stunden;
    for (const Modellzeile& z : zeilen) {
        Stunde& s = stunden[z.zeit.sekunde / 3600];
        s.neigungen.push_back(zenitneigung(z));
        s.epochen.insert(z.zeit.sekunde);
        s.satelliten.insert(z.satellit);
    }
    std::vector<Stundenindex> alle;
    for (const auto& [stunde, s] : stunden)
        alle.push_back({stunde, quantil(s.neigungen), s.neigungen.size(), s.epochen.size(), s.satelliten.size()});
    return alle;
}

int washmod(const Worte& worte, const Arbeitsordner& ordner, Protokoll& protokoll)
{
    const auto abbruch = [&](std::string_view grund) {
        protokoll.fehler(verkettet("washmod: ", grund));
        return 1;
    };
    if (worte.size() != 2 || worte[1] != "+Si") return abbruch("washmod DATEI +Si");
    const std::string& datei = worte[0];
    const std::string ziel = verkettet(stamm(datei), ".i95");
    if (!ordner.loeschen(ziel))
        return abbruch(verkettet(u8"die ältere Datei "_w, ziel, u8" lässt sich nicht löschen"_w));
    std::error_code fehler;
    const Abbild bild = ordner.lesen(datei, fehler);
    if (fehler) return abbruch(verkettet("die Datei ", datei, u8" konnte nicht geöffnet werden"_w));
    const auto modell = modell_lesen(bild.text());
    if (!modell || modell->empty()) return abbruch(verkettet("die Datei ", datei, " ist keine Modelldatei"));
    protokoll.zeile(u8"I95 der Stunden (GPS-Zeit), 95 % aller Neigungen der Ionosphäre auf L1 sind kleiner"_w);
    protokoll.zeile("Tag        Stunde I95 ppm  Epochen  Satelliten");
    for (const Stundenindex& s : i95(*modell)) protokoll.zeile(stundenzeile(s));
    return ordner.schreiben(ziel, protokoll.text())
               ? 0
               : abbruch(verkettet("die Datei ", ziel, " konnte nicht geschrieben werden"));
}

}  // namespace jorv::suite
