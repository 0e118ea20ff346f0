#include "auswertung/basisergebnis.h"

#include "modell/Gemeinsam.h"
#include "plattform/text.h"
#include "plattform/wort.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

// A row begins with the two points, four columns each and a blank between; the values behind are words.
constexpr std::size_t punkte_breite = 9, werte_spalte = 11;
constexpr double mm_je_meter = 1000;

std::string_view wort(std::string_view zeile, int nummer)
{
    return wort_finden(mitte(zeile, werte_spalte), nummer).text;
}

std::string letzte_zeile(const Global& g, const std::string& datei)
{
    const auto text = g.dateien.lesen(datei);
    std::string letzte;
    Zeilenleser leser(text ? std::string_view(*text) : std::string_view{});
    while (const auto zeile = leser.naechste())
        if (!trimmen(*zeile).empty()) letzte = *zeile;
    return letzte;
}

// The row of the same points and the same correlations.
std::string tem_zeile(const Global& g, std::string_view zeile)
{
    const auto text = g.dateien.lesen(im_Verfahren(g, verkettet("jorv_out\\export\\", g.Verfahrensnummer, ".TEM")));
    std::string gleiche;
    Zeilenleser leser(text ? std::string_view(*text) : std::string_view{});
    while (const auto andere = leser.naechste()) {
        bool gleich = links(*andere, punkte_breite) == links(zeile, punkte_breite);
        for (int i = 0; i < 3; ++i) gleich = gleich && wort(*andere, 2 + i) == wort(zeile, 8 + i);
        if (gleich) gleiche = *andere;
    }
    return gleiche;
}

}  // namespace

std::optional<Basisergebnis> basisergebnis_lesen(const Global& g, const BASISLINIE_Satz& basislinie)
{
    const std::string zeile =
        letzte_zeile(g, im_Verfahren(g, verkettet("jorv_out\\dat_bas\\", links(basislinie.Datei_von, 8), "-",
                                                  links(basislinie.Datei_nach, 8), ".BAL")));
    std::array<double, 10> werte{};
    for (std::size_t i = 0; i < werte.size(); ++i) {
        const auto zahl = zahl_streng(wort(zeile, static_cast<int>(i) + 1));
        if (!zahl) return std::nullopt;
        werte[i] = *zahl;
    }
    Basisergebnis ergebnis;
    for (std::size_t i = 0; i < 3; ++i) {
        ergebnis.d[i] = werte[i] / mm_je_meter;
        ergebnis.s[i] = werte[4 + i];
        ergebnis.r[i] = werte[7 + i];
    }
    ergebnis.Strecke = werte[3] / mm_je_meter;
    // The word in front of the type is the mean number of satellites, the session before it may be a blank.
    const std::string tem = tem_zeile(g, zeile);
    ergebnis.Sigma = zahl_lesen(wort(tem, 1));
    ergebnis.Ambiguitaeten = zahl_lesen(wort(tem, 5));
    for (int i = 7; i <= 9 && ergebnis.Loesung.empty(); ++i)
        if (const auto art = wort(tem, i); art.starts_with("Fixed") || art.starts_with("Float")) ergebnis.Loesung = art;
    return ergebnis;
}

}  // namespace jorv
