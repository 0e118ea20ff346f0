#include "projekt/basislinie_loeschen.h"

#include <algorithm>
#include <array>
#include <string>

#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "planung/basislinien.h"
#include "plattform/text.h"
#include "plattform/wort.h"

namespace jorv {

namespace {

// A row begins with the two points, four columns each and a blank between; the values behind are words.
constexpr std::size_t punkt_breite = 4, werte_spalte = 11;

// A file that collects a row of each baseline. `gleich` values from word `stelle` on are those of the words from
// `stelle_eigen` on in the baseline's own result: there dx dy dz, distance, sX sY sZ, rXY rYZ rZX.
struct Sammeldatei {
    std::string_view ordner, endung, beim_lesen, beim_schreiben;
    int stelle, stelle_eigen, gleich;
};

constexpr std::array<Sammeldatei, 3> sammeldateien = {
    {{"\\jorv_out\\export\\", ".MRK", u8"Die Ergebnisdatei für LOVENA:"_w, u8"In die Ergebnisdatei für LOVENA:"_w, 4, 5,
      6},
     {"\\jorv_out\\export\\", ".TEM", u8"Die Ergebnisdatei für Tem:"_w, u8"In die Ergebnisdatei für Tem:"_w, 2, 8, 3},
     {"\\jorv_out\\dat_bas\\", ".BAL", "Die Ergebnisdatei der Basislinie:", "In die Ergebnisdatei der Basislinie:", 1,
      1, 10}}};

struct Ergebnispfade {
    std::string protokoll, bericht, ergebnis;
};

Ergebnispfade ergebnispfade(const Global& g, const BASISLINIE_Satz& b)
{
    constexpr std::size_t endung = 4, stamm = 8;  // ".14o"; what the result's name keeps
    const std::string namen = verkettet(ohne_ende(b.Datei_von, endung), "-", ohne_ende(b.Datei_nach, endung));
    return {im_Verfahren(g, verkettet("jorv_out\\prot_bas\\", namen, ".PRT")),
            im_Verfahren(g, verkettet("jorv_out\\lis_bas\\", namen, ".LIS")),
            im_Verfahren(g, verkettet("jorv_out\\dat_bas\\", links(b.Datei_von, stamm), "-", links(b.Datei_nach, stamm),
                                      ".BAL"))};
}

bool bestaetigt(Global& g, std::string_view name)
{
    return g.oberflaeche->frage(Symbol::frage,
                                verkettet("Die Basislinie: ", name,
                                          u8" wird aus dem Verfahren entfernt!\n\nDie Funktion jetzt ausführen?"_w),
                                Antwort::nein) == Antwort::ja;
}

Fehler ergebnis_loeschen(Global& g, std::string_view pfad)
{
    if (!g.dateien.vorhanden(pfad) || !g.dateien.loeschen(pfad)) return Fehler::keiner;
    stop_melden(g,
                verkettet("Achtung!\n\nDas Basislinienergebnis: \n", pfad, "\n", u8"konnte nicht gelöscht werden!"_w));
    return Fehler::gesetzt;
}

std::string_view punkte(std::string_view zeile)
{
    return links(zeile, 2 * punkt_breite + 1);
}

// Tells the rows of one baseline: its points, and its values where another baseline joins files of the same points.
class Zeilenwahl {
public:
    Zeilenwahl(const Global& g, const BASISLINIE_Satz& b, std::string_view ergebnis) : m_punkte(kopf(b))
    {
        const auto gleiche = std::count_if(g.BASISLINIE.begin(), g.BASISLINIE.end(),
                                           [&](const BASISLINIE_Satz& andere) { return kopf(andere) == m_punkte; });
        m_eindeutig = gleiche == 1;
        Zeilenleser zeilen(ergebnis);
        while (const auto zeile = zeilen.naechste())
            if (punkte(*zeile) == m_punkte) m_eigene = *zeile;
    }

    bool gehoert(const Sammeldatei& art, std::string_view zeile) const
    {
        if (punkte(zeile) != m_punkte) return false;
        if (m_eindeutig) return true;
        if (m_eigene.empty()) return false;
        for (int i = 0; i < art.gleich; ++i)
            if (wert(zeile, art.stelle + i) != wert(m_eigene, art.stelle_eigen + i)) return false;
        return true;
    }

private:
    static std::string kopf(const BASISLINIE_Satz& b)
    {
        const auto breit = [](std::string_view datei) {
            std::string name(links(datei, punkt_breite));
            name.resize(punkt_breite, ' ');
            return name;
        };
        return verkettet(breit(b.Datei_von), " ", breit(b.Datei_nach));
    }
    static std::string_view wert(std::string_view zeile, int nummer)
    {
        return wort_finden(mitte(zeile, werte_spalte), nummer).text;
    }

    std::string m_punkte;
    std::string m_eigene;
    bool m_eindeutig = false;
};

// The text without the baseline's rows, every other byte as it was.
std::string ohne_zeilen(std::string_view text, const Sammeldatei& art, const Zeilenwahl& wahl)
{
    std::string bleibt;
    while (!text.empty()) {
        const std::string_view zeile = text.substr(0, std::min(text.find('\n'), text.size() - 1) + 1);
        if (!wahl.gehoert(art, zeile.substr(0, zeile.find_last_not_of("\r\n") + 1))) bleibt += zeile;
        text.remove_prefix(zeile.size());
    }
    return bleibt;
}

// A file without any row left goes, so that nothing takes it for results.
Fehler zeilen_entfernen(Global& g, const Sammeldatei& art, const Zeilenwahl& wahl)
{
    const std::string pfad = verkettet(g.Arbeitsverzeichnis, art.ordner, g.Verfahrensnummer, art.endung);
    if (!g.dateien.vorhanden(pfad)) return Fehler::keiner;
    const auto text = g.dateien.lesen(pfad);
    if (!text) {
        stop_melden(g, datei_meldung(art.beim_lesen, pfad, u8"konnte nicht geöffnet werden!"_w));
        return Fehler::gesetzt;
    }
    const std::string bleibt = ohne_zeilen(*text, art, wahl);
    if (bleibt.size() == text->size()) return Fehler::keiner;
    if (bleibt.empty()) return ergebnis_loeschen(g, pfad);
    if (!g.dateien.schreiben(pfad, bleibt)) return Fehler::keiner;
    stop_melden(g, datei_meldung(art.beim_schreiben, pfad, "konnte nicht richtig geschrieben werden!"));
    return Fehler::gesetzt;
}

// The baseline's own result goes last: a second try needs it to tell the rows.
Fehler ergebnisse_loeschen(Global& g, const BASISLINIE_Satz& b)
{
    const Ergebnispfade pfade = ergebnispfade(g, b);
    if (ist_fehler(ergebnis_loeschen(g, pfade.protokoll)) || ist_fehler(ergebnis_loeschen(g, pfade.bericht)))
        return Fehler::gesetzt;
    const Zeilenwahl wahl(g, b, g.dateien.lesen(pfade.ergebnis).value_or(""));
    for (const Sammeldatei& art : sammeldateien)
        if (ist_fehler(zeilen_entfernen(g, art, wahl))) return Fehler::gesetzt;
    return ergebnis_loeschen(g, pfade.ergebnis);
}

Fehler satz_entfernen(Global& g, int stelle)
{
    const int rest = g.BASISLINIE.anzahl() - 1;
    const auto satz = g.BASISLINIE.begin() + (stelle - 1);
    std::rotate(satz, satz + 1, g.BASISLINIE.end());
    if (g.BASISLINIE.groesse_setzen(rest)) return Fehler::keiner;
    stop_melden(g, dimensionierung_meldung(86, "BASISLINIE_loeschen",
                                           verkettet("    ReDim Preserve BASISLINIE(", rest, ")"), " ", "!"));
    return Fehler::gesetzt;
}

}  // namespace

Fehler BASISLINIE_loeschen(Global& g, std::string_view name)
{
    if (!ist_B(g)) return Fehler::keiner;
    const int stelle = Index_BASISLINIE(g, name);
    if (stelle == 0) return Fehler::gesetzt;
    if (!bestaetigt(g, name)) return Fehler::keiner;
    if (ist_fehler(ergebnisse_loeschen(g, g.BASISLINIE[stelle])) || ist_fehler(satz_entfernen(g, stelle)))
        return Fehler::gesetzt;
    baum_aufbauen(g);
    g.oberflaeche->karte_zeichnen(false);
    return Fehler::keiner;
}

}  // namespace jorv
