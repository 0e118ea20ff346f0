#include "suite/wasoft.h"

#include <algorithm>

#include "plattform/text.h"
#include "suite/basislinie.h"
#include "suite/virtuelle_station.h"

namespace jorv::suite {

namespace {

constexpr std::string_view FEHLERDATEI = "wav2.err";

// Batches of single baselines never look at the error file and would leave it to the next rover.
bool ist_schritt_eines_rovers(const Worte& worte)
{
    return std::any_of(worte.begin(), worte.end(), [](const std::string& w) { return w.starts_with("+V"); }) ||
           (!worte.empty() && gleich_ohne_gross(links(worte.front(), 4), "virt"));
}

}  // namespace

int wasoft(const Worte& worte, const Arbeitsordner& ordner, const Loeserumgebung& umgebung, const Uhr& uhr,
           Protokoll& protokoll)
{
    const bool rover = ist_schritt_eines_rovers(worte);
    int status = 1;
    std::string grund;
    const auto aufruf = wasoft_aufruf(worte, grund);
    if (rover && !ordner.loeschen(FEHLERDATEI))
        protokoll.warnung(verkettet(u8"Die ältere Datei "_w, FEHLERDATEI, u8" konnte nicht gelöscht werden!"_w));
    if (!aufruf)
        protokoll.fehler(verkettet("wasoft: ", grund));
    else if (const auto* virtuell = std::get_if<Wav2Aufruf>(&*aufruf))
        status = wav2(*virtuell, ordner, uhr, protokoll);
    else
        status = wa2(std::get<Wa2Aufruf>(*aufruf), ordner, umgebung, uhr, protokoll);
    if (status != 0 && rover && !ordner.schreiben(FEHLERDATEI, protokoll.ausgabe()))
        protokoll.fehler(verkettet("Die Datei ", FEHLERDATEI, " konnte nicht geschrieben werden!"));
    return status;
}

}  // namespace jorv::suite
