// The whole state of the running program: records, settings, and the three doors to the world (screen, clock, files).
// One struct, handed by reference to whoever works on it.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "modell/Abtastung.h"
#include "modell/Begruendung.h"
#include "modell/Feld.h"
#include "modell/Knoten.h"
#include "modell/Saetze.h"
#include "plattform/datei.h"
#include "plattform/oberflaeche.h"
#include "plattform/sperre.h"
#include "plattform/uhr.h"

namespace jorv {

struct Global {
    Global(Oberflaeche& schirm, const Uhr& zeit, Dateisystem platte)
        : oberflaeche(&schirm), uhr(&zeit), dateien(std::move(platte))
    {
    }

    // The doors.
    Oberflaeche* oberflaeche;
    const Uhr* uhr;
    Dateisystem dateien;

    // The open project: arrays. Index-parallel: OBS_R, R_Punkt, ROVER_Settings and ROVER_TOREL (modes E, S) or
    // ROVER_VIRT (mode F); OBS_S and S_Punkt; OBS_V and V_Punkt.
    Feld<OBS> OBS_R, OBS_S, OBS_V;
    Feld<Punkt> R_Punkt, S_Punkt, V_Punkt;
    Feld<ROVER_TOREL_Satz> ROVER_TOREL;
    Feld<ROVER_VIRT_Satz> ROVER_VIRT;
    Feld<ROVER_Settings_Satz> ROVER_Settings;
    Feld<BASISLINIE_Satz> BASISLINIE;
    Feld<GEO_Punkt_Satz> GEO_Punkt;
    Feld<std::string> RINEX_Dateien, Antennen_Dateien;
    Feld<std::string> dateien_liste;  ///< files copied by the last opening of the intake dialog

    // The open project: singletons.
    std::string Verfahrensname;  ///< empty: no project is open
    std::string Verfahrensnummer, Verfahrensmodus, Arbeitsverzeichnis;
    std::string Versionsnummer, Versionsdatum, Verfahrensdatei;
    std::string Zeitfenster_1h = "0", Auswertemodus = "L1";
    double Y_min = 0, Y_max = 0, X_min = 0, X_max = 0, Faktor = 0;
    bool Grafik_Fenster_gelesen = false;  ///< the project file held a view of the map
    bool geo_fertig = true;               ///< false while a station figure is being drawn
    bool emds_ausgabe = false;
    std::int32_t berechnete_ROVER = 0;  ///< rovers ready for computation
    /// Read to its end. A project that was not is never saved.
    bool vollstaendig_gelesen = false;
    std::shared_ptr<const Sperre> Verfahrenssperre;  ///< while the project is open to be changed
    /// Sections that were not read and that a save leaves alone.
    std::vector<std::string> ungelesene_Sektionen;
    std::vector<Begruendung> Begruendungen;  ///< of the last automatik, by rover from 0
    Baum baum;
    std::vector<std::string> antennenliste;  ///< of the last antenna test
    /// Kept between the two readers of an observation file, so that it is passed over once.
    std::optional<Abtastung> abtastung;

    // The running program.
    std::int16_t abbruch = 0;  ///< -1: the user asked to stop
    std::string Einstellungsdatei, Windowsverzeichnis;
    std::string Bestaetigung = "J", Editor = "Notepad.exe";
    std::int32_t Form_top = 0, Form_left = 0, Form_height = 0, Form_width = 0;
    std::string Form_zustand = "0";
    std::string Fenster_Baumbreite = "300", Fenster_Werkzeugleiste = "1";  ///< pixels; "0" hidden, "1" shown
    std::string Programmverzeichnis;                                       ///< folder of the running program
    std::string Datei_Verzeichnis, EXE_Verzeichnis;
    Feld<Verfahren_Satz> Verfahren;
    std::array<std::string, 8> Liste_Name, Liste_Pfad, Liste_Modus;  ///< slot 1 is index 0
    std::int16_t Anzahl_Liste = 0;
    Feld<KOR_ANTENNEN_Satz> KOR_ANTENNEN;
    std::array<std::string, 4> Tem_Stationen = {"0590", "0591", "0593", "0596"};
    std::string UTM_Zone = "?", MARKER_Info = "S", Land = "KOR";
    std::string Typkalibrierung = "N", Gesamtbatch = "N";
    std::string Hinweis = "1", Hinweis1 = "1", Grenzen = "1", PKZ = "1", ErstStart = "0";
    std::array<std::string, 8> KNOTEN = {"1", "1", "1", "1", "1", "1", "1", "1"};  ///< slots 1 to 7 in use
    bool vergroessert = false;  ///< the map was enlarged once, so that there is something to make smaller
    Feld<TOREL_Punkt_Satz> TOREL_Punkt;
    Feld<Lnd_Satz> Lnd;
    Feld<std::int16_t> tage;  ///< distinct day numbers of the observation records, ascending
    std::int16_t zeit_tag = 0;

    // Commands that are off without an open project or after a failed open.
    struct {
        bool m_datei_loeschen = false, m_datei_sichern = false, m_grund_zeitfenster_1h = false;
        bool m_grund_EinstellungenAlle = false;
        bool m_geo_definieren = false;  ///< its tick, which only shows
    } menue;

    bool Verfahren_offen() const { return !Verfahrensname.empty(); }
};

}  // namespace jorv
