// The header of an observation file as the workbench reads it.
#include <cmath>

#include "Stand.h"
#include "daten/rinex_kopf.h"
#include "ziel.h"

using namespace jorv;

namespace {

std::optional<Rinexkopf> lesen(Global& g, std::string_view text)
{
    Zeilenstrom strom(text);
    return rinexkopf_lesen(g, strom, "ziel");
}

}  // namespace

JORV_ZIEL(rinex_kopf)
{
    static fuzz::Stand stand;
    const int vorher = stand.schirm.gesagt();
    const auto kopf = lesen(stand.g, bytes);
    fuzz::soll(kopf.has_value() == (stand.schirm.gesagt() == vorher), "a header or a message");
    if (!kopf) return;
    fuzz::soll(std::isfinite(kopf->X) && std::isfinite(kopf->Y) && std::isfinite(kopf->Z), "a finite position");
    fuzz::soll(kopf->Antenne.size() <= 40, "the antenna's columns");
    const auto nochmal = lesen(stand.g, bytes);
    fuzz::soll(nochmal && nochmal->Antenne == kopf->Antenne && nochmal->Start == kopf->Start &&
                   nochmal->Ende == kopf->Ende && nochmal->X == kopf->X && nochmal->Satelliten == kopf->Satelliten,
               "reading twice is equal");
    if (!kopf->abgeschlossen || kopf->Satelliten) return;
    const std::string mehr = std::string(bytes) + "\n 16  5  1 10 11 12.0000000  0  1G21\n  3.000\n";
    const auto laenger = lesen(stand.g, mehr);
    fuzz::soll(laenger && laenger->Ende == kopf->Ende && !laenger->Satelliten, "a whole header needs no data");
}
