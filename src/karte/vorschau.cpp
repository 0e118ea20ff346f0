#include "karte/vorschau.h"

#include <algorithm>

#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "planung/automatik.h"

namespace jorv {

namespace {

constexpr int max_ecken = 4, min_ecken = 3, hoechstens_rover = 5000;

const GEO_Punkt_Satz* figur_im_bau(const Global& g)
{
    return g.geo_fertig || g.GEO_Punkt.anzahl() == 0 ? nullptr : &g.GEO_Punkt[g.GEO_Punkt.anzahl()];
}

// Place of a station among the corners, 0 when it is none.
int ecke_von(const GEO_Punkt_Satz& figur, std::string_view kennzeichen)
{
    const auto ende = figur.Punkt.begin() + figur.Anzahl;
    const auto fund = std::find(figur.Punkt.begin(), ende, kennzeichen);
    return fund == ende ? 0 : static_cast<int>(fund - figur.Punkt.begin()) + 1;
}

// What automatik reads and writes, apart from the state itself.
Global abschrift(const Global& g)
{
    Global probe(*g.oberflaeche, *g.uhr, g.dateien);
    probe.Verfahrensmodus = g.Verfahrensmodus;
    probe.OBS_R = g.OBS_R;
    probe.OBS_S = g.OBS_S;
    probe.R_Punkt = g.R_Punkt;
    probe.ROVER_TOREL = g.ROVER_TOREL;
    probe.ROVER_Settings = g.ROVER_Settings;
    probe.GEO_Punkt = g.GEO_Punkt;
    return probe;
}

}  // namespace

bool waere_neue_ecke(const Global& g, int station)
{
    if (station < 1 || station > g.S_Punkt.anzahl()) return false;
    const auto* figur = figur_im_bau(g);
    return figur == nullptr ||
           (figur->Anzahl < max_ecken && ecke_von(*figur, g.S_Punkt[station].Punktkennzeichen) == 0);
}

bool wuerde_schliessen(const Global& g, int station)
{
    const auto* figur = figur_im_bau(g);
    return figur != nullptr && station >= 1 && station <= g.S_Punkt.anzahl() && figur->Anzahl >= min_ecken &&
           ecke_von(*figur, g.S_Punkt[station].Punktkennzeichen) == 1;
}

std::vector<Roverlicht> lichter_der_figur(const Global& g, int weitere)
{
    const auto* im_bau = figur_im_bau(g);
    if (im_bau == nullptr || !ist_E_oder_S(g) || g.OBS_R.anzahl() > hoechstens_rover) return {};
    const bool mit_weiterer = waere_neue_ecke(g, weitere);
    if (im_bau->Anzahl + (mit_weiterer ? 1 : 0) < min_ecken) return {};

    Global probe = abschrift(g);
    if (mit_weiterer) {
        auto& figur = probe.GEO_Punkt.letztes();
        const auto ecke = static_cast<std::size_t>(figur.Anzahl++);
        const Punkt& station = g.S_Punkt[weitere];
        figur.Punkt[ecke] = station.Punktkennzeichen;
        figur.Rechtswert[ecke] = station.Rechtswert;
        figur.Hochwert[ecke] = station.Hochwert;
    }
    zuordnen(probe);
    std::vector<Roverlicht> lichter;
    const int anzahl = std::min(static_cast<int>(probe.Begruendungen.size()), g.R_Punkt.anzahl());
    for (int i = 1; i <= anzahl; ++i)
        if (probe.Begruendungen[static_cast<std::size_t>(i - 1)].Figur == probe.GEO_Punkt.anzahl())
            lichter.push_back({i, rover_bild(probe, i)});
    return lichter;
}

}  // namespace jorv
