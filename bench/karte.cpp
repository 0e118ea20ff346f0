// The map of very many rovers (and as many border points): the list of drawing steps, whole, and the label search
// under the pointer. The picture is 1600 x 1000 as in the painting measurements.
#include "karte/karte.h"

#include <benchmark/benchmark.h>

#include <random>

#include "hilfen/Projekt.h"
#include "karte/kartenbild.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

constexpr double breite = 1600, hoehe = 1000, meter = 100;

struct Feldplan {
    explicit Feldplan(int anzahl)
    {
        std::mt19937 zufall(1);
        std::uniform_real_distribution<double> x(0, breite * meter), y(0, hoehe * meter);
        for (int i = 0; i < anzahl; ++i) {
            Punkt rover;
            rover.Punktkennzeichen = "5501";
            rover.Rechtswert = x(zufall);
            rover.Hochwert = y(zufall);
            (void)p.g.R_Punkt.anfuegen(rover);
        }
        p.g.Verfahrensmodus = "4";
        ansicht.groesse_setzen(breite, hoehe);
        ansicht.wunsch_setzen({0, breite * meter, 0, hoehe * meter});
        (void)ansicht.einpassen();
    }
    Pruefstand p;
    Ansicht ansicht;
};

void Bild(benchmark::State& zustand)
{
    Feldplan plan(static_cast<int>(zustand.range(0)));
    std::size_t symbole = 0;
    for (auto _ : zustand) {
        const auto bild = karte_zeichnen(plan.p.g, plan.ansicht);
        symbole = 0;
        for (const auto& schritt : bild)
            if (const auto* k = std::get_if<Kreise>(&schritt.form)) symbole += k->orte.size();
    }
    zustand.counters["symbols"] = static_cast<double>(symbole);
}

void Grenze(benchmark::State& zustand)
{
    Feldplan plan(0);
    const auto anzahl = static_cast<int>(zustand.range(0));
    for (int i = 0; i < anzahl; ++i) {
        const double winkel = 6.283 * i / anzahl;
        (void)plan.p.g.Lnd.anfuegen({static_cast<std::uint8_t>(i == 0 ? 0 : 1),
                                     meter * (800 + 600 * std::cos(winkel) + 3 * std::cos(winkel * 997)),
                                     meter * (500 + 400 * std::sin(winkel) + 3 * std::sin(winkel * 997))});
    }
    for (auto _ : zustand) benchmark::DoNotOptimize(karte_zeichnen(plan.p.g, plan.ansicht));
}

void Zeiger(benchmark::State& zustand)
{
    Feldplan plan(static_cast<int>(zustand.range(0)));
    Karte karte(plan.p.g);
    karte.groesse_setzen(breite, hoehe);
    for (auto _ : zustand) {
        karte.bewegen({-50, -50});  // hits nothing, so every point is looked at
        benchmark::DoNotOptimize(karte.ueberlagerung());
    }
}

}  // namespace

BENCHMARK(Bild)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(Grenze)->Arg(20000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(Zeiger)->Arg(10000)->Arg(1000000)->Unit(benchmark::kMillisecond);
