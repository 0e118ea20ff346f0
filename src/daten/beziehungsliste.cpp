#include "daten/beziehungsliste.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "modell/Baum.h"
#include "modell/Meldungen.h"
#include "planung/basislinien.h"
#include "plattform/text.h"
#include "plattform/wort.h"

namespace jorv {

namespace {

constexpr Basispaarung aus_liste = {41, "beziehungsliste_laden", true};
constexpr std::size_t kennzeichen_laenge = 4;

constexpr Wertname wert_von = {"", "Punktbeziehung (VON)", "Punktbeziehung (VON)"};
constexpr Wertname wert_nach = {"", "Punktbeziehung (NACH)", "Punktbeziehung (NACH)"};

struct Beziehung {
    std::string_view von, nach;
};

// Names as the messages show them.
std::string zitiert(std::string_view name)
{
    return verkettet("\"", name, "\"");
}

std::optional<Beziehung> beziehung_lesen(Global& g, std::string_view zeile, std::string_view datei, int nummer)
{
    Wortfolge worte(zeile);
    Beziehung b;
    for (const auto& [wert, ziel] : {std::pair{&wert_von, &b.von}, std::pair{&wert_nach, &b.nach}}) {
        const Wort wort = worte.naechstes();
        if (wort.status != Wortstatus::gefunden) {
            stop_melden(g, wort_meldung(*wert, wortfehler(wort.status), datei, nummer));
            return std::nullopt;
        }
        *ziel = wort.text;
    }
    return b;
}

bool hat_daten(const Global& g, std::string_view punkt)
{
    return std::any_of(g.RINEX_Dateien.begin(), g.RINEX_Dateien.end(),
                       [&](const std::string& name) { return links(name, kennzeichen_laenge) == punkt; });
}

bool hat_daten(Global& g, const Beziehung& b, std::string_view datei)
{
    for (const auto punkt : {b.von, b.nach}) {
        if (hat_daten(g, punkt)) continue;
        g.oberflaeche->meldung(Symbol::warnung,
                               verkettet("Zum Punkt: ", zitiert(punkt), " in der Datei:\n", datei,
                                         "\nsind keine Daten in Jorv geladen.\nZwischen den Punkten: ", zitiert(b.von),
                                         " und ", zitiert(b.nach), " kann daher keine Basislinie gebildet werden!"));
        return false;
    }
    return true;
}

bool verschieden(Global& g, const Beziehung& b)
{
    if (b.von != b.nach) return true;
    g.oberflaeche->meldung(Symbol::warnung, verkettet("Von Punkt: ", zitiert(b.von), " zu ", zitiert(b.nach),
                                                      " kann keine Basislinie gebildet werden!"));
    return false;
}

}  // namespace

Fehler beziehungen_lesen(Global& g, std::string_view text, std::string_view datei)
{
    Zeilenleser zeilen(text);
    int nummer = 0;
    while (const auto zeile = zeilen.naechste()) {
        ++nummer;
        if (zeile->empty()) continue;
        const auto b = beziehung_lesen(g, *zeile, datei, nummer);
        if (!b) return Fehler::gesetzt;
        if (!hat_daten(g, *b, datei) || !verschieden(g, *b)) continue;
        if (ist_fehler(basislinien_bilden(g, aus_liste, b->von, b->nach))) return Fehler::gesetzt;
    }
    return Fehler::keiner;
}

Fehler m_datei_basis_liste(Global& g, std::string_view gewaehlt)
{
    if (gewaehlt.empty() || gewaehlt == basisliste_auswahl_name) return Fehler::keiner;
    return beziehungsliste_laden(g, gewaehlt);
}

Fehler beziehungsliste_laden(Global& g, std::string_view datei)
{
    const Gelesen liste = g.dateien.lesen_stufenweise(datei);
    if (!liste.gut()) {
        stop_melden(g, datei_meldung("Die Datei mit den Punktbeziehungen:", datei,
                                     liste.stufe == Dateistufe::oeffnen ? u8"konnte nicht geöffnet werden!"_w
                                                                        : "konnte nicht richtig gelesen werden!"));
        return Fehler::gesetzt;
    }
    const Fehler fehler = beziehungen_lesen(g, liste.text, datei);
    baum_aufbauen(g);
    g.oberflaeche->karte_zeichnen(false);
    return fehler;
}

}  // namespace jorv
