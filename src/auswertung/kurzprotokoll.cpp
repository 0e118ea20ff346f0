#include "auswertung/kurzprotokoll.h"

#include <algorithm>
#include <array>
#include <optional>

#include "auswertung/berichtstext.h"
#include "auswertung/dateifehler.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"

namespace jorv {

namespace {

constexpr std::string_view nicht_geoeffnet = u8"konnte nicht geöffnet werden!"_w;
constexpr std::string_view nicht_gelesen = "konnte nicht richtig gelesen werden!";
constexpr std::string_view nicht_geschrieben = "konnte nicht richtig geschrieben werden!";

// The report of the last run looks for the letter O, the report of all rovers for the digit.
constexpr std::string_view L0_letzter_lauf = "FixedLO";
constexpr std::string_view L0_aller = "FixedL0";

constexpr std::array<std::string_view, 3> einstellungskopf = {
    u8"  Name der  |Elevation| Kürzung in [min]| ausgeschaltete"_w,
    " ROVER-Datei|         |  Start |  Ende  | Satelliten",
    "------------+---------+--------+--------+---------------------------"};

void oeffnen_oder_lesen_melden(Global& g, const std::string& datei, std::error_code fehler)
{
    stop_melden(
        g, datei_meldung("Die Kurzprotokolldatei:", datei, beim_uebertragen(fehler) ? nicht_gelesen : nicht_geoeffnet));
}

// Every line of the file; false when it can't be read or there is no room (shown).
bool zeilen_lesen(Global& g, const std::string& datei, Feld<std::string>& l_zeile)
{
    std::error_code fehler;
    const auto text = g.dateien.lesen(datei, fehler);
    if (!text) {
        oeffnen_oder_lesen_melden(g, datei, fehler);
        return false;
    }
    Zeilenleser leser(*text);
    while (const auto zeile = leser.naechste())
        if (!l_zeile.anfuegen(std::string(*zeile))) {
            const std::string anweisung = verkettet("    ReDim Preserve l_zeile(", l_zeile.anzahl() + 1, ")");
            stop_melden(g, dimensionierung_meldung(50, "neue_antennen_datei", anweisung));
            return false;
        }
    return true;
}

std::string letzter_lauf(const Global& g, const Feld<std::string>& l_zeile, const Loesungszahl& zahl, int berechnungen,
                         int bereit)
{
    Berichtstext bericht;
    bericht.kopf(g, "KURZPROTOKOLL DES LETZTEN ROVER-BERECHNUNGSLAUFS", "Berechnet am:       ");
    bericht.zeile("Statistik:");
    bericht.zeile("Anzahl Berechnungen:", berechnungen);
    bericht.loesungen(l_zeile.anzahl(), bereit);
    zahl.schreiben(bericht);
    bericht.leerzeilen(3);
    bericht.tabellenkopf();
    for (const auto& zeile : l_zeile) bericht.zeile(zeile);
    bericht.antennendatei(g, "Nummern/Bezeichnungen der verwendeten Antennen: ");
    bericht.leerzeilen(1);
    bericht.antennen(g);
    return bericht.text();
}

// The filed row of a computed rover; nothing when it can't be read (shown).
std::optional<std::string> abgelegte_zeile(Global& g, std::string_view rover)
{
    const std::string datei = im_Verfahren(g, verkettet("jorv_out\\krz_rov\\", rover, ".KRZ"));
    std::error_code fehler;
    const auto text = g.dateien.lesen(datei, fehler);
    if (!text) {
        oeffnen_oder_lesen_melden(g, datei, fehler);
        return std::nullopt;
    }
    if (const auto zeile = Zeilenleser(*text).naechste()) return std::string(*zeile);
    stop_melden(g, datei_meldung("Die Kurzprotokolldatei:", datei, nicht_gelesen));
    return std::nullopt;
}

// The numbers aren't padded, so the columns align for the usual lengths only.
void einstellungen_schreiben(const Global& g, Berichtstext& bericht, const std::string& rover)
{
    const int index = Index_Settings(g, rover);
    const ROVER_Settings_Satz satz = index == 0 ? ROVER_Settings_Satz{} : g.ROVER_Settings[index];
    std::string aus;
    const int anzahl = std::clamp<int>(satz.AnzahlDelSatellite, 0, ROVER_Settings_Satz::max_satelliten);
    for (std::size_t i = 1; i <= static_cast<std::size_t>(anzahl); ++i)
        if (satz.DelSatellite[i] == 0) aus += verkettet(" ", satz.DelSatelliteName[i]);
    bericht.zeile(rover, "     ", satz.Elevation, "         ", satz.DelFirstMinutes, "       ", satz.DelLastMinutes,
                  "    ", aus);
}

void statistik_aller(const Global& g, Berichtstext& bericht, int loesungen, const Loesungszahl& zahl)
{
    bericht.leerzeilen(3);
    bericht.zeile("Statistik:");
    bericht.zeile("----------");
    bericht.zeile("Anzahl ROVER:       ", g.OBS_R.anzahl());
    bericht.loesungen(loesungen, g.OBS_R.anzahl());
    zahl.schreiben(bericht);
}

void einstellungen_aller(const Global& g, Berichtstext& bericht, const std::vector<Knoten>& rover)
{
    bericht.leerzeilen(2);
    bericht.zeile("Einstellungen der ROVER:");
    bericht.zeile("------------------------");
    bericht.leerzeilen(1);
    for (const auto spalten : einstellungskopf) bericht.zeile(spalten);
    for (const auto& knoten : rover) einstellungen_schreiben(g, bericht, knoten.Text);
}

}  // namespace

void kurzprotokoll_erweitern(Global& g, int& float_, int& loesungen, int berechnungen, int bereit, int grenze)
{
    const std::string datei = Verfahrens_Datei(g, ".KRZ");
    if (!g.dateien.vorhanden(datei)) return;
    Feld<std::string> l_zeile;
    l_zeile.grenze_setzen(grenze);
    if (!zeilen_lesen(g, datei, l_zeile)) return;
    Loesungszahl zahl;
    for (const auto& zeile : l_zeile) zahl.zaehlen(zeile, L0_letzter_lauf);
    float_ = zahl.float_;
    loesungen = l_zeile.anzahl();
    const std::error_code fehler = g.dateien.schreiben(datei, letzter_lauf(g, l_zeile, zahl, berechnungen, bereit));
    if (!fehler) return;
    stop_melden(g, beim_uebertragen(fehler) ? datei_meldung("In die Datei:", datei, nicht_geschrieben)
                                            : datei_meldung("Die Kurzprotokolldatei:", datei, nicht_geoeffnet));
}

void kurzprotokoll_aller(Global& g)
{
    const Hauptknoten* berechnet = g.baum.finden("E_Datei");
    const std::vector<Knoten> rover = berechnet ? berechnet->Kinder : std::vector<Knoten>{};
    Berichtstext bericht;
    Loesungszahl zahl;
    bericht.kopf(g, "KURZPROTOKOLL DER BERECHNUNG ALLER ROVER", "Erstellt am:       ");
    bericht.tabellenkopf();
    for (const auto& knoten : rover) {
        const auto zeile = abgelegte_zeile(g, knoten.Text);
        if (!zeile) return;
        bericht.zeile(*zeile);
        zahl.zaehlen(*zeile, L0_aller);
    }
    statistik_aller(g, bericht, static_cast<int>(rover.size()), zahl);
    einstellungen_aller(g, bericht, rover);
    bericht.antennendatei(g, "Nummern/Bezeichnungen der verwendeten Antennen:");
    bericht.zeile("-----------------------------------------------");
    bericht.antennen(g);
    const std::string datei = Verfahrens_Datei(g, ".ALL");
    const std::error_code fehler = g.dateien.schreiben(datei, bericht.text());
    if (!fehler) return;
    stop_melden(g, beim_uebertragen(fehler)
                       ? datei_meldung("In die Gesamt-Kurzprotokolldatei:", datei, nicht_geschrieben)
                       : datei_meldung(u8"Die Kurzprotokolldatei für alle ROVER:"_w, datei, nicht_geoeffnet));
}

}  // namespace jorv
