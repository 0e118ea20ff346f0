// Our side of the comparison in vergleich.sh: times of single operations, each the best of several.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "bench/messdatei.h"
#include "bench/messprojekt.h"
#include "daten/einfuegen.h"
#include "daten/punkt_info.h"
#include "daten/satelliten.h"
#include "hilfen/Projekt.h"
#include "plattform/kalender.h"
#include "plattform/stumme_oberflaeche.h"
#include "projekt/projektdatei_lesen.h"
#include "projekt/projektdatei_schreiben.h"
#include "suite/rinex_beobachtung.h"

namespace {

using namespace jorv;
namespace fs = std::filesystem;

constexpr const char* aufruf =
    "bench_vergleich datei DATEI EPOCHEN [ende] | werte DATEI | satelliten DATEI | kopf DATEI | sichern ROVER | "
    "aufnahme ORDNER\n";

// Milliseconds; nothing printed when the operation failed.
int beste(const char* name, int laeufe, const std::function<bool()>& tun)
{
    double ms = 1e12;
    for (int i = 0; i < laeufe; ++i) {
        const auto beginn = std::chrono::steady_clock::now();
        if (!tun()) return 1;
        ms = std::min(ms, std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - beginn).count());
    }
    std::printf("%s %.3f\n", name, ms);
    return 0;
}

int werte(const fs::path& datei)
{
    std::size_t anzahl = 0;
    const int status = beste("werte", 5, [&] {
        std::error_code fehler;
        Dateistrom strom(Systemaufrufe::echte(), datei, fehler);
        std::string grund;
        const auto gelesen = suite::beobachtung_lesen({std::move(strom), fs::file_size(datei)}, suite::Umfang::alles,
                                                      grund, {}, suite::Systeme::gps_glonass);
        if (!gelesen) return false;
        anzahl = 0;
        for (const auto& m : gelesen->messungen)
            for (const double w : m.wert) anzahl += w != 0.0 ? 1 : 0;
        return anzahl > 0;
    });
    std::printf("anzahl %zu\n", anzahl);
    return status;
}

// Header, end time and, when wanted, the satellites: what the intake does with a rover's file.
int aufnehmen(const fs::path& datei, bool satelliten)
{
    StummeOberflaeche schirm;
    const Systemuhr uhr;
    Global g(schirm, uhr, Dateisystem());
    g.Verfahrensname = "Messung";
    g.Verfahrensmodus = "4";
    g.Arbeitsverzeichnis = Laufwerke().dos(datei.parent_path()).value_or("");
    const std::string name = datei.filename().string();
    return beste(satelliten ? "satelliten" : "kopf", 5, [&] {
        g.OBS_R.leeren(), g.R_Punkt.leeren(), g.ROVER_Settings.leeren();
        if (ist_fehler(punkt_info_lesen(g, name))) return false;
        return !satelliten || !ist_fehler(satelliten_lesen(g, name));
    });
}

bool laden(Global& g)
{
    Profil profil;
    const std::string datei = g.Verfahrensdatei;
    if (ist_fehler(Projektdatei_laden(g, datei, profil))) return false;
    Verfahren_lesen(g, datei, profil);
    return !ist_fehler(Dateidaten_lesen(g, profil));
}

int sichern(int rover_zahl)
{
    hilfen::Pruefstand p;
    messen::volle_rover(p.g, rover_zahl);
    if (ist_fehler(Verfahren_sichern(p.g))) return 1;
    const auto bytes = p.g.dateien.lesen(p.g.Verfahrensdatei).value_or("");
    std::printf("bytes %zu\n", bytes.size());
    return beste("sichern", 9, [&] { return !ist_fehler(Verfahren_sichern(p.g)); }) +
           beste("roh", 9, [&] { return !p.g.dateien.schreiben(im_Verfahren(p.g, "kopie"), bytes); }) +
           beste("laden", 9, [&] { return laden(p.g); });
}

// Copies in its dialog, as the window does, and takes the time of it.
class Kopierschirm final : public StummeOberflaeche {
public:
    explicit Kopierschirm(std::string ordner) : m_ordner(std::move(ordner)) {}
    std::optional<Dateiwahl> dateien_waehlen(Dateiart art, std::string_view) override
    {
        const auto pfade = einfuegbare_Dateien(*g, art, m_ordner, false);
        const auto beginn = std::chrono::steady_clock::now();
        dateien_kopieren(*g, art, pfade);
        kopieren = std::chrono::steady_clock::now() - beginn;
        return Dateiwahl{{}, m_ordner};
    }
    Global* g = nullptr;
    std::chrono::duration<double, std::milli> kopieren{};

private:
    std::string m_ordner;
};

// As the measured files have it, so that nothing is asked.
void station_eintragen(Global& g, int nummer)
{
    TOREL_Punkt_Satz punkt;
    punkt.PKZ = verkettet(nummer < 10 ? "000" : nummer < 100 ? "00" : "0", nummer);
    punkt.X = 3783000.1234, punkt.Y = 901600.1234, punkt.Z = 5038200.1234;
    (void)g.TOREL_Punkt.anfuegen(punkt);
}

// The whole command for all files of a folder, copying aside: the headers, the satellites of rovers, assignment and
// project file.
int aufnahme(const fs::path& ordner)
{
    double kopieren = 1e12, rest = 1e12;
    for (int i = 0; i < 3; ++i) {
        hilfen::Pruefstand p;
        Kopierschirm schirm(Laufwerke().dos(ordner).value_or(""));
        for (int n = 1; n <= 200; ++n) station_eintragen(p.g, n);
        p.g.oberflaeche = &schirm;
        schirm.g = &p.g;
        const auto beginn = std::chrono::steady_clock::now();
        m_datei_rinex(p.g);
        const std::chrono::duration<double, std::milli> ganz = std::chrono::steady_clock::now() - beginn;
        if (p.g.RINEX_Dateien.anzahl() == 0 || schirm.gesagt() > 0) return 1;
        kopieren = std::min(kopieren, schirm.kopieren.count());
        rest = std::min(rest, (ganz - schirm.kopieren).count());
    }
    std::printf("kopieren %.3f\naufnahme %.3f\n", kopieren, rest);
    return 0;
}

}  // namespace

int main(int anzahl, char** worte)
{
    const std::string was = anzahl > 2 ? worte[1] : "";
    if (was == "datei" && anzahl >= 4)
        return messen::datei_schreiben(worte[2], std::atol(worte[3]), anzahl > 4 && worte[4] == std::string("ende")), 0;
    if (was == "werte") return werte(fs::absolute(worte[2]));
    if (was == "satelliten" || was == "kopf") return aufnehmen(fs::absolute(worte[2]), was == "satelliten");
    if (was == "aufnahme") return aufnahme(fs::absolute(worte[2]));
    if (was == "sichern") return sichern(std::atoi(worte[2]));
    std::fputs(aufruf, stderr);
    return 2;
}
