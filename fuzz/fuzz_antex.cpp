// ANTEX files: the check of a project's files, the names for the antenna test, and the block that the suite takes.
#include <cmath>

#include "daten/antennen_text.h"
#include "plattform/text.h"
#include "suite/antenne.h"
#include "suite/phasenzentrum.h"
#include "ziel.h"

using namespace jorv;

namespace {

const suite::GpsZeit zeit = *suite::gps_zeit({2016, 5, 1, 8, 0, 0});

void block_pruefen(const suite::Antennenblock& block)
{
    fuzz::soll(block.zeile > 0, "a block has its line");
    const suite::Phasenzentrum phase({}, block);
    for (const double hoch : {-1.0, 0.0, 0.3, 1.0})
        for (std::size_t frequenz = 0; frequenz < 2; ++frequenz)
            fuzz::soll(std::isfinite(phase.laenger(frequenz, {0, std::sqrt(1 - hoch * hoch), hoch})), "finite phases");
    const std::string eigene = suite::antex_fuer_loeser(block, block);
    fuzz::soll(suite::antenne_suchen(eigene, "", suite::ROVERANTENNE, zeit).has_value(), "the solver's file holds it");
}

}  // namespace

JORV_ZIEL(antex)
{
    Kalibrierung erste, zweite;
    std::string_view zeile;
    const auto urteil = kalibrierung_pruefen(bytes, true, erste, zeile);
    fuzz::soll(urteil == kalibrierung_pruefen(bytes, true, zweite, zeile) && erste.Art == zweite.Art,
               "the check twice is equal");
    const std::string mit_umbruch = zeilen_mit_umbruch(bytes);
    const auto namen = antennennamen_atx(bytes), wieder = antennennamen_atx(mit_umbruch);
    fuzz::soll(namen.size() == wieder.size(), "joining keeps the antennas");
    for (std::size_t i = 0; i < namen.size() && i < 4; ++i) {
        const auto nummer = trimmen(namen[i].Nummer), typ = trimmen(namen[i].Typ);
        const auto fund = suite::antenne_suchen(bytes, nummer, typ, zeit);
        const auto nochmal = suite::antenne_suchen(mit_umbruch, nummer, typ, zeit);
        fuzz::soll(fund.has_value() == nochmal.has_value(), "the same antennas in both texts");
        if (!fund) continue;
        fuzz::soll(fund->name == nochmal->name && fund->fund == nochmal->fund && fund->zeile == nochmal->zeile,
                   "the same block in both texts");
        block_pruefen(*fund);
    }
}
