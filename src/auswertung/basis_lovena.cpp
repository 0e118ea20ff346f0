#include "auswertung/basis_lovena.h"

#include <array>
#include <optional>

#include "auswertung/aufrufdatei.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

// The words of a row in their order; all but the two points are numbers.
constexpr std::array<std::string_view, 12> felder = {"PKZ (VON)", "PKZ (NACH)", "dx",  "dy",  "dz",  "sX",
                                                     "sY",        "sZ",         "rXY", "rYZ", "rZX", "Tag"};
constexpr std::size_t anzahl_punkte = 2;

constexpr std::string_view begrenzung = " -99\r\n";
constexpr double mm_je_meter = 1000;

struct Reihe {
    std::string_view von, nach;
    std::array<double, felder.size() - anzahl_punkte> werte{};
    /// By the word's number in the row, from 1.
    double wert(std::size_t wort) const { return werte[wort - anzahl_punkte - 1]; }
};

std::optional<Reihe> reihe_lesen(Global& g, const std::string& datei, std::string_view zeile, int nummer)
{
    Reihe reihe;
    Wortfolge worte(zeile);
    for (std::size_t i = 0; i < felder.size(); ++i) {
        const Wort wort = worte.naechstes();
        std::optional<Wortfehler> fehler;
        if (wort.status != Wortstatus::gefunden) {
            fehler = wortfehler(wort.status);
        } else if (i < anzahl_punkte) {
            (i == 0 ? reihe.von : reihe.nach) = wort.text;
        } else if (const auto wert = zahl_streng(ersetzt(std::string(wort.text), ',', '.'))) {
            reihe.werte[i - anzahl_punkte] = *wert;
        } else {
            fehler = Wortfehler::fehlerhaft;  // a zero in its place would pass for an observation
        }
        if (!fehler) continue;
        stop_melden(g, wort_meldung({"", felder[i], felder[i]}, *fehler, datei, nummer));
        return std::nullopt;
    }
    return reihe;
}

// rZX stands before rYZ: the adjustment wants this order.
std::string zwei_zeilen(const Global& g, const Reihe& reihe)
{
    std::string text = verkettet("       ", reihe.von, "       ", reihe.nach, "  ");
    for (const std::size_t wort : {3u, 4u, 5u}) text += zahl_format(reihe.wert(wort) / mm_je_meter, "####0.000000");
    text += "  3\r\n";
    for (const std::size_t wort : {6u, 7u, 8u}) text += zahl_format(reihe.wert(wort), "###0.000");
    for (const std::size_t wort : {9u, 11u, 10u}) text += zahl_format(reihe.wert(wort), "#0.0000");
    return text + verkettet(" ", g.uhr->jetzt().jahr, zahl_format(reihe.wert(12), "####"), "\r\n");
}

std::optional<std::string> ergebnisse_lesen(Global& g, const std::string& datei)
{
    Gelesen gelesen = g.dateien.lesen_stufenweise(datei);
    if (gelesen.gut()) return std::move(gelesen.text);
    stop_melden(g,
                gelesen.stufe == Dateistufe::oeffnen
                    ? datei_meldung("Die Datei mit Basislinienergebnissen:", datei, u8"konnte nicht geöffnet werden!"_w)
                    : datei_meldung("Die Datei mit den Basislinienergebnissen:", datei,
                                    "konnte nicht richtig gelesen werden!"));
    return std::nullopt;
}

}  // namespace

Fehler m_basis_lovena(Global& g)
{
    const std::string ein = im_Verfahren(g, verkettet("jorv_out\\export\\", g.Verfahrensnummer, ".MRK"));
    const std::string aus = im_Verfahren(g, "RV001.DAT");
    if (!g.dateien.vorhanden(ein)) {
        stop_melden(g, u8"Eine Datei mit Basislinienergebnissen für das Verfahren existiert noch nicht!"_w);
        return Fehler::gesetzt;
    }
    if (!darf_ueberschreiben(g, "Die LOVENA-Datei:", aus)) return Fehler::gesetzt;
    const auto ergebnisse = ergebnisse_lesen(g, ein);
    if (!ergebnisse) return Fehler::gesetzt;
    std::string text(begrenzung);
    Zeilenleser leser(*ergebnisse);
    int nummer = 0;
    while (const auto zeile = leser.naechste())
        if (const auto reihe = reihe_lesen(g, ein, *zeile, ++nummer)) text += zwei_zeilen(g, *reihe);
    text += verkettet(begrenzung, begrenzung);
    if (g.dateien.schreiben(aus, text)) {
        stop_melden(g, datei_meldung("Die LOVENA-Datei:", aus, u8"konnte nicht angelegt/überschrieben werden!"_w));
        return Fehler::gesetzt;
    }
    g.oberflaeche->meldung(Symbol::info, datei_meldung("Die LOVENA-Datei:", aus, "erfolgreich erstellt!"));
    return Fehler::keiner;
}

}  // namespace jorv
