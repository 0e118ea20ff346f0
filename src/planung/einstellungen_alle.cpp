#include "planung/einstellungen_alle.h"

#include <algorithm>
#include <unordered_set>
#include <vector>

#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"

namespace jorv {

namespace {

constexpr std::size_t max_satelliten = ROVER_Settings_Satz::max_satelliten;

// Indices in ROVER_Settings of the rovers that are still to be computed.
std::vector<int> rover_im_Baum(const Global& g)
{
    std::vector<int> stellen;
    const Hauptknoten* gruppe = g.baum.finden("R_Datei");
    if (!gruppe) return stellen;
    for (const auto& knoten : gruppe->Kinder)
        if (const int i = Index_Settings(g, knoten.Text); i != 0) stellen.push_back(i);
    return stellen;
}

void keine_rover_melden(Global& g)
{
    g.oberflaeche->meldung(Symbol::info,
                           "Es sind keine zu berechnenden ROVER-Dateien im aktuellen Verfahren vorhanden!");
}

std::size_t anzahl_satelliten(const ROVER_Settings_Satz& satz)
{
    return std::min(static_cast<std::size_t>(std::max(satz.AnzahlDelSatellite, 0)), max_satelliten);
}

// The satellites of all rovers in the order of first appearance, as many as there are boxes.
std::vector<std::string> satelliten_sammeln(Global& g, const std::vector<int>& rover)
{
    std::vector<std::string> namen;
    std::unordered_set<std::string_view> vorhanden;
    for (const int i : rover) {
        const ROVER_Settings_Satz& satz = g.ROVER_Settings[i];
        for (std::size_t k = 1; k <= anzahl_satelliten(satz); ++k) {
            if (!vorhanden.insert(satz.DelSatelliteName[k]).second) continue;
            if (namen.size() == max_satelliten) {
                stop_melden(g,
                            u8"Mehr als 70 Satelliten! Dimensionierung überschritten! Es werden nicht alle Satelliten "
                            u8"angezeigt!\nBitte den Programmierer benachrichtigen!"_w);
                return namen;
            }
            namen.push_back(satz.DelSatelliteName[k]);
        }
    }
    return namen;
}

void satelliten_uebernehmen(const Satellitenkaesten& kaesten, ROVER_Settings_Satz& satz)
{
    for (std::size_t k = 1; k <= anzahl_satelliten(satz); ++k)
        for (const auto& kasten : kaesten)
            if (kasten.aktiv && kasten.Name == satz.DelSatelliteName[k]) satz.DelSatellite[k] = kasten.Haken ? 1 : 0;
}

// The box whose value a button takes; nullptr for the buttons without one.
Zahlenfeld* feld_von(EinstellungenAlle& e, Alleknopf knopf)
{
    switch (knopf) {
        case Alleknopf::cmd_start:
            return &e.firstminutes;
        case Alleknopf::cmd_ende:
            return &e.lastminutes;
        case Alleknopf::cmd_elevation:
            return &e.elevation;
        case Alleknopf::cmd_frequenz:
        case Alleknopf::cmd_satellit:
            break;
    }
    return nullptr;
}

void wert_uebernehmen(const EinstellungenAlle& e, Alleknopf knopf, ROVER_Settings_Satz& satz)
{
    switch (knopf) {
        case Alleknopf::cmd_start:
            satz.DelFirstMinutes = e.firstminutes.wert();
            return;
        case Alleknopf::cmd_ende:
            satz.DelLastMinutes = e.lastminutes.wert();
            return;
        case Alleknopf::cmd_elevation:
            satz.Elevation = e.elevation.wert();
            return;
        case Alleknopf::cmd_frequenz:
            satz.Solution = e.frequenz;
            return;
        case Alleknopf::cmd_satellit:
            return satelliten_uebernehmen(e.satelliten, satz);
    }
}

}  // namespace

Fehler einstellungen_alle_oeffnen(Global& g, std::string_view gewaehlter_rover, EinstellungenAlle& e)
{
    const std::vector<int> rover = rover_im_Baum(g);
    if (rover.empty()) {
        keine_rover_melden(g);
        return Fehler::gesetzt;
    }
    e = {};
    e.firstminutes = {"0", 0, 60};
    e.lastminutes = {"0", 0, 90};
    e.elevation = {"5", 0, 60};
    e.emds_aktiv = ist_B(g);
    e.emds = e.emds_aktiv && g.emds_ausgabe;
    if (const int i = Index_Settings(g, gewaehlter_rover); i != 0) e.frequenz = g.ROVER_Settings[i].Solution;
    std::vector<std::string> namen = satelliten_sammeln(g, rover);
    std::sort(namen.begin(), namen.end());
    std::transform(namen.begin(), namen.end(), e.satelliten.begin(),
                   [](const std::string& name) { return satellitenkasten(name, true); });
    return Fehler::keiner;
}

Fehler einstellungen_alle_uebernehmen(Global& g, EinstellungenAlle& e, Alleknopf knopf)
{
    if (Zahlenfeld* feld = feld_von(e, knopf)) {
        feld->verlassen();
        if (!feld->pruefen(*g.oberflaeche)) return Fehler::gesetzt;
    }
    const std::vector<int> rover = rover_im_Baum(g);
    if (rover.empty()) {
        keine_rover_melden(g);
        return Fehler::gesetzt;
    }
    for (const int i : rover) wert_uebernehmen(e, knopf, g.ROVER_Settings[i]);
    Datum_setzen(g);
    return Fehler::keiner;
}

void emds_setzen(Global& g, EinstellungenAlle& e, bool an)
{
    if (!e.emds_aktiv) return;
    e.emds = an;
    g.emds_ausgabe = an;
}

}  // namespace jorv
