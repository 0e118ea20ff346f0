// Saving and loading a project against copying the same bytes through memory back to the disk (target: ratio 10), and
// growth with the count of rovers.
#include <benchmark/benchmark.h>

#include <chrono>

#include "bench/messprojekt.h"
#include "hilfen/Projekt.h"
#include "projekt/projektdatei_lesen.h"
#include "projekt/projektdatei_schreiben.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

double sekunden(std::chrono::steady_clock::time_point seit)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - seit).count();
}

Fehler laden(Global& g)
{
    Profil profil;
    const std::string datei = g.Verfahrensdatei;
    if (ist_fehler(Projektdatei_laden(g, datei, profil))) return Fehler::gesetzt;
    Verfahren_lesen(g, datei, profil);
    return Dateidaten_lesen(g, profil);
}

// Four rows a rover; each turn saves over the old file, loads it, and copies its bytes to the disk for comparison.
void SichernUndLaden(benchmark::State& zustand)
{
    Pruefstand p;
    messen::volle_rover(p.g, static_cast<int>(zustand.range(0)));
    if (ist_fehler(Verfahren_sichern(p.g))) return zustand.SkipWithError("save");
    double sichern_s = 0, laden_s = 0, kopieren_s = 0;
    for (auto _ : zustand) {
        auto beginn = std::chrono::steady_clock::now();
        if (ist_fehler(Verfahren_sichern(p.g))) return zustand.SkipWithError("save");
        sichern_s += sekunden(beginn);
        beginn = std::chrono::steady_clock::now();
        if (ist_fehler(laden(p.g))) return zustand.SkipWithError("load");
        laden_s += sekunden(beginn);
        zustand.PauseTiming();
        beginn = std::chrono::steady_clock::now();
        const auto bytes = p.g.dateien.lesen(p.g.Verfahrensdatei);
        if (!bytes || p.g.dateien.schreiben(im_Verfahren(p.g, "kopie"), *bytes)) return zustand.SkipWithError("copy");
        kopieren_s += sekunden(beginn);
        zustand.ResumeTiming();
    }
    const auto n = static_cast<double>(zustand.iterations());
    zustand.counters["save_ms"] = sichern_s / n * 1e3;
    zustand.counters["load_ms"] = laden_s / n * 1e3;
    zustand.counters["copy_ms"] = kopieren_s / n * 1e3;
    zustand.counters["ratio"] = (sichern_s + laden_s) / kopieren_s;
    zustand.counters["bytes"] = static_cast<double>(p.g.dateien.groesse(p.g.Verfahrensdatei).value_or(0));
}

}  // namespace

BENCHMARK(SichernUndLaden)->Arg(500)->Arg(5000)->Arg(50000)->Unit(benchmark::kMillisecond);
