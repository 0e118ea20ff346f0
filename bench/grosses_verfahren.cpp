// A project of 999 rovers, 60 figures and 300 station files: open, automatik, tree and save (target: 200 ms each).
#include <benchmark/benchmark.h>

#include "hilfen/Projekt.h"
#include "modell/Baum.h"
#include "planung/Beobachtungen.h"
#include "planung/automatik.h"
#include "projekt/projektdatei_schreiben.h"
#include "projekt/verfahren.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

constexpr int rover_zahl = 999, figuren_zahl = 60, stationsdateien = 300, spalten = 10;
constexpr double seite = 30000;

std::string vierstellig(int zahl)
{
    const std::string text = verkettet(zahl);
    return std::string(4 - text.size(), '0') + text;
}

// Square figures in rows of ten between stations on a grid; half of the rovers have their result already.
void fuellen(Pruefstand& p)
{
    for (int k = 0; k < stationsdateien; ++k)
        station(p.g, beobachtung(verkettet(vierstellig(k), "0010.14o"), 0, 86370));
    for (int f = 0; f < figuren_zahl; ++f) {
        const int spalte = f % spalten, zeile = f / spalten;
        const auto ecke = [&](int ds, int dz) {
            return punkt(vierstellig((zeile + dz) * (spalten + 1) + spalte + ds), (spalte + ds) * seite,
                         (zeile + dz) * seite);
        };
        (void)p.g.GEO_Punkt.anfuegen(figur({ecke(0, 0), ecke(0, 1), ecke(1, 1), ecke(1, 0)}));
    }
    for (int i = 0; i < rover_zahl; ++i) {
        const std::string name = verkettet(5000 + i, "0010.14o");
        const int f = i % figuren_zahl;
        rover(p.g, beobachtung(name, 36000, 36000 + 5400 + i), (f % spalten + 0.5) * seite,
              (f / spalten + 0.5) * seite);
        if (i % 2 == 0) schreiben(p.pfad(verkettet("jorv_out/dat_rov/", name, ".UTM")), "x");
    }
    for (auto* feld : {&p.g.OBS_R, &p.g.OBS_S})
        for (auto& beobachtung_satz : *feld) beobachtung_satz.Antenne = "4100210090          JORREF2         JORD";
    automatik(p.g);
    (void)Verfahren_sichern(p.g);
}

struct Stand {
    Stand() { fuellen(p); }
    Pruefstand p;
};

void Automatik(benchmark::State& zustand)
{
    Stand stand;
    for (auto _ : zustand) automatik(stand.p.g);
}

void Baumbau(benchmark::State& zustand)
{
    Stand stand;
    for (auto _ : zustand) baum_aufbauen(stand.p.g);
    zustand.counters["ready"] = stand.p.g.berechnete_ROVER;
}

void Sichern(benchmark::State& zustand)
{
    Stand stand;
    for (auto _ : zustand)
        if (ist_fehler(Verfahren_sichern(stand.p.g))) return zustand.SkipWithError("save");
}

void Oeffnen(benchmark::State& zustand)
{
    Stand stand;
    stand.p.g.Verfahrensname.clear();
    for (auto _ : zustand) {
        if (ist_fehler(Verfahren_oeffnen(stand.p.g, "Muster")))
            return zustand.SkipWithError(stand.p.schirm.einzige().c_str());
        zustand.PauseTiming();
        stand.p.g.Verfahrensname.clear();  // so that the next turn doesn't save first
        zustand.ResumeTiming();
    }
}

}  // namespace

BENCHMARK(Oeffnen)->Unit(benchmark::kMillisecond);
BENCHMARK(Automatik)->Unit(benchmark::kMillisecond);
BENCHMARK(Baumbau)->Unit(benchmark::kMillisecond);
BENCHMARK(Sichern)->Unit(benchmark::kMillisecond);
