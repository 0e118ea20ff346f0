#include "daten/einfuegen.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <set>
#include <span>

#include "daten/antennen_datei.h"
#include "daten/dateiname.h"
#include "daten/katalog.h"
#include "daten/punkt_info.h"
#include "daten/rinex_position.h"
#include "daten/satelliten.h"
#include "geo/xyz_nach_utm.h"
#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "planung/automatik.h"
#include "planung/zeitfenster.h"
#include "plattform/pfad.h"
#include "plattform/text.h"
#include "plattform/zahl.h"
#include "projekt/projektdatei_schreiben.h"

namespace jorv {

namespace {

// Puts a name into a sorted list of files once; `feld` names the list in the message when it can't grow.
void eintragen(Global& g, Feld<std::string>& liste, const std::string& name, int nummer, std::string_view routine,
               std::string_view feld)
{
    if (std::find(liste.begin(), liste.end(), name) != liste.end()) return;
    if (!liste.anfuegen(name)) {
        stop_melden(g, dimensionierung_meldung(nummer, routine,
                                               verkettet("    ReDim Preserve ", feld, "(", liste.anzahl() + 1, ")")));
        return;
    }
    std::sort(liste.begin(), liste.end());
}

// ---- what the dialog offers

bool passt(const Global& g, Dateiart art, std::string_view verzeichnis, std::string_view name)
{
    const std::string endung = klein(rechts(name, 3));
    if (art == Dateiart::rinex) {
        constexpr std::string_view typen = "ong";
        const bool benannt = !endung.empty() && typen.find(endung.back()) != std::string_view::npos;
        return benannt && RINEX_Test(g, verzeichnis, name);
    }
    const std::string format = Antennenformat(g);
    const auto offen = [&format](std::string_view gesucht) { return format == "?" || format == gesucht; };
    return (endung == "apc" && offen("APC")) || (endung == "atx" && offen("ATX"));
}

// The walk over the directory that the dialog stands on.
class Sammler {
public:
    Sammler(const Global& g, Dateiart art, bool tief, const std::function<bool()>& weiter)
        : m_g(g), m_art(art), m_tief(tief), m_weiter(weiter)
    {
    }
    void sammeln(const std::string& verzeichnis)
    {
        std::error_code fehler;
        // A link that leads back upwards must not be followed for ever.
        const auto ort = std::filesystem::weakly_canonical(m_g.dateien.host(verzeichnis), fehler);
        if (!m_besucht.insert(ort).second) return;
        for (const auto& eintrag : m_g.dateien.ordner_lesen(verzeichnis)) {
            if (m_weiter && !m_weiter()) return;
            std::string pfad = pfad_verbinden(verzeichnis, eintrag.name);
            if (!eintrag.ordner && passt(m_g, m_art, verzeichnis, eintrag.name))
                liste.push_back(std::move(pfad));
            else if (eintrag.ordner && m_tief)
                sammeln(pfad);
        }
    }
    std::vector<std::string> liste;

private:
    const Global& m_g;
    Dateiart m_art;
    bool m_tief;
    const std::function<bool()>& m_weiter;
    std::set<std::filesystem::path> m_besucht;
};

// ---- copying

std::string formatwort(std::string_view format)
{
    return format == "APC" ? "IGS" : "ANTEX";
}

// The first antenna file settles the format of the project; false when this one has the other format.
bool format_festlegen(Global& g, std::string_view name)
{
    Verfahren_Satz* verfahren = aktuelles_Verfahren(g);
    if (!verfahren) return true;
    const std::string endung = klein(rechts(name, 3)), format = Antennenformat(g);
    if (format == "?") {
        verfahren->Antenne = endung == "apc" ? "APC" : "ATX";
        return true;
    }
    if ((endung == "atx" && format == "ATX") || (endung == "apc" && format == "APC")) return true;
    stop_melden(g, verkettet("Das Format von Antennenkorrekturdaten (IGS / ANTEX) darf\n",
                             "innerhalb eines Verfahrens nicht gemischt werden!\n",
                             "Die Festlegung erfolgt durch die zuerst geladene Datei \n",
                             "mit Antennenkorrekturdaten und ist zur Zeit: ", formatwort(format),
                             "\n\nLadefunktion abgebrochen."));
    return false;
}

// The end of the files from `ab` on that are copied together: so many that the disk isn't waited for at each, so few
// that the display moves and little is there twice on a nearly full disk. Antenna files go one by one, since the first
// of them settles the format of the others.
std::size_t ende_der_Gruppe(const Global& g, Dateiart art, const std::vector<std::string>& pfade, std::size_t ab)
{
    constexpr std::size_t hoechstens = 16;
    constexpr std::uint64_t bytes_hoechstens = 64'000'000;
    if (art == Dateiart::antennen) return ab + 1;
    std::uint64_t bytes = 0;
    std::size_t ende = ab;
    while (ende < pfade.size() && ende - ab < hoechstens && (ende == ab || bytes < bytes_hoechstens))
        bytes += g.dateien.groesse(pfade[ende++]).value_or(0);
    return ende;
}

// Copies the first of these and lists them, at least one; false after a message.
bool Gruppe_kopieren(Global& g, Dateiart art, std::span<const std::string> pfade, std::size_t& gelistet)
{
    std::vector<std::string> namen;
    std::vector<Kopie> kopien;
    for (const auto& pfad : pfade) {
        namen.push_back(klein(pfad_name(pfad)));
        if (art == Dateiart::antennen && !format_festlegen(g, namen.back())) return false;
        kopien.push_back({pfad, im_Verfahren(g, namen.back())});
    }
    std::error_code fehler;
    const std::size_t kopiert = g.dateien.gemeinsam_kopieren(kopien, fehler);
    if (kopiert == 0) {
        stop_melden(g, verkettet("Kopierfehler! Die Datei: \n", kopien[0].von, "\nkonnte nicht nach: \n",
                                 kopien[0].nach, "\nkopiert werden!"));
        return false;
    }
    // One that failed behind others leads the next group: a disk too full for the group may hold the file.
    while (gelistet < kopiert && g.dateien_liste.anfuegen(namen[gelistet])) ++gelistet;
    if (gelistet == kopiert) return true;
    stop_melden(g,
                dimensionierung_meldung(29, "(Dateien command1_click)",
                                        verkettet("    ReDim Preserve dateien_liste(", g.dateien_liste.anzahl(), ")")));
    return false;
}

void mit_Fortschritt_kopieren(Global& g, Dateiart art, const std::vector<std::string>& pfade)
{
    g.oberflaeche->fortschritt_zeigen(kopieren_text);
    dateien_kopieren(g, art, pfade, [&](std::size_t i) {
        if (art == Dateiart::rinex)
            g.oberflaeche->fortschritt_setzen(static_cast<double>(i + 1) * 100.0 / static_cast<double>(pfade.size()));
    });
    g.oberflaeche->fortschritt_verbergen();
}

// Shows the dialog and copies what the screen hasn't; true when a file was copied.
bool dialog(Global& g, Dateiart art)
{
    (void)g.dateien_liste.groesse_setzen(0);
    const auto wahl = g.oberflaeche->dateien_waehlen(art, g.Datei_Verzeichnis);
    if (!wahl) return false;
    if (!wahl->dateien.empty()) mit_Fortschritt_kopieren(g, art, wahl->dateien);
    g.Datei_Verzeichnis = wahl->verzeichnis;
    return g.dateien_liste.anzahl() > 0;
}

// ---- registering

// What the catalogue and the file say about the station; X, Y, Z and marker number are those of the file.
struct Stationsdatei {
    double X = 0, Y = 0, Z = 0;
    std::string Markernummer;
};

void in_katalog(Global& g, const std::string& name, const Stationsdatei& datei)
{
    double rechts = 0, hoch = 0;
    if (ist_fehler(xyz_nach_utm(datei.X, datei.Y, datei.Z, rechts, hoch)))
        stop_melden(g, umrechnung_meldung(Punktart::station, name));
    else
        (void)torel_grund_neu(g, links(name, 4), datei.X, datei.Y, datei.Z, rechts, hoch, datei.Markernummer);
}

Antwort neue_station_fragen(Global& g, std::string_view PKZ, const Stationsdatei& datei)
{
    return g.oberflaeche->frage(
        Symbol::frage,
        verkettet("Eine neue TOREL-Station: ", PKZ, " (", datei.Markernummer,
                  u8") für die Anzeige des Punktehimmels in der Grafik identifiziert!\n\nIst es tatsächlich eine neue "
                  "TOREL-Station, oder wurde eine nicht zulässige Punktnummer vergeben (siehe Handbuch)?\n\nDie neue "
                  "TOREL-Station laden?"_w),
        Antwort::ja);
}

struct Vergleichstexte {
    std::string X, Y, Z;
    bool operator==(const Vergleichstexte&) const = default;
};

template <typename T>
Vergleichstexte texte(const T& punkt)
{
    return {zahl_format(punkt.X, "#######0.000"), zahl_format(punkt.Y, "######0.000"),
            zahl_format(punkt.Z, "#######0.000")};
}

// True when the station stands where the catalogue has it, or the user takes the new place.
bool abweichung_klaeren(Global& g, const std::string& name, const TOREL_Punkt_Satz& punkt, const Stationsdatei& datei)
{
    const Vergleichstexte alt = texte(punkt), neu = texte(datei);
    if (alt == neu) return true;
    const auto zeile = [](std::string_view kopf, const Vergleichstexte& t) {
        return verkettet(kopf, "X: ", t.X, "   Y: ", t.Y, "   Z: ", t.Z, "\n");
    };
    const std::string frage = verkettet(
        "Die TOREL-Station: ", links(name, 4), u8" soll für die Anzeige des Punktehimmels in der Grafik\n"_w,
        "aus der Datei: ", name, " neue Koordinaten bekommen!\n\n", zeile("  alt     ", alt), zeile("  neu   ", neu),
        "\n", u8"Bei größeren Abweichungen liegt vermutlich ein Fehler vor (siehe Handbuch)!\n\n"_w,
        "Die Station trotz der Abweichungen laden?");
    if (g.oberflaeche->frage(Symbol::frage, frage, Antwort::nein) == Antwort::nein) return false;
    in_katalog(g, name, datei);
    return true;
}

// False when the user refuses the station; then the file isn't registered.
bool station_klaeren(Global& g, const std::string& name)
{
    const auto PKZ = links(name, 4);
    Stationsdatei datei;
    if (ist_fehler(rinex_position_lesen(g, name, datei.X, datei.Y, datei.Z, datei.Markernummer))) return true;
    const auto punkt = std::find_if(g.TOREL_Punkt.begin(), g.TOREL_Punkt.end(),
                                    [PKZ](const TOREL_Punkt_Satz& p) { return p.PKZ == PKZ; });
    if (punkt != g.TOREL_Punkt.end()) return abweichung_klaeren(g, name, *punkt, datei);
    if (neue_station_fragen(g, PKZ, datei) == Antwort::nein) return false;
    in_katalog(g, name, datei);
    return true;
}

// The batch cuts names by their columns: four of the point, three of the day, one of the session, ".yyo".
void spalten_pruefen(Global& g, std::string_view name)
{
    if (name.size() == 12 && name[8] == '.' && name.find(' ') == std::string_view::npos) return;
    g.oberflaeche->meldung(
        Symbol::warnung,
        verkettet(
            "Die ROVER-Datei:\n", name,
            u8"\nkann nicht berechnet werden!\n\nDer Name muss ohne Leerzeichen aus acht Zeichen, einem Punkt und "
            "drei Zeichen bestehen (z. B. 12340010.16o)."_w));
}

// ---- the whole project anew

// The state before an intake stays on the disk, since the intake sets back what the user has done by hand.
Fehler stand_aufheben(Global& g)
{
    if (ist_fehler(Verfahren_sichern(g))) return Fehler::gesetzt;
    const std::string ziel = Verfahrens_Datei(g, ".BAK");
    if (!g.dateien.kopieren(g.Verfahrensdatei, ziel)) return Fehler::keiner;
    stop_melden(g, verkettet("Kopierfehler! Die Datei: \n", g.Verfahrensdatei, "\nkonnte nicht nach: \n", ziel,
                             "\nkopiert werden!"));
    return Fehler::gesetzt;
}

void zuruecksetzen(Global& g)
{
    for (auto& zuordnung : g.ROVER_TOREL) zuordnung.Schutz = false;
    const auto leeren = [](auto&... felder) { (felder.leeren(), ...); };
    leeren(g.GEO_Punkt, g.OBS_S, g.OBS_R, g.OBS_V, g.S_Punkt, g.R_Punkt, g.V_Punkt, g.ROVER_TOREL, g.ROVER_Settings);
    g.geo_fertig = true;
}

bool ist_beobachtung(const Global& g, std::string_view name)
{
    // The virtual files of mode F bear names that the common test doesn't take.
    const bool virt = ist_F(g) && name.starts_with("virt") && klein(rechts(name, 1)) == "o";
    return virt || (obs_datei_pruefen(name) && !nav_datei_pruefen(name));
}

// One observation file into the records; false when it can't be read, then no record of it is left.
bool datei_aufnehmen(Global& g, const std::string& name)
{
    const auto zaehlen = [](auto&... felder) { return std::array{felder.anzahl()...}; };
    const auto vorher = zaehlen(g.R_Punkt, g.OBS_R, g.ROVER_Settings, g.V_Punkt, g.OBS_V, g.S_Punkt, g.OBS_S);
    Fehler fehler = punkt_info_lesen(g, name);
    if (!ist_fehler(fehler) && rover_pruefen(g, name) && obs_datei_pruefen(name)) fehler = satelliten_lesen(g, name);
    if (!ist_fehler(fehler)) return true;
    std::size_t i = 0;
    const auto kuerzen = [&](auto&... felder) { ((void)felder.groesse_setzen(vorher[i++]), ...); };
    kuerzen(g.R_Punkt, g.OBS_R, g.ROVER_Settings, g.V_Punkt, g.OBS_V, g.S_Punkt, g.OBS_S);
    return false;
}

void dateien_einlesen(Global& g)
{
    const int anzahl = g.RINEX_Dateien.anzahl();
    for (int i = 1; i <= anzahl; ++i) {
        g.oberflaeche->fortschritt_setzen(i * 100.0 / anzahl);
        const std::string name = g.RINEX_Dateien[i];
        const bool gelesen = !ist_beobachtung(g, name) || datei_aufnehmen(g, name);
        // Left in the list, an unreadable file would stop every later intake.
        if (!gelesen) g.RINEX_Dateien.entfernen(i);
        if (g.oberflaeche->ereignisse()) g.abbruch = -1;
        if (!gelesen || g.abbruch != 0) return;
    }
}

}  // namespace

bool RINEX_Test(const Global& g, std::string_view verzeichnis, std::string_view name)
{
    const std::string pfad = pfad_verbinden(verzeichnis, name);
    if (g.dateien.groesse(pfad).value_or(0) == 0) return false;
    if (!obs_datei_pruefen(name) && !nav_datei_pruefen(name) && !(ist_F(g) && virt_name(name))) return false;
    constexpr std::size_t laengste_zeile = 65536;
    const auto anfang = g.dateien.anfang_lesen(pfad, laengste_zeile);
    if (!anfang) return false;
    const auto zeile = gross(Zeilenleser(*anfang).naechste().value_or(""));
    return zeile.find("RINEX VERSION") != std::string::npos;
}

std::vector<std::string> einfuegbare_Dateien(const Global& g, Dateiart art, std::string_view verzeichnis,
                                             bool mit_Unterverzeichnissen, const std::function<bool()>& weiter)
{
    Sammler sammler(g, art, mit_Unterverzeichnissen, weiter);
    sammler.sammeln(std::string(verzeichnis));
    return std::move(sammler.liste);
}

void dateien_kopieren(Global& g, Dateiart art, const std::vector<std::string>& pfade,
                      const std::function<void(std::size_t)>& kopiert)
{
    bool weiter = true;
    for (std::size_t i = 0; weiter && i < pfade.size();) {
        const std::size_t ende = ende_der_Gruppe(g, art, pfade, i);
        std::size_t gelistet = 0;
        weiter = Gruppe_kopieren(g, art, std::span(pfade).subspan(i, ende - i), gelistet);
        for (const std::size_t bis = i + gelistet; i < bis; ++i)
            if (kopiert) kopiert(i);
    }
}

void neue_rinex_datei(Global& g, const std::string& name)
{
    const bool beobachtung = obs_datei_pruefen(name), rover = rover_pruefen(g, name);
    if (ist_E_oder_S(g) && beobachtung && !rover && !station_klaeren(g, name)) return;
    if (beobachtung && rover) spalten_pruefen(g, name);
    eintragen(g, g.RINEX_Dateien, name, 31, "neue_rinex_datei", "RINEX_Dateien");
}

void neue_antennen_datei(Global& g, const std::string& name)
{
    eintragen(g, g.Antennen_Dateien, name, 34, "neue_antennen_datei", "Antennen_Dateien");
}

void m_datei_rinex(Global& g)
{
    if (!g.Verfahren_offen() || !dialog(g, Dateiart::rinex)) return;
    g.abbruch = 0;
    if (ist_fehler(stand_aufheben(g))) return;
    zuruecksetzen(g);
    g.oberflaeche->fortschritt_zeigen("Bitte warten (Datenaufbereitung)");
    for (const auto& name : g.dateien_liste) neue_rinex_datei(g, name);
    dateien_einlesen(g);
    baum_aufbauen(g);
    g.oberflaeche->fortschritt_verbergen();
    automatik(g);
    zeitfenster_alle(g);
    Datum_setzen(g);
    g.oberflaeche->karte_zeichnen(true);
    (void)menue_zeitfenster(g);
    g.oberflaeche->menue_erneuern();
}

void m_datei_antenne(Global& g)
{
    if (!g.Verfahren_offen()) return;
    const bool kopiert = dialog(g, Dateiart::antennen);
    for (const auto& name : g.dateien_liste) neue_antennen_datei(g, name);
    if (kopiert && Antennenformat(g) == "APC")
        stop_melden(g,
                    u8"Antennen-Dateien im Format *.apc werden von JorvPlus nicht mehr unterstützt!\nWenn möglich "
                    "Antennen-Dateien im Format *.atx verwenden oder die Vorversion Jorv für die Auswertung nutzen."_w);
    if (kopiert && Antennenformat(g) == "ATX") {
        // A refused file leaves the list shorter and nothing written: the rest gets its turn.
        int anzahl = 0;
        do {
            anzahl = g.Antennen_Dateien.anzahl();
        } while (ist_fehler(VerfahrensATX_erzeugen(g)) && g.Antennen_Dateien.anzahl() < anzahl &&
                 g.Antennen_Dateien.anzahl() > 0);
    }
    if (Verfahren_Satz* verfahren = aktuelles_Verfahren(g); verfahren && g.Antennen_Dateien.anzahl() == 0)
        verfahren->Antenne = "?";
    if (kopiert) baum_aufbauen(g);
}

}  // namespace jorv
