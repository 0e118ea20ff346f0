// The two readers of one observation file of a day at 1 Hz without end time in the header, against counting its lines.
// Writes the file (about 100 MB) into the temporary folder and removes it at the end.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "bench/messdatei.h"
#include "daten/datendichte.h"
#include "daten/punkt_info.h"
#include "daten/satelliten.h"
#include "plattform/kalender.h"
#include "plattform/stumme_oberflaeche.h"
#include "plattform/text.h"

namespace {

namespace fs = std::filesystem;

struct Messdatei {
    Messdatei() : ordner(fs::temp_directory_path() / "jorv-rinex-lesen")
    {
        fs::create_directories(ordner);
        jorv::messen::datei_schreiben(ordner / name, 86400);
    }
    Messdatei(const Messdatei&) = delete;
    Messdatei& operator=(const Messdatei&) = delete;
    ~Messdatei() { fs::remove_all(ordner); }
    fs::path ordner;
    static constexpr const char* name = "55010010.26o";
};

const Messdatei& messdatei()
{
    static const Messdatei datei;
    return datei;
}

// Anonymous memory of this process at its peak can't be asked for; the present one can, in kB.
long anonym()
{
    std::ifstream status("/proc/self/status");
    for (std::string zeile; std::getline(status, zeile);)
        if (zeile.starts_with("RssAnon:")) return std::strtol(zeile.c_str() + 8, nullptr, 10);
    return 0;
}

void zeilen_zaehlen(benchmark::State& zustand)
{
    const std::string befehl = "wc -l '" + (messdatei().ordner / Messdatei::name).string() + "' > /dev/null";
    for (auto _ : zustand)
        if (std::system(befehl.c_str()) != 0) zustand.SkipWithError("wc");
}

void beide_leser(benchmark::State& zustand)
{
    jorv::StummeOberflaeche schirm;
    const jorv::Systemuhr uhr;
    jorv::Global g(schirm, uhr, jorv::Dateisystem());
    g.Verfahrensname = "Messung";
    g.Verfahrensmodus = "4";
    g.Arbeitsverzeichnis = jorv::Laufwerke().dos(messdatei().ordner).value();
    const long vorher = anonym();
    for (auto _ : zustand) {
        g.OBS_R.leeren(), g.R_Punkt.leeren(), g.ROVER_Settings.leeren();
        if (jorv::ist_fehler(jorv::punkt_info_lesen(g, Messdatei::name)) ||
            jorv::ist_fehler(jorv::satelliten_lesen(g, Messdatei::name)) ||
            g.ROVER_Settings[1].AnzahlDelSatellite < 13 || g.OBS_R[1].Endzeit_GPS_Sekunde != 235959)
            zustand.SkipWithError("not read");
    }
    zustand.counters["anonym_kB"] = static_cast<double>(anonym() - vorher);
    zustand.counters["MB"] = static_cast<double>(fs::file_size(messdatei().ordner / Messdatei::name)) / 1e6;
}

// What the windows with time bars read, from nothing each time.
void datendichte(benchmark::State& zustand)
{
    jorv::StummeOberflaeche schirm;
    const jorv::Systemuhr uhr;
    jorv::Global g(schirm, uhr, jorv::Dateisystem());
    g.Arbeitsverzeichnis = jorv::Laufwerke().dos(messdatei().ordner).value();
    for (auto _ : zustand) {
        jorv::Datendichten dichten;
        dichten.lesen(g, {Messdatei::name});
        const auto* dichte = dichten.von(Messdatei::name);
        if (!dichte || dichte->Abschnitte.size() != 1 || dichte->Intervall != 1) zustand.SkipWithError("not read");
    }
}

BENCHMARK(zeilen_zaehlen)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(beide_leser)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(datendichte)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
