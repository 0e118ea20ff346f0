// The header of an observation file as the workbench reads it.
#include <cmath>

#include "Stand.h"
#include "daten/rinex_kopf.h"
#include "ziel.h"

using namespace jorv;

JORV_ZIEL(rinex_kopf)
{
    static fuzz::Stand stand;
    const int vorher = stand.schirm.gesagt();
    const auto kopf = rinexkopf_lesen(stand.g, bytes, "ziel");
    fuzz::soll(kopf.has_value() == (stand.schirm.gesagt() == vorher), "a header or a message");
    if (!kopf) return;
    fuzz::soll(std::isfinite(kopf->X) && std::isfinite(kopf->Y) && std::isfinite(kopf->Z), "a finite position");
    fuzz::soll(kopf->Antenne.size() <= 40, "the antenna's columns");
    const auto nochmal = rinexkopf_lesen(stand.g, bytes, "ziel");
    fuzz::soll(nochmal && nochmal->Antenne == kopf->Antenne && nochmal->Start == kopf->Start &&
                   nochmal->Ende == kopf->Ende && nochmal->X == kopf->X && nochmal->Satelliten == kopf->Satelliten,
               "reading twice is equal");
    if (!kopf->abgeschlossen || kopf->Satelliten) return;
    const std::string mehr = std::string(bytes) + "\n 16  5  1 10 11 12.0000000  0  1G21\n  3.000\n";
    const auto laenger = rinexkopf_lesen(stand.g, mehr, "ziel");
    fuzz::soll(laenger && laenger->Ende == kopf->Ende && !laenger->Satelliten, "a whole header needs no data");
}
