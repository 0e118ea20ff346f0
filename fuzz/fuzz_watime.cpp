// The answer of WATIME: read back it names the time that was asked for; any other line is read without harm.
#include "geo/gps_zeit.h"
#include "plattform/text.h"
#include "plattform/zahl.h"
#include "suite/gps_zeit.h"
#include "suite/watime.h"
#include "ziel.h"

using namespace jorv;

namespace {

suite::Worte worte_von(std::string_view text)
{
    suite::Worte worte;
    for (std::size_t i = 0; i < text.size() && worte.size() < 8;) {
        const auto ende = std::min(text.find(' ', i), text.size());
        if (ende > i) worte.emplace_back(text.substr(i, ende - i));
        i = ende + 1;
    }
    return worte;
}

void antwort_pruefen(const suite::Worte& worte, std::string_view antwort)
{
    const auto datum = watime_datum(antwort);
    const auto tag = watime_tag(antwort);
    fuzz::soll(datum && tag, "an answer holds date and day");
    const int jahrestag = ganz_streng(*tag).value_or(0);
    fuzz::soll(jahrestag == tag_des_jahres(datum->jahr, datum->monat, datum->tag), "the day is the date's");
    if (worte.size() == 1) {
        const auto strich = worte[0].find('/');
        const auto zeit = suite::gps_zeit({datum->jahr, datum->monat, datum->tag, 0, 0, 0});
        fuzz::soll(zeit && suite::woche(*zeit) == ganz_streng(worte[0].substr(0, strich)) &&
                       suite::wochentag(*zeit) == ganz_streng(worte[0].substr(strich + 1)),
                   "week and day come back");
    } else if (ganz_streng(worte[5]) != 60) {
        fuzz::soll(datum->jahr == suite::volles_jahr(*ganz_streng(worte[0])) && datum->monat == ganz_streng(worte[1]) &&
                       datum->tag == ganz_streng(worte[2]),
                   "the date comes back");
    }
}

}  // namespace

JORV_ZIEL(watime)
{
    const auto zeile = Zeilenleser(bytes).naechste().value_or("");
    const auto tag = watime_tag(zeile);
    fuzz::soll(!tag || tag->size() <= zeile.size(), "the day is a piece of the line");
    if (const auto datum = watime_datum(zeile))
        fuzz::soll(ist_datum(datum->jahr, datum->monat, datum->tag), "a date is one of the calendar");
    const auto worte = worte_von(zeile);
    if (const auto antwort = suite::watime(worte)) antwort_pruefen(worte, *antwort);
}
