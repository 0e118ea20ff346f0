// The suite's reader of observation files.
#include <algorithm>
#include <cmath>

#include "Stand.h"
#include "suite/rinex_beobachtung.h"
#include "ziel.h"

using namespace jorv;
using namespace jorv::suite;

namespace {

bool endlich(const RinexBeobachtung& b)
{
    const auto& k = b.kopf;
    const bool kopf = std::isfinite(k.ort.x + k.ort.y + k.ort.z) && std::isfinite(k.antennenhoehe) &&
                      std::isfinite(k.antenne_ost) && std::isfinite(k.antenne_nord);
    return kopf && std::all_of(b.messungen.begin(), b.messungen.end(), [](const Messung& m) {
               return std::all_of(m.wert.begin(), m.wert.end(), [](double wert) { return std::isfinite(wert); });
           });
}

}  // namespace

JORV_ZIEL(beobachtung)
{
    std::string grund;
    const auto alles = beobachtung_lesen(bytes, Umfang::alles, grund);
    fuzz::soll(alles.has_value() == grund.empty(), "a file or a reason");
    if (!alles) return;
    fuzz::soll(endlich(*alles), "finite values");
    std::size_t gesamt = 0;
    for (std::size_t i = 0; i < alles->epochen.size(); ++i) {
        const auto& e = alles->epochen[i];
        fuzz::soll(e.erste == gesamt, "an epoch's observations follow those of the one before");
        gesamt += e.anzahl;
        fuzz::soll(i == 0 || alles->epochen[i - 1].zeit < e.zeit, "epochs ascend");
    }
    fuzz::soll(gesamt == alles->messungen.size(), "every observation is of an epoch");
    fuzz::soll(std::isfinite(alles->intervall()), "a finite interval");
    const auto zeiten = beobachtung_lesen(bytes, Umfang::epochen, grund);
    fuzz::soll(zeiten && zeiten->epochen.size() == alles->epochen.size(), "the times alone are as many");
    const auto teil = beobachtung_lesen(fuzz::vordere_zeilen(bytes), Umfang::alles, grund);
    // Where the cut has torn an epoch, what stands inside it is looked through for the next good one.
    if (!teil || !teil->hinweise.empty()) return;
    fuzz::soll(teil->epochen.size() <= alles->epochen.size() && teil->messungen.size() <= alles->messungen.size(),
               "a shorter file gives no more");
}
