#include "daten/katalog.h"

#include <array>
#include <optional>
#include <utility>

#include "daten/dateistand.h"
#include "daten/exe_datei.h"
#include "daten/grenzen.h"
#include "daten/krypt.h"
#include "daten/wortzahl.h"
#include "geo/xyz_nach_utm.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"
#include "plattform/wort.h"
#include "plattform/zahl.h"
#include "projekt/reihe.h"

namespace jorv {

namespace {

constexpr std::string_view katalog_name = "Grund_TOREL.CIF";
constexpr std::string_view kopf_datei = "Die Koordinatendatei:";

Fehler nicht_offen(Global& g)
{
    stop_melden(g, datei_meldung(kopf_datei, exe_datei(g, katalog_name), u8"konnte nicht geöffnet werden!"_w));
    return Fehler::gesetzt;
}

std::string_view rat()
{
    return u8"Datei überprüfen und ggf. neu versuchen!"_w;
}

Fehler lesefehler(Global& g)
{
    stop_melden(g, datei_meldung("Lesefehler in der Datei:", exe_datei(g, katalog_name), verkettet("\n", rat())));
    return Fehler::gesetzt;
}

Fehler nicht_dimensioniert(Global& g, int nummer, std::string_view routine, std::string_view anweisung)
{
    stop_melden(g, dimensionierung_meldung(nummer, routine, anweisung));
    return Fehler::gesetzt;
}

std::string preserve(int anzahl)
{
    return verkettet("ReDim Preserve TOREL_Punkt(", anzahl, ")");
}

int index_von(const Global& g, std::string_view PKZ)
{
    for (int i = 1; i <= g.TOREL_Punkt.anzahl(); ++i)
        if (g.TOREL_Punkt[i].PKZ == PKZ) return i;
    return 0;
}

// A coordinate in its columns; one that fills them gets a blank ahead, or it would run into the one before.
std::string spalte(double wert, std::string_view bild)
{
    const std::string text = zahl_format_fuell(wert, bild, " ");
    return text.starts_with(' ') ? text : verkettet(' ', text);
}

// The plain line of a station. A word with a blank goes into quotes, or it would be read to the blank only.
std::string klarzeile(const TOREL_Punkt_Satz& punkt)
{
    return verkettet(als_wort(punkt.PKZ), " ", zahl_format_fuell(punkt.X, "##########0.000", " "),
                     spalte(punkt.Y, "#######0.000"), spalte(punkt.Z, "#######0.000"), "   ", als_wort(punkt.Name));
}

// One more enciphered line; false when the station can't be enciphered.
bool zeile_anfuegen(std::string& bytes, const TOREL_Punkt_Satz& punkt)
{
    int fehler = 0;
    bytes += krypt(klarzeile(punkt), Kryptmodus::chiffrieren, fehler);
    bytes += "\r\n";
    return fehler == 0;
}

// Turns the commas of the place where the last word of the line before stood.
class Kommabereich {
public:
    std::string anwenden(std::string zeile) const
    {
        for (std::size_t i = m_beginn; i < m_beginn + m_laenge && i <= zeile.size(); ++i)
            if (i >= 1 && zeile[i - 1] == ',') zeile[i - 1] = '.';
        return zeile;
    }
    void merken(const Wort& wort) { m_beginn = wort.beginn, m_laenge = wort.laenge; }

private:
    std::size_t m_beginn = 1, m_laenge = 0;
};

// The words of a plain line; nothing after a message.
std::optional<TOREL_Punkt_Satz> zeile_lesen(Global& g, std::string_view zeile, const Leseort& ort)
{
    constexpr Wertname wert_PKZ = {"", "Punktkennzeichen (PKZ)", "Punktkennzeichen (PKZ)"};
    TOREL_Punkt_Satz punkt;
    const Wort kennzeichen = wort_finden(zeile, 1);
    if (kennzeichen.status != Wortstatus::gefunden) {
        stop_melden(g, wort_meldung(wert_PKZ, wortfehler(kennzeichen.status), ort.datei, ort.zeile));
        return std::nullopt;
    }
    punkt.PKZ = kennzeichen.text;
    if (!xyz_holen(g, zeile, 2, ort, punkt.X, punkt.Y, punkt.Z)) return std::nullopt;
    return punkt;
}

Fehler umrechnen(Global& g, TOREL_Punkt_Satz& punkt)
{
    if (!ist_fehler(xyz_nach_utm(punkt.X, punkt.Y, punkt.Z, punkt.Rechtswert, punkt.Hochwert))) return Fehler::keiner;
    stop_melden(g, verkettet("Fehler bei der Umrechnung von TOREL-Koordinaten!\n\n",
                             u8"TOREL-Datei überprüfen und ggf. neu versuchen!"_w));
    return Fehler::gesetzt;
}

Fehler katalog_lesen(Global& g)
{
    const std::string pfad = exe_datei(g, katalog_name);
    const Gelesen datei = g.dateien.lesen_stufenweise(pfad);
    if (!datei.gut()) return datei.stufe == Dateistufe::oeffnen ? nicht_offen(g) : lesefehler(g);
    return katalog_aus_text(g, datei.text, pfad);
}

// Fails unless memory knows every station of the file. Behind a damaged line it doesn't, and the file must stay as it
// is.
Fehler ganz_bekannt(Global& g)
{
    const std::string pfad = exe_datei(g, katalog_name);
    if (!g.dateien.vorhanden(pfad)) return Fehler::keiner;
    const Gelesen datei = g.dateien.lesen_stufenweise(pfad);
    if (!datei.gut()) return datei.stufe == Dateistufe::oeffnen ? nicht_offen(g) : lesefehler(g);
    Zeilenleser zeilen(datei.text);
    while (const auto chiffre = zeilen.naechste()) {
        int fehler = 0;
        const std::string klar = krypt(*chiffre, Kryptmodus::dechiffrieren, fehler);
        if (fehler != 0 || (!klar.empty() && index_von(g, wort_finden(klar, 1).text) == 0)) return lesefehler(g);
    }
    return Fehler::keiner;
}

// Writes the file and words its failure; `schreibfehler` is the text of a write that went wrong.
Fehler katalog_schreiben(Global& g, std::string_view bytes, std::string_view schreibfehler)
{
    switch (dateistand(exe_datei_schreiben(g, katalog_name, bytes))) {
        case Dateistand::gut:
            return Fehler::keiner;
        case Dateistand::nicht_offen:
            return nicht_offen(g);
        case Dateistand::gestoert:
            break;
    }
    stop_melden(g, schreibfehler);
    return Fehler::gesetzt;
}

std::string eintrag_meldung(std::string_view was)
{
    return verkettet("Fehler bei der Erzeugung (", was, ") eines neuen\nEintrags in der Grund_TOREL.CIF");
}

Fehler eintrag_gescheitert(Global& g)
{
    stop_melden(g, eintrag_meldung("krypt"));
    return Fehler::gesetzt;
}

// Appends one line to what the file holds; the file is there as a whole before and after.
Fehler station_anhaengen(Global& g, const TOREL_Punkt_Satz& punkt)
{
    const std::string pfad = exe_datei(g, katalog_name);
    std::error_code grund;
    auto bytes = g.dateien.vorhanden(pfad) ? g.dateien.lesen(pfad, grund) : std::optional<std::string>("");
    if (!bytes) return nicht_offen(g);
    if (!bytes->empty() && !bytes->ends_with('\n')) *bytes += "\r\n";
    if (!zeile_anfuegen(*bytes, punkt)) return eintrag_gescheitert(g);
    return katalog_schreiben(g, *bytes, eintrag_meldung("write"));
}

Fehler alle_schreiben(Global& g)
{
    const auto bytes = katalog_als_text(g.TOREL_Punkt);
    return bytes ? katalog_schreiben(g, *bytes, eintrag_meldung("write")) : eintrag_gescheitert(g);
}

// The name behind the fourth word: the rest of the line, its quotes taken off.
std::string listenname(std::string_view zeile)
{
    const Wort letztes = wort_finden(zeile, 4), name = wort_finden(zeile, 5);
    if (name.status != Wortstatus::gefunden) return {};
    const auto rest = trimmen(mitte(zeile, letztes.beginn + letztes.laenge));
    return ascii_umschrift(rest.starts_with('"') ? name.text : rest);
}

}  // namespace

Fehler katalog_aus_text(Global& g, std::string_view chiffrat, std::string_view pfad)
{
    if (!g.TOREL_Punkt.groesse_setzen(1))
        return nicht_dimensioniert(g, 10, "torel_coo_laden", "    ReDim TOREL_Punkt(1)");
    g.TOREL_Punkt.leeren();

    Zeilenleser zeilen(chiffrat);
    Kommabereich bereich;
    int nummer = 0;
    while (const auto chiffre = zeilen.naechste()) {
        int fehler = 0;
        const std::string klar = krypt(*chiffre, Kryptmodus::dechiffrieren, fehler);
        ++nummer;
        if (fehler != 0) return lesefehler(g);
        if (klar.empty()) continue;
        const std::string zeile = bereich.anwenden(klar);
        auto punkt = zeile_lesen(g, zeile, {pfad, nummer});
        if (!punkt) return Fehler::gesetzt;
        const Wort name = wort_finden(zeile, 5);
        bereich.merken(name);
        if (name.status == Wortstatus::gefunden) punkt->Name = name.text;
        if (!g.TOREL_Punkt.anfuegen())
            return nicht_dimensioniert(g, 11, "torel_coo_laden", preserve(g.TOREL_Punkt.anzahl() + 1));
        if (ist_fehler(umrechnen(g, *punkt))) {
            g.TOREL_Punkt.entfernen(g.TOREL_Punkt.anzahl());
            return Fehler::gesetzt;
        }
        g.TOREL_Punkt.letztes() = std::move(*punkt);
    }
    return Fehler::keiner;
}

std::optional<std::string> katalog_als_text(const Feld<TOREL_Punkt_Satz>& stationen)
{
    std::string bytes;
    for (const auto& punkt : stationen)
        if (!zeile_anfuegen(bytes, punkt)) return std::nullopt;
    return bytes;
}

std::string ascii_umschrift(std::string_view text)
{
    constexpr std::array<std::pair<std::string_view, std::string_view>, 7> umschrift = {{{u8"ä"_w, "ae"},
                                                                                         {u8"Ä"_w, "Ae"},
                                                                                         {u8"ö"_w, "oe"},
                                                                                         {u8"Ö"_w, "Oe"},
                                                                                         {u8"ü"_w, "ue"},
                                                                                         {u8"Ü"_w, "Ue"},
                                                                                         {u8"ß"_w, "ss"}}};
    std::string neu(text);
    for (const auto& [von, nach] : umschrift) neu = ersetzt(neu, von, nach);
    return neu;
}

Fehler torel_coo_laden(Global& g)
{
    if (ist_fehler(katalog_lesen(g))) return Fehler::gesetzt;
    return g.Grenzen == "1" ? grafik_grenzen_laden(g) : Fehler::keiner;
}

Fehler torel_grund_neu(Global& g, std::string_view PKZ, double X, double Y, double Z, double Rechtswert,
                       double Hochwert, std::string_view Name)
{
    const int i = index_von(g, PKZ);
    if (i == 0) {
        const TOREL_Punkt_Satz punkt{std::string(PKZ), ascii_umschrift(Name), Rechtswert, Hochwert, X, Y, Z};
        if (!g.TOREL_Punkt.anfuegen(punkt))
            return nicht_dimensioniert(g, 38, "torel_grund_neu", preserve(g.TOREL_Punkt.anzahl() + 1));
        return ist_fehler(ganz_bekannt(g)) ? Fehler::gesetzt : station_anhaengen(g, punkt);
    }
    auto& punkt = g.TOREL_Punkt[i];
    if (punkt.X == X && punkt.Y == Y && punkt.Z == Z) return Fehler::keiner;
    punkt.X = X, punkt.Y = Y, punkt.Z = Z;
    punkt.Rechtswert = Rechtswert, punkt.Hochwert = Hochwert;
    return ist_fehler(ganz_bekannt(g)) ? Fehler::gesetzt : alle_schreiben(g);
}

Fehler torel_punkt_entfernen(Global& g, int index)
{
    if (index < 1 || index > g.TOREL_Punkt.anzahl()) return Fehler::gesetzt;
    if (ist_fehler(ganz_bekannt(g))) return Fehler::gesetzt;
    const auto& weg = g.TOREL_Punkt[index];
    const std::string text = verkettet(
        u8"Achtung!\n\nDer ausgewählte Punkt: "_w, weg.PKZ, weg.Name.empty() ? "" : verkettet(" (", weg.Name, ") "),
        "\n", u8"wird zukünftig in Jorv nicht mehr als TOREL-Punkt angezeigt.\n\nPunkt jetzt entfernen?"_w);
    if (g.oberflaeche->frage(Symbol::frage, text, Antwort::nein) == Antwort::nein) return Fehler::keiner;

    const std::string pfad = exe_datei(g, katalog_name);
    std::string bytes;
    for (int i = 1; i <= g.TOREL_Punkt.anzahl(); ++i) {
        if (i == index || zeile_anfuegen(bytes, g.TOREL_Punkt[i])) continue;
        stop_melden(g, verkettet("Die Chiffrierung der Koordinatendatei:\n", pfad,
                                 "\nhat nicht geklappt!\n\nBitte die Grund_TOREL.CIF erneut installieren"));
        return Fehler::gesetzt;
    }
    const std::string schreibfehler =
        datei_meldung("In die Koordinatendatei:", pfad, "konnte nicht fehlerfrei geschrieben werden!");
    if (ist_fehler(katalog_schreiben(g, bytes, schreibfehler))) return Fehler::gesetzt;
    const Fehler fehler = torel_coo_laden(g);
    g.oberflaeche->karte_zeichnen(false);
    return fehler;
}

Fehler katalog_machen(Global& g, std::string_view listentext)
{
    Zeilenleser zeilen(listentext);
    std::string bytes;
    int nummer = 0;
    while (const auto zeile = zeilen.naechste()) {
        ++nummer;
        if (trimmen(*zeile).empty()) continue;
        auto punkt = zeile_lesen(g, *zeile, {"Stationsliste", nummer});
        if (!punkt || ist_fehler(umrechnen(g, *punkt))) return Fehler::gesetzt;
        punkt->Name = listenname(*zeile);
        if (!zeile_anfuegen(bytes, *punkt)) return eintrag_gescheitert(g);
    }
    if (ist_fehler(katalog_schreiben(g, bytes, eintrag_meldung("write")))) return Fehler::gesetzt;
    return katalog_lesen(g);
}

}  // namespace jorv
