#include <algorithm>
#include <array>
#include <thread>

#include "auswertung/gleichzeitig.h"
#include "dos/programm.h"
#include "plattform/profil.h"
#include "plattform/text.h"
#include "plattform/umgebung.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

// Whether the batch of a rover will find our own programs, by the search path that it sets.
bool eingebaute_suite(const Global& g)
{
    auto umfeld = dos::umfeld_des_prozesses(g.dateien.laufwerke());
    if (!umfeld) return false;
    umfeld->verzeichnisse = dos::Verzeichnisse(g.Arbeitsverzeichnis);
    umfeld->suchpfad += verkettet(";", g.EXE_Verzeichnis);
    dos::Programmsuche suche;
    constexpr std::array<const char*, 2> programme = {"wav2", "wa2"};
    return std::all_of(programme.begin(), programme.end(), [&](const char* name) {
        const auto fund = suche.finden(*umfeld, name);
        std::error_code fehler;
        return fund && std::filesystem::equivalent(fund->datei, programm_ordner() / name, fehler) && !fehler;
    });
}

}  // namespace

int gleichzeitige_rover(const Global& g)
{
    constexpr int hoechstens = 64;
    std::error_code fehler;
    const auto einstellungen = Profil::aus_datei(g.dateien, g.Einstellungsdatei, fehler);
    const int verlangt = ganz_streng(einstellungen.wert("GRUNDEINSTELLUNGEN", "Gleichzeitig")).value_or(0);
    if (verlangt > 0) return std::min(verlangt, hoechstens);
    return eingebaute_suite(g) ? std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, hoechstens) : 1;
}

}  // namespace jorv
