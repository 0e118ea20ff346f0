// The data section of an observation file: last epoch, epochs and satellites, and what the bars make of them.
#include <algorithm>
#include <cmath>
#include <set>

#include "Stand.h"
#include "daten/datendichte.h"
#include "ziel.h"

using namespace jorv;

namespace {

struct Ergebnis {
    Epochen epochen;
    std::vector<Epoche> folge;
};

Ergebnis abtasten(std::string_view text)
{
    Ergebnis e;
    Zeilenstrom strom(text);
    const std::int32_t typen = kopf_uebergehen(strom);
    e.epochen = epochen_abtasten(strom, typen, &e.folge);
    return e;
}

template <typename T, typename Gleich = std::equal_to<>>
bool beginnt_mit(const std::vector<T>& alles, const std::vector<T>& anfang, Gleich gleich = {})
{
    return anfang.size() <= alles.size() && std::equal(anfang.begin(), anfang.end(), alles.begin(), gleich);
}

}  // namespace

JORV_ZIEL(rinex_epochen)
{
    const Ergebnis alles = abtasten(bytes), teil = abtasten(fuzz::vordere_zeilen(bytes));
    const auto gleich = [](const Epoche& a, const Epoche& b) {
        return a.Sekunden == b.Sekunden && a.Satelliten == b.Satelliten;
    };
    fuzz::soll(beginnt_mit(alles.folge, teil.folge, gleich), "a shorter file has the first of the epochs");
    fuzz::soll(beginnt_mit(alles.epochen.Satelliten, teil.epochen.Satelliten), "and the first of the satellites");
    const auto& namen = alles.epochen.Satelliten;
    fuzz::soll(namen.size() <= 70 && std::set<std::string>(namen.begin(), namen.end()).size() == namen.size(),
               "satellites are distinct");
    for (const auto& epoche : alles.folge) fuzz::soll(std::isfinite(epoche.Sekunden), "finite times");
    const Datendichte dichte = dichte_aus(alles.folge);
    double vorher = -1e300;
    for (const auto& abschnitt : dichte.Abschnitte) {
        fuzz::soll(vorher <= abschnitt.von && abschnitt.von <= abschnitt.bis, "stretches ascend");
        vorher = abschnitt.bis;
    }
}
