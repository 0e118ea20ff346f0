// The assignment of 1,000 rovers to stations by 50 figures and 300 station files (target: 10 ms), and its growth.
#include "planung/automatik.h"

#include <benchmark/benchmark.h>

#include "hilfen/Projekt.h"
#include "planung/Beobachtungen.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

std::string vierstellig(int zahl)
{
    std::string text = verkettet(zahl);
    return text.insert(0, 4 - text.size(), '0');
}

// Figures as squares side by side with a station at every corner; every rover lies in one of them, most in a late one.
void fuellen(Global& g, int rover_zahl, int figuren, int dateien)
{
    constexpr double seite = 1000;
    const int stationen = figuren * 2 + 2;
    for (int k = 0; k < dateien; ++k)
        station(
            g, beobachtung(verkettet(vierstellig(k % stationen), "001", static_cast<char>('a' + k / stationen), ".14o"),
                           k / stationen * 3600, 12 * 3600));
    for (int f = 0; f < figuren; ++f) {
        const auto ecke = [&](int n, double dr, double dh) {
            return punkt(vierstellig(f * 2 + n), (f + dr) * seite, dh * seite);
        };
        (void)g.GEO_Punkt.anfuegen(figur({ecke(0, 0, 0), ecke(1, 0, 1), ecke(3, 1, 1), ecke(2, 1, 0)}));
    }
    for (int i = 0; i < rover_zahl; ++i)
        rover(g, beobachtung(verkettet(vierstellig(i % 9999), "001a.14o"), 4 * 3600, 4 * 3600 + 1800 + i),
              (i % figuren + 0.5) * seite, 0.5 * seite);
}

void Automatik(benchmark::State& zustand)
{
    Pruefstand p;
    fuellen(p.g, static_cast<int>(zustand.range(0)), static_cast<int>(zustand.range(1)),
            static_cast<int>(zustand.range(2)));
    for (auto _ : zustand) automatik(p.g);
    zustand.counters["green"] = static_cast<double>(p.g.berechnete_ROVER);
}

}  // namespace

BENCHMARK(Automatik)
    ->Args({1000, 50, 300})
    ->Args({1000, 50, 3000})
    ->Args({1000, 100, 300})
    ->Args({2000, 50, 300})
    ->Args({10000, 50, 300})
    ->Unit(benchmark::kMillisecond);
