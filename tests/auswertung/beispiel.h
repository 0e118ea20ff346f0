// A project with rovers that are ready to be computed, for the tests of batch, run and reports.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "hilfen/Bruch.h"
#include "hilfen/Projekt.h"
#include "hilfen/Umgebung.h"
#include "modell/Baum.h"
#include "plattform/pfad.h"

namespace jorv::hilfen {

/// A foreign virtual station of that rover, linked to it.
inline void fremde_anfuegen(Global& g, const std::string& rover)
{
    OBS beobachtung;
    beobachtung.Dateiname = "virt" + rover;
    beobachtung.Antenne = "00220020            TRM22020.00+GP  NONE";
    (void)g.OBS_V.anfuegen(beobachtung);
    (void)g.V_Punkt.anfuegen();
    ROVER_VIRT_Satz zuordnung;
    zuordnung.ROVER_Dateiname = rover;
    zuordnung.VIRT_Dateiname = beobachtung.Dateiname;
    zuordnung.VIRT_Index = g.OBS_V.anzahl();
    (void)g.ROVER_VIRT.anfuegen(zuordnung);
}

/// Adds a switched-on green rover with three linked stations of 8 to 10 o'clock, in mode F one with its foreign
/// station.
inline void rover_anfuegen(Global& g, const std::string& name)
{
    OBS beobachtung;
    beobachtung.Dateiname = name;
    beobachtung.Punktkennzeichen = name.substr(0, 4);
    beobachtung.Antenne = "00220020            TRM22020.00+GP  NONE";
    (void)g.OBS_R.anfuegen(beobachtung);
    (void)g.R_Punkt.anfuegen();
    if (ist_F(g)) fremde_anfuegen(g, name);
    ROVER_TOREL_Satz zuordnung;
    zuordnung.ROVER_Dateiname = name;
    zuordnung.Anzahl = 3;
    zuordnung.TOREL_Dateiname = {"0590092a.05o", "0591092a.05o", "0593092a.05o", ""};
    zuordnung.Status = 1;
    (void)g.ROVER_TOREL.anfuegen(zuordnung);
    ROVER_Settings_Satz einstellung;
    einstellung.ROVER_Dateiname = name;
    (void)g.ROVER_Settings.anfuegen(einstellung);
}

inline void stationen_anfuegen(Global& g)
{
    for (const char* name : {"0590092a.05o", "0591092a.05o", "0593092a.05o", "0596092a.05o"}) {
        OBS station;
        station.Dateiname = name;
        station.Punktkennzeichen = station.Dateiname.substr(0, 4);
        station.Startzeit_GPS_Sekunde = 80000;
        station.Endzeit_GPS_Sekunde = 100000;
        (void)g.OBS_S.anfuegen(station);
        Punkt punkt;
        punkt.Punktkennzeichen = station.Punktkennzeichen;
        (void)g.S_Punkt.anfuegen(punkt);
    }
}

/// Project "Muster" with the stations and the given rovers, antenna format "ATX", suite in C:\WaSoft.
struct Beispiel : Pruefstand {
    explicit Beispiel(std::initializer_list<const char*> rover = {"5501092a.05o"}, std::string_view modus = "1")
        : Pruefstand(modus)
    {
        g.Verfahren[1].Antenne = "ATX";
        g.EXE_Verzeichnis = "C:\\WaSoft";
        stationen_anfuegen(g);
        for (const char* name : rover) rover_anfuegen(g, name);
        baum_aufbauen(g);
    }

    /// Lays the project into a folder of that name on drive D: or a share, so that its path is known to the byte.
    void verlegen(std::string_view wurzel, std::string_view verzeichnis)
    {
        Laufwerke laufwerke;
        laufwerke.zuordnen(wurzel, ordner.wurzel());
        g.dateien = Dateisystem(laufwerke);
        g.Arbeitsverzeichnis = verzeichnis;
        (void)g.dateien.ordner_anlegen(verzeichnis);
    }

    std::string datei(std::string_view name) const
    {
        return g.dateien.lesen(im_Verfahren(g, name)).value_or("(keine)");
    }
    bool hat(std::string_view name) const { return g.dateien.vorhanden(im_Verfahren(g, name)); }
    void legen(std::string_view name, std::string_view bytes)
    {
        (void)g.dateien.ordner_anlegen(pfad_ordner(im_Verfahren(g, name)));
        (void)g.dateien.schreiben(im_Verfahren(g, name), bytes);
    }
    /// A folder in a file's place: the file can neither be opened nor written nor deleted.
    void versperren(std::string_view name) { (void)g.dateien.ordner_anlegen(im_Verfahren(g, name)); }
    /// The path of a project file as a message shows it (UTF-8).
    std::string pfad8(std::string_view name) const { return utf8_aus_1252(im_Verfahren(g, name)); }
};

/// The programs on the search path: the suite, which the dates come from, and the interpreter.
struct Suite_im_Pfad {
    explicit Suite_im_Pfad(Global& g) { g.EXE_Verzeichnis = g.Programmverzeichnis; }
    Umgebungswert pfad{"PATH", suchpfad_hinter(JORV_PROGRAMME)};
};

inline std::string probe(const std::string& name)
{
    return lesen(fs::path(JORV_QUELLEN) / "tests/auswertung/proben" / name);
}

}  // namespace jorv::hilfen
