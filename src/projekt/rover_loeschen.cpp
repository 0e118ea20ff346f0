#include "projekt/rover_loeschen.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "planung/zeitfenster.h"
#include "plattform/profil.h"
#include "plattform/text.h"
#include "projekt/projektdatei_schreiben.h"

namespace jorv {

namespace {

struct Ergebnisdatei {
    std::string_view ordner, endung, kopf;
};

constexpr std::array<Ergebnisdatei, 3> ergebnisdateien = {
    {{"\\jorv_out\\lis_rov\\", ".LIS", "Die Protokolldatei:"},
     {"\\jorv_out\\error_rov\\", ".ERR", "Die Fehlerprotokolldatei:"},
     {"\\jorv_out\\dat_rov\\", ".UTM", "Die Ergebnisdateidatei:"}}};

bool bestaetigt(Global& g, std::string_view rover)
{
    return g.oberflaeche->frage(Symbol::frage,
                                verkettet("Die ROVER-Datei: ", rover,
                                          u8" wird aus dem Verfahren entfernt!\n"
                                          u8"Sie wird dabei auch im Verzeichnis des Verfahrens physikalisch gelöscht!\n"
                                          u8"\nDie Funktion jetzt ausführen?"_w),
                                Antwort::nein) == Antwort::ja;
}

Fehler datei_da(Global& g, std::string_view rover)
{
    if (g.dateien.ist_datei(im_Verfahren(g, rover))) return Fehler::keiner;
    stop_melden(g, verkettet("Die ROVER-Datei: ", rover, "\nist nicht mehr im Verfahrensverzeichnis: ",
                             g.Arbeitsverzeichnis, u8"\nvorhanden! Löschfunktion abgebrochen"_w));
    return Fehler::gesetzt;
}

Fehler datei_loeschen(Global& g, std::string_view rover)
{
    if (!g.dateien.loeschen(im_Verfahren(g, rover))) return Fehler::keiner;
    stop_melden(g,
                verkettet("Die ROVER-Datei: ", rover, u8"\nkonnte nicht gelöscht werden! Löschfunktion abgebrochen"_w));
    return Fehler::gesetzt;
}

void ergebnisse_loeschen(Global& g, std::string_view rover)
{
    for (const auto& e : ergebnisdateien) {
        const std::string pfad = verkettet(g.Arbeitsverzeichnis, e.ordner, rover, e.endung);
        if (g.dateien.vorhanden(pfad) && g.dateien.loeschen(pfad))
            g.oberflaeche->meldung(Symbol::warnung, datei_meldung(e.kopf, pfad, u8"konnte nicht gelöscht werden!"_w));
    }
}

// Takes elements out of arrays; the first array that can't be resized shows its message and stops the rest.
class Verkuerzung {
public:
    explicit Verkuerzung(Global& g) : m_g(g) {}

    template <typename T>
    Verkuerzung& ohne(Feld<T>& feld, int stelle, int nummer, std::string_view anweisung)
    {
        if (m_gescheitert || stelle < 1 || stelle > feld.anzahl()) return *this;
        const int rest = feld.anzahl() - 1;
        for (int i = stelle; i <= rest; ++i) feld[i] = std::move(feld[i + 1]);
        m_gescheitert = !feld.groesse_setzen(rest);
        if (m_gescheitert)
            stop_melden(m_g, dimensionierung_meldung(nummer, "ROVER_Datei_loeschen",
                                                     verkettet("    ", anweisung, rest, ")"), " ", "!"));
        return *this;
    }
    bool gescheitert() const { return m_gescheitert; }

private:
    Global& m_g;
    bool m_gescheitert = false;
};

void basislinien_loeschen(Global& g, Verkuerzung& kuerzung, std::string_view rover)
{
    for (int i = 1; i <= g.BASISLINIE.anzahl() && !kuerzung.gescheitert();) {
        if (g.BASISLINIE[i].Datei_von == rover || g.BASISLINIE[i].Datei_nach == rover)
            kuerzung.ohne(g.BASISLINIE, i, 85, "ReDim Preserve BASISLINIE(");
        else
            ++i;
    }
}

void reihen_loeschen(Global& g, Verkuerzung& kuerzung, int stelle)
{
    kuerzung.ohne(g.OBS_R, stelle, 66, "ReDim Preserve OBS_R(");
    if (kuerzung.gescheitert()) return;
    if (stelle <= g.ROVER_Settings.anzahl()) g.ROVER_Settings.entfernen(stelle);
    kuerzung.ohne(g.R_Punkt, stelle, 67, "ReDim R_Punkt(");
    if (ist_E_oder_S(g)) kuerzung.ohne(g.ROVER_TOREL, stelle, 68, "ReDim Preserve ROVER_TOREL(");
    if (ist_F(g)) kuerzung.ohne(g.ROVER_VIRT, stelle, 70, "ReDim Preserve ROVER_VIRT(");
    if (static_cast<std::size_t>(stelle) <= g.Begruendungen.size())
        g.Begruendungen.erase(g.Begruendungen.begin() + stelle - 1);
}

// A save has blanked the rows behind the shortened arrays; here their keys go outright.
void letzte_schluessel_entfernen(Global& g)
{
    std::error_code fehler;
    Profil profil = Profil::aus_datei(g.dateien, g.Verfahrensdatei, fehler);
    const auto ohne = [&](std::string_view sektion, int rest) { profil.entfernen(sektion, verkettet(rest + 1)); };
    for (const std::string_view sektion : {"ROVER-OBS", "GRAPHIK-ROVER", "ROVER-SETTINGS"})
        ohne(sektion, g.OBS_R.anzahl());
    if (ist_E_oder_S(g)) ohne("ROVER-TOREL", g.OBS_R.anzahl());
    if (ist_F(g)) ohne("ROVER-VIRT", g.OBS_R.anzahl());
    ohne("RINEX-DATEIEN", g.RINEX_Dateien.anzahl());
    if (!fehler) fehler = profil.schreiben(g.dateien, g.Verfahrensdatei);
    if (fehler)
        stop_melden(g, datei_meldung("In die Verfahrensdatei: ", g.Verfahrensdatei,
                                     "konnt nicht fehlerfrei geschrieben werden!"));
}

// Everything that a removal takes rows out of, to be put back when it can't be finished.
class Bestand {
public:
    explicit Bestand(const Global& g)
        : m_obs(g.OBS_R),
          m_punkte(g.R_Punkt),
          m_settings(g.ROVER_Settings),
          m_torel(g.ROVER_TOREL),
          m_virt(g.ROVER_VIRT),
          m_basislinien(g.BASISLINIE),
          m_rinex(g.RINEX_Dateien),
          m_begruendungen(g.Begruendungen)
    {
    }
    void zurueck(Global& g) &&
    {
        g.OBS_R = std::move(m_obs);
        g.R_Punkt = std::move(m_punkte);
        g.ROVER_Settings = std::move(m_settings);
        g.ROVER_TOREL = std::move(m_torel);
        g.ROVER_VIRT = std::move(m_virt);
        g.BASISLINIE = std::move(m_basislinien);
        g.RINEX_Dateien = std::move(m_rinex);
        g.Begruendungen = std::move(m_begruendungen);
        baum_aufbauen(g);
    }

private:
    Feld<OBS> m_obs;
    Feld<Punkt> m_punkte;
    Feld<ROVER_Settings_Satz> m_settings;
    Feld<ROVER_TOREL_Satz> m_torel;
    Feld<ROVER_VIRT_Satz> m_virt;
    Feld<BASISLINIE_Satz> m_basislinien;
    Feld<std::string> m_rinex;
    std::vector<Begruendung> m_begruendungen;
};

Fehler zeilen_loeschen(Global& g, std::string_view rover, int stelle)
{
    Verkuerzung kuerzung(g);
    if (ist_B(g)) basislinien_loeschen(g, kuerzung, rover);
    if (!kuerzung.gescheitert()) reihen_loeschen(g, kuerzung, stelle);
    const auto name = std::find(g.RINEX_Dateien.begin(), g.RINEX_Dateien.end(), rover);
    if (name != g.RINEX_Dateien.end())
        kuerzung.ohne(g.RINEX_Dateien, static_cast<int>(name - g.RINEX_Dateien.begin()) + 1, 69,
                      "ReDim Preserve RINEX_Dateien(");
    if (kuerzung.gescheitert()) return Fehler::gesetzt;
    baum_aufbauen(g);
    return Fehler::keiner;
}

// The project forgets the rover before its file goes: a rover without a file could never be removed. The rows are saved
// before the keys go, so that a crash between the two loses no other rover's row.
Fehler ueberall_loeschen(Global& g, std::string_view rover, int stelle)
{
    Bestand vorher(g);
    if (ist_fehler(zeilen_loeschen(g, rover, stelle))) return Fehler::gesetzt;
    if (ist_fehler(Verfahren_sichern(g))) {
        std::move(vorher).zurueck(g);
        return Fehler::gesetzt;
    }
    if (ist_fehler(datei_loeschen(g, rover))) {
        std::move(vorher).zurueck(g);
        (void)Verfahren_sichern(g);
        return Fehler::gesetzt;
    }
    ergebnisse_loeschen(g, rover);
    letzte_schluessel_entfernen(g);
    g.oberflaeche->karte_zeichnen(false);
    (void)menue_zeitfenster(g);
    return Fehler::keiner;
}

}  // namespace

Fehler ROVER_Datei_loeschen(Global& g, std::string_view rover_name)
{
    const std::string rover(rover_name);  // may be a text of a record that goes
    const int stelle = Index_OBS_R(g, rover);
    if (stelle == 0) return Fehler::gesetzt;
    if (!bestaetigt(g, rover)) return Fehler::keiner;
    if (ist_fehler(datei_da(g, rover))) return Fehler::gesetzt;
    g.oberflaeche->sanduhr(true);
    const Fehler fehler = ueberall_loeschen(g, rover, stelle);
    g.oberflaeche->sanduhr(false);
    return fehler;
}

}  // namespace jorv
