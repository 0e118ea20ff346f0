#include "daten/grenzen.h"

#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "daten/dateistand.h"
#include "daten/exe_datei.h"
#include "daten/krypt.h"
#include "daten/wortzahl.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

constexpr std::string_view grenzen_name = "jv_lnd.cif";

constexpr Wertname wert_anzahl = {"Konvertierungsfehler bei der Zeilenanzahl", "Zeilenanzahl", "Zeilenanzahl"};
constexpr Wertname wert_typ = {"Konvertierungsfehler beim Typ", "Typ", "Typ"};
constexpr Wertname wert_rechts = {"Konvertierungsfehler beim Rechtswert", "Rechtswert", "Rechtswert"};
constexpr Wertname wert_hoch = {"Konvertierungsfehler beim Hochwert", "Hochwert", "Hochwert"};

// The wait panel, hidden and reset at every way out.
class Wartefeld {
public:
    explicit Wartefeld(Global& g) : m_g(&g) { g.oberflaeche->fortschritt_zeigen("Bitte warten (Grafikdaten laden)"); }
    Wartefeld(const Wartefeld&) = delete;
    Wartefeld& operator=(const Wartefeld&) = delete;
    ~Wartefeld()
    {
        m_g->oberflaeche->fortschritt_verbergen();
        m_g->oberflaeche->fortschritt_setzen(0);
    }

    /// Moves the bar and lets events through, at most once a per cent.
    void weiter(int zeile, std::int32_t anzahl)
    {
        const double prozent = anzahl > 0 ? std::fmin(zeile * 100.0 / anzahl, 100.0) : 0;
        if (anzahl > 100 && std::floor(prozent) == m_stand) return;
        m_stand = std::floor(prozent);
        m_g->oberflaeche->fortschritt_setzen(prozent);
        if (m_g->oberflaeche->ereignisse()) m_g->abbruch = -1;
    }

private:
    Global* m_g;
    double m_stand = -1;
};

std::optional<std::string> klartext(Global& g, std::string_view chiffre, const Leseort& ort)
{
    int fehler = 0;
    std::string klar = krypt(chiffre, Kryptmodus::dechiffrieren, fehler);
    if (fehler == 0) return klar;
    constexpr Wertname entschluesselung = {u8"Entschlüsselungsfehler"_w, "", ""};
    stop_melden(g, wort_meldung(entschluesselung, Wortfehler::konvertierung, ort.datei, ort.zeile));
    return std::nullopt;
}

std::optional<Lnd_Satz> punkt_lesen(Global& g, std::string_view zeile, const Leseort& ort)
{
    const auto typ = ganz32_holen(g, zeile, 1, wert_typ, ort);
    if (!typ) return std::nullopt;
    if (*typ < 0 || *typ > std::numeric_limits<std::uint8_t>::max()) {
        stop_melden(g, wort_meldung(wert_typ, Wortfehler::konvertierung, ort.datei, ort.zeile));
        return std::nullopt;
    }
    const auto rechts = zahl_holen(g, zeile, 2, wert_rechts, ort);
    if (!rechts) return std::nullopt;
    const auto hoch = zahl_holen(g, zeile, 3, wert_hoch, ort);
    if (!hoch) return std::nullopt;
    return Lnd_Satz{static_cast<std::uint8_t>(*typ), *rechts, *hoch};
}

Fehler nicht_dimensioniert(Global& g, int nummer, std::string_view anweisung)
{
    stop_melden(g, dimensionierung_meldung(nummer, "grafik_grenzen_laden", anweisung));
    return Fehler::gesetzt;
}

// The message has always named this file.
Fehler nicht_offen(Global& g)
{
    stop_melden(g, datei_meldung("Die Datei mit den Landesgrenzen:", verkettet(exe_verzeichnis(g), "\\jv_lnd.dat"),
                                 u8"konnte nicht geöffnet werden!"_w));
    return Fehler::gesetzt;
}

Fehler grenzen_lesen(Global& g, std::string_view chiffrat, std::string_view pfad, Wartefeld& wartefeld)
{
    if (!g.Lnd.groesse_setzen(0)) return nicht_dimensioniert(g, 39, "    ReDim Lnd(0)");

    Zeilenleser zeilen(chiffrat);
    const auto erste = klartext(g, zeilen.naechste().value_or(""), {pfad, 1});
    if (!erste) return Fehler::gesetzt;
    const auto anzahl = ganz32_holen(g, *erste, 1, wert_anzahl, {pfad, 1});
    if (!anzahl) return Fehler::gesetzt;
    g.abbruch = 0;
    int nummer = 1;
    while (g.abbruch == 0) {
        const auto chiffre = zeilen.naechste();
        if (!chiffre) return Fehler::keiner;
        ++nummer;
        wartefeld.weiter(nummer - 1, *anzahl);
        const auto zeile = klartext(g, *chiffre, {pfad, nummer});
        if (!zeile) return Fehler::gesetzt;
        if (zeile->empty()) continue;
        const auto punkt = punkt_lesen(g, *zeile, {pfad, nummer});
        if (!punkt) return Fehler::gesetzt;
        if (!g.Lnd.anfuegen(*punkt))
            return nicht_dimensioniert(g, 40, verkettet("    ReDim Lnd(", g.Lnd.anzahl() + 1, ")"));
    }
    g.Grenzen.assign(1, '0');
    return Fehler::keiner;
}

}  // namespace

Fehler grafik_grenzen_laden(Global& g)
{
    Wartefeld wartefeld(g);
    const std::string pfad = exe_datei(g, grenzen_name);
    const auto inhalt = g.dateien.lesen(pfad);
    return inhalt ? grenzen_lesen(g, *inhalt, pfad, wartefeld) : nicht_offen(g);
}

Fehler grenzen_aus_text(Global& g, std::string_view chiffrat, std::string_view pfad)
{
    Wartefeld wartefeld(g);
    return grenzen_lesen(g, chiffrat, pfad, wartefeld);
}

void m_grafik_grenzen(Global& g)
{
    g.Grenzen.assign(1, g.Grenzen == "1" ? '0' : '1');
    if (g.Grenzen == "1" && ist_fehler(grafik_grenzen_laden(g))) g.Grenzen.assign(1, '0');
    g.oberflaeche->karte_zeichnen(true);
    g.oberflaeche->menue_erneuern();
}

std::optional<std::string> grenzen_als_text(const Feld<Lnd_Satz>& punkte)
{
    std::string bytes;
    bool gut = true;
    const auto anfuegen = [&](const std::string& klar) {
        int fehler = 0;
        bytes += krypt(klar, Kryptmodus::chiffrieren, fehler);
        bytes += "\r\n";
        gut = gut && fehler == 0;
    };
    anfuegen(verkettet(punkte.anzahl()));
    for (const auto& p : punkte)
        anfuegen(verkettet(static_cast<int>(p.Typ), " ", fest(p.Rechtswert, 3), " ", fest(p.Hochwert, 3)));
    return gut ? std::optional(std::move(bytes)) : std::nullopt;
}

Fehler grenzen_machen(Global& g, std::string_view listentext)
{
    Zeilenleser zeilen(listentext);
    Feld<Lnd_Satz> punkte;
    bool gut = true;
    int nummer = 0;
    while (const auto zeile = zeilen.naechste()) {
        ++nummer;
        if (trimmen(*zeile).empty()) continue;
        const auto punkt = punkt_lesen(g, *zeile, {"Grenzliste", nummer});
        if (!punkt) return Fehler::gesetzt;
        gut = punkte.anfuegen(*punkt) && gut;
    }
    const auto bytes = gut ? grenzen_als_text(punkte) : std::nullopt;
    if (!bytes || exe_datei_schreiben(g, grenzen_name, *bytes)) {
        stop_melden(g, datei_meldung("In die Datei mit den Landesgrenzen:", exe_datei(g, grenzen_name),
                                     "konnte nicht fehlerfrei geschrieben werden!"));
        return Fehler::gesetzt;
    }
    return Fehler::keiner;
}

}  // namespace jorv
