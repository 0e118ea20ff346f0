// jorv-wahrheit: compares the results of a project with points whose coordinates are known.
//   jorv-wahrheit LISTE VERFAHRENSORDNER
// LISTE has a line "PKZ X Y Z Name" for each point, geocentric metres. Prints for every rover of the folder solution
// type, coordinates and the differences east, north, up in millimetres. Exit status 1: a result has no known point or
// there is no result at all.
#include <GeographicLib/Geocentric.hpp>
#include <GeographicLib/LocalCartesian.hpp>
#include <GeographicLib/TransverseMercator.hpp>
#include <array>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "auswertung/ergebniszeile.h"
#include "konsole/Tabelle.h"
#include "plattform/datei.h"
#include "plattform/text.h"
#include "plattform/umgebung.h"
#include "plattform/wort.h"
#include "plattform/zahl.h"

namespace {

using namespace jorv;

using Ort = std::array<double, 3>;

constexpr double halbachse = 6378137, abplattung = 1 / 298.257222101;
constexpr double massstab = 0.9996, mittelmeridian = 9, ostverschiebung = 500000;

std::map<std::string, Ort> liste_lesen(std::string_view text)
{
    std::map<std::string, Ort> punkte;
    Zeilenleser leser(text);
    while (const auto zeile = leser.naechste()) {
        Wortfolge worte(*zeile);
        const auto pkz = worte.naechstes();
        if (pkz.status != Wortstatus::gefunden || pkz.text.starts_with('#')) continue;
        Ort ort{};
        for (double& wert : ort) wert = zahl_lesen(worte.naechstes().text);
        punkte[std::string(pkz.text)] = ort;
    }
    return punkte;
}

/// East, north, up of a result seen from the true place, millimetres.
Ort abweichung(const Ergebnis& ergebnis, const Ort& wahrheit)
{
    const GeographicLib::TransverseMercator abbildung(halbachse, abplattung, massstab);
    const GeographicLib::Geocentric erde(halbachse, abplattung);
    double breite = 0, laenge = 0, hoehe = 0;
    erde.Reverse(wahrheit[0], wahrheit[1], wahrheit[2], breite, laenge, hoehe);
    const GeographicLib::LocalCartesian horizont(breite, laenge, hoehe, erde);
    abbildung.Reverse(mittelmeridian, ergebnis.Rechtswert - ostverschiebung, ergebnis.Hochwert, breite, laenge);
    Ort enu{};
    horizont.Forward(breite, laenge, ergebnis.Hoehe, enu[0], enu[1], enu[2]);
    for (double& wert : enu) wert *= 1000;
    return enu;
}

bool ist_beobachtungsdatei(std::string_view name)
{
    return name.size() == 12 && name[8] == '.' && klein(name.back()) == 'o';
}

int vergleichen(const Dateisystem& dateien, const std::map<std::string, Ort>& wahrheit, const std::string& ordner)
{
    Tabelle tabelle({"ROVER", std::string(u8"Lösung"_w), "Rechtswert", "Hochwert", std::string(u8"Höhe"_w), "dE [mm]",
                     "dN [mm]", "dU [mm]"});
    int ergebnisse = 0, unbekannte = 0;
    for (const auto& eintrag : dateien.ordner_lesen(ordner)) {
        constexpr std::string_view letzte_station = "3999";
        if (eintrag.ordner || !ist_beobachtungsdatei(eintrag.name) || links(eintrag.name, 4) <= letzte_station)
            continue;
        const auto ergebnis = ergebnis_lesen(dateien, ordner, eintrag.name);
        if (!ergebnis) {
            tabelle.zeile({eintrag.name, std::string(u8"keine Lösung"_w)});
            continue;
        }
        ++ergebnisse;
        std::vector<std::string> zeile = {eintrag.name, ergebnis->Loesung};
        for (const double wert : {ergebnis->Rechtswert, ergebnis->Hochwert, ergebnis->Hoehe})
            zeile.push_back(fest(wert, 4));
        const auto punkt = wahrheit.find(std::string(links(eintrag.name, 4)));
        if (punkt == wahrheit.end())
            ++unbekannte;
        else
            for (const double wert : abweichung(*ergebnis, punkt->second)) zeile.push_back(fest(wert, 1));
        tabelle.zeile(std::move(zeile));
    }
    std::cout << utf8_aus_1252(tabelle.text("")) << std::flush;
    return ergebnisse > 0 && unbekannte == 0 ? 0 : 1;
}

}  // namespace

int main(int anzahl, char** werte)
{
    const auto worte = programmworte(anzahl, werte);
    if (worte.size() != 2) {
        std::cerr << "jorv-wahrheit LISTE VERFAHRENSORDNER\n";
        return 2;
    }
    const Dateisystem dateien(Laufwerke{});
    const auto liste = Laufwerke{}.dos(worte[0]), ordner = Laufwerke{}.dos(worte[1]);
    const auto text = liste ? dateien.lesen(*liste) : std::nullopt;
    if (!text || !ordner || !dateien.ist_ordner(*ordner)) {
        std::cerr << "STOP " << worte[text ? 1 : 0] << " kann nicht gelesen werden!\n";
        return 1;
    }
    return vergleichen(dateien, liste_lesen(*text), *ordner);
}
