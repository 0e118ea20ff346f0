// The two readers of one observation file of a day at 1 Hz without end time in the header, against counting its lines.
// Writes the file (about 100 MB) into the temporary folder and removes it at the end.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "daten/datendichte.h"
#include "daten/punkt_info.h"
#include "daten/satelliten.h"
#include "plattform/kalender.h"
#include "plattform/text.h"

namespace {

namespace fs = std::filesystem;

class Stumm final : public jorv::Oberflaeche {
public:
    void meldung(jorv::Symbol, std::string_view, std::string_view) override {}
    jorv::Antwort frage(jorv::Symbol, std::string_view, jorv::Antwort vorgabe, std::string_view) override
    {
        return vorgabe;
    }
    void fortschritt_zeigen(std::string_view) override {}
    void fortschritt_setzen(double) override {}
    void fortschritt_verbergen() override {}
    bool ereignisse() override { return false; }
    bool im_editor_oeffnen(std::string_view) override { return false; }
    std::optional<jorv::Dateiwahl> dateien_waehlen(jorv::Dateiart, std::string_view) override { return std::nullopt; }
    void neues_verfahren(const jorv::Verfahrenswahl&, std::string_view, const jorv::Verfahrensanlage&) override {}
};

void rechts(std::string& ziel, long zahl, std::size_t breite)
{
    const std::string text = std::to_string(zahl);
    if (text.size() < breite) ziel.append(breite - text.size(), ' ');
    ziel += text;
}

std::string kopf()
{
    std::string text;
    const auto zeile = [&text](std::string inhalt, const char* marke) {
        inhalt.resize(60, ' ');
        text += inhalt + marke + "\n";
    };
    zeile("     2.11           OBSERVATION DATA    M (MIXED)", "RINEX VERSION / TYPE");
    zeile("  3783000.1234   901600.1234  5038200.1234", "APPROX POSITION XYZ");
    zeile("00001               LEIAR25.R4      LEIT", "ANT # / TYPE");
    zeile("     5    C1    L1    L2    P2    S1", "# / TYPES OF OBSERV");
    zeile("  2026     1     1     0     0    0.0000000     GPS", "TIME OF FIRST OBS");
    zeile("", "END OF HEADER");
    return text;
}

// Epochs of 13 satellites, so that each has a continuation line.
void datei_schreiben(const fs::path& pfad)
{
    constexpr long epochen = 86400, satelliten = 13;
    std::ofstream strom(pfad, std::ios::binary);
    strom << kopf();
    for (long e = 0; e < epochen; ++e) {
        std::string text = " 26  1  1";
        rechts(text, e / 3600, 3), rechts(text, e / 60 % 60, 3), rechts(text, e % 60, 3);
        text += ".0000000  0 13";
        for (long s = 0; s < satelliten; ++s) {
            if (s == 12) text += "\n" + std::string(32, ' ');
            text += s < 7 ? 'G' : 'R';
            rechts(text, 1 + (s + e / 7200) % 24, 2);
        }
        text += "\n";
        for (long s = 0; s < satelliten; ++s) {
            for (const long takt : {1L, 5L, 4L, 3L, 2L}) {
                rechts(text, 20000000 + (e * 7919 + s * 104729) % 5000000 * takt, 10);
                text += ".123 7";
            }
            text += "\n";
        }
        strom << text;
    }
}

struct Messdatei {
    Messdatei() : ordner(fs::temp_directory_path() / "jorv-rinex-lesen")
    {
        fs::create_directories(ordner);
        datei_schreiben(ordner / name);
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
    Stumm schirm;
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
    Stumm schirm;
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
