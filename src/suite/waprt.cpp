#include "suite/waprt.h"

#include <algorithm>
#include <array>

#include "plattform/text.h"
#include "plattform/zahl.h"
#include "suite/ergebnistext.h"
#include "suite/felder.h"

namespace jorv::suite {

namespace {

struct Liste {
    std::string_view wort, felder, kopf;
};

constexpr std::array<Liste, 4> LISTEN = {
    {{"-SUd", "NS2,CU2,DOY,SES,TDM,BSU,STY,AMB", ""},
     {"-Sd0avpreoHAB", "NS2,DOY,SES,SDV,AMB,SVA,PDM,ROB,STY,TDM,AH2,AT2,TSH", ""},
     {"-VSbscd", "NS1,NS2,BCX,BSX,BXX,DOY,SES", ""},
     {"+VS0sadveop", "NS1,NS2,SDV,BXX,AMB,DOY,SES,SVA,STY,TDM,PDA",
      "RefS RovS       SDV     rXY    rYZ    rZX   Amb    Tag S   SV Typ            Min   PDOP\r\n"}}};

Ausdruck falsch(std::string_view grund)
{
    return {1, {}, verkettet("ERROR: waprt: ", grund, "\r\n")};
}

}  // namespace

Ausdruck waprt(const Worte& worte, const Arbeitsordner& ordner)
{
    if (worte.size() < 2) return falsch("waprt DATEI -SUd|-Sd0avpreoHAB|-VSbscd|+VS0sadveop +U<Zone> +F");
    const auto liste = std::find_if(LISTEN.begin(), LISTEN.end(), [&](const Liste& l) { return l.wort == worte[1]; });
    if (liste == LISTEN.end()) return falsch(verkettet("unbekannte Liste ", worte[1]));
    std::optional<int> zone;
    for (std::size_t i = 2; i < worte.size(); ++i) {
        if (worte[i] == "+F") continue;
        zone = worte[i].starts_with("+U") ? ganz_streng(worte[i].substr(2)) : std::nullopt;
        if (!zone || *zone < 1 || *zone > 60) return falsch(verkettet("fehlerhafte Angabe ", worte[i]));
    }
    if (!ordner.vorhanden(worte[0])) return {};
    std::error_code fehler;
    auto ergebnis = loesung_lesen(ordner.lesen(worte[0], fehler).text());
    if (fehler || !ergebnis) return falsch(verkettet("die Datei ", worte[0], u8" enthält kein ganzes Ergebnis"_w));
    ergebnis->zone = zone.value_or(ergebnis->zone);
    return {0, verkettet(liste->kopf, feldzeile(liste_zerlegt(liste->felder), *ergebnis), "\r\n"), {}};
}

}  // namespace jorv::suite
