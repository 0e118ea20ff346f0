#include "daten/beziehungsliste.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "hilfen/Projekt.h"
#include "modell/Meldungen.h"
#include "planung/Beobachtungen.h"

using namespace jorv;
using namespace jorv::hilfen;

TEST(Beziehungsliste, JedeZeileTutDasIhreOderMeldetSich)
{
    const std::string rat = "\n\nDatei überprüfen und ggf. neu versuchen!",
                      offen = "Die Datei mit den Punktbeziehungen:\n@";
    const std::string keine = " in der Datei:\n@\nsind keine Daten in Jorv geladen.\nZwischen den Punkten: ",
                      daher = " kann daher keine Basislinie gebildet werden!";
    const struct {
        std::string_view liste;
        int anzahl;
        std::string meldung;  // @ is the path
        int grenze = 9;
    } faelle[] = {{"", 0, ""},
                  {"0001 0002 mehr\r\n\r\n0001  0002\n0002 0001", 4, ""},
                  {"0001 0002\n ", 4, "Punktbeziehung (VON) fehlt in der Datei:\n@\nin Zeile: 2" + rat},
                  {"0001\n0001 0002", 0, "Punktbeziehung (NACH) fehlt in der Datei:\n@\nin Zeile: 1" + rat},
                  {"0009 0008\n0002 0001", 4, "Zum Punkt: \"0009\"" + keine + "\"0009\" und \"0008\"" + daher},
                  {"0001 000", 0, "Zum Punkt: \"000\"" + keine + "\"0001\" und \"000\"" + daher},
                  {"0001 0001", 0, "Von Punkt: \"0001\" zu \"0001\" kann keine Basislinie gebildet werden!"},
                  {"0001 0002", 1,
                   utf8_aus_1252(dimensionierung_meldung(41, "beziehungsliste_laden",
                                                         std::string(32, ' ') + "ReDim Preserve BASISLINIE(2)")),
                   1},
                  {"lesen", 0, offen + "\nkonnte nicht richtig gelesen werden!"},
                  {"*.*", 0, ""},
                  {"weg", 0, offen + "\nkonnte nicht geöffnet werden!"}};
    auto kaputt = Systemaufrufe::echte();
    kaputt.lesen = [](int, void*, std::size_t) { return errno = EIO, -1L; };
    for (const auto& f : faelle) {
        Pruefstand p("4");
        for (const auto name : {"0001001a.14o", "0001001b.14o", "0002001a.14o", "0002001b.14o"})
            rover(p.g, beobachtung(name, "10:00:00", "11:00:00"), 0, 0);
        for (const OBS& obs : p.g.OBS_R) (void)p.g.RINEX_Dateien.anfuegen(obs.Dateiname);
        p.g.BASISLINIE.grenze_setzen(f.grenze);
        if (f.liste != "weg") schreiben(p.pfad("paare.txt"), f.liste);
        if (f.liste == "lesen") p.g.dateien = Dateisystem(Laufwerke::aus_umgebung(), kaputt);
        const std::string pfad = f.liste == basisliste_auswahl_name ? "*.*" : im_Verfahren(p.g, "paare.txt");
        const Fehler fehler = m_datei_basis_liste(p.g, pfad);
        EXPECT_EQ(p.schirm.gezeigt.empty() ? "" : p.schirm.einzige(), ersetzt(f.meldung, "@", pfad)) << f.liste;
        const bool stop = !p.schirm.gezeigt.empty() && p.schirm.gezeigt[0].symbol == Symbol::stop;
        EXPECT_EQ(verkettet(ist_fehler(fehler), p.g.BASISLINIE.anzahl()), verkettet(stop, f.anzahl)) << f.liste;
        EXPECT_EQ(p.schirm.karte_gezeichnet, f.meldung.starts_with(offen) || pfad == "*.*" ? 0 : 1) << f.liste;
    }
}
