// The two result files of the solver, the positions before a line of "=", the residuals behind it.
#include <cmath>

#include "Stand.h"
#include "suite/loeser_ausgabe.h"
#include "ziel.h"

using namespace jorv;
using namespace jorv::suite;

JORV_ZIEL(loeserausgabe)
{
    const auto schnitt = bytes.find("\n=\n");
    const auto positionen = bytes.substr(0, schnitt);
    const auto reste = schnitt == std::string_view::npos ? std::string_view() : bytes.substr(schnitt + 3);
    const auto alles = loeserausgabe_lesen(positionen, reste);
    for (const auto& p : alles.positionen) {
        fuzz::soll(std::isfinite(p.ort.x) && std::isfinite(p.ort.y) && std::isfinite(p.ort.z), "finite positions");
        fuzz::soll(std::isfinite(p.sigma.x) && std::isfinite(p.verhaeltnis), "finite figures");
    }
    for (const auto& r : alles.reste)
        fuzz::soll(std::isfinite(r.rest) && std::isfinite(r.rest_code) && std::isfinite(r.elevation), "finite rests");
    const auto teil = loeserausgabe_lesen(fuzz::vordere_zeilen(positionen), fuzz::vordere_zeilen(reste));
    fuzz::soll(teil.positionen.size() <= alles.positionen.size() && teil.reste.size() <= alles.reste.size(),
               "a shorter file gives no more");
}
