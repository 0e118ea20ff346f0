#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "daten/punkt_info.h"
#include "daten/rinex_position.h"
#include "daten/satelliten.h"
#include "proben.h"

namespace jorv {

using namespace hilfen;

namespace {

constexpr const char* rover = "5501122a.16o";

std::string familie(std::string_view kopf, std::string_view name, int zeile)
{
    return std::string(kopf) + " in der Datei:\n" + std::string(name) + "\nin Zeile: " + std::to_string(zeile) +
           "\n\nDatei überprüfen und ggf. neu versuchen!";
}

int saetze(const Global& g)
{
    return g.OBS_R.anzahl() + g.OBS_S.anzahl() + g.OBS_V.anzahl() + g.R_Punkt.anzahl() + g.S_Punkt.anzahl() +
           g.V_Punkt.anzahl() + g.ROVER_Settings.anzahl();
}

}  // namespace

TEST(PunktInfo, RoverMitAllenFeldern)
{
    Pruefstand p("1");
    Rinexprobe probe;
    probe.position = kopfzeile("  3783000,1234   901600.1234  5038200.1234", "APPROX POSITION XYZ");
    schreiben(p.pfad(rover), probe.text());
    ASSERT_FALSE(ist_fehler(punkt_info_lesen(p.g, rover))) << p.schirm.einzige();
    const OBS& obs = p.g.OBS_R[1];
    EXPECT_EQ(obs.Dateiname, rover);
    EXPECT_EQ(obs.Punktkennzeichen, "5501");
    EXPECT_EQ(obs.Tag, 122);
    EXPECT_EQ(obs.Antenne, "00001               LEIAR25.R4      LEIT");
    EXPECT_EQ(obs.Startzeit(), (Zeitpunkt{2016, 5, 1, 8, 0, 0}));
    // The fraction of the second is rounded away.
    EXPECT_EQ(obs.Endzeit_Sekunde, 60);
    EXPECT_EQ(obs.Startzeit_GPS_Sekunde, 80000);
    EXPECT_EQ(obs.Endzeit_GPS_Sekunde, 93060);
    EXPECT_EQ(p.g.R_Punkt[1].X, 3783000.1234);
    EXPECT_NEAR(p.g.R_Punkt[1].Rechtswert, 813100, 500000);
    const auto& satz = p.g.ROVER_Settings[1];
    EXPECT_EQ(satz.ROVER_Dateiname, rover);
    EXPECT_EQ(satz.EpochRate, 15);
    EXPECT_EQ(satz.StartTime, 80000);
    EXPECT_EQ(satz.EndTime, 93060);
    EXPECT_EQ(satz.Elevation, 5);
    EXPECT_EQ(satz.Solution, 2);

    ASSERT_FALSE(ist_fehler(satelliten_lesen(p.g, rover)));
    ASSERT_EQ(satz.AnzahlDelSatellite, 3);
    EXPECT_EQ(satz.DelSatelliteName[1] + satz.DelSatelliteName[2] + satz.DelSatelliteName[3], "G05G21R07");
    EXPECT_EQ(satz.DelSatellite[3], 1);
    // A second pass keeps what the user has switched off.
    p.g.ROVER_Settings[1].DelSatellite[2] = 0;
    ASSERT_FALSE(ist_fehler(satelliten_lesen(p.g, rover)));
    EXPECT_EQ(satz.AnzahlDelSatellite, 3);
    EXPECT_EQ(satz.DelSatellite[2], 0);
}

TEST(PunktInfo, EndzeitAusDerLetztenEpoche)
{
    Pruefstand p("1");
    Rinexprobe probe;
    probe.ende.clear();
    probe.daten += "                            4  1\n" + kopfzeile("a change", "COMMENT");
    schreiben(p.pfad("0590122a.16o"), probe.text());
    ASSERT_FALSE(ist_fehler(punkt_info_lesen(p.g, "0590122a.16o"))) << p.schirm.einzige();
    EXPECT_EQ(p.g.OBS_S[1].Endzeit(), (Zeitpunkt{2016, 5, 1, 10, 11, 12}));
    EXPECT_EQ(p.g.S_Punkt[1].Punktkennzeichen, "0590");
    EXPECT_EQ(p.g.ROVER_Settings.anzahl(), 0);
}

TEST(PunktInfo, NurDieErsteTypenzeileZaehlt)
{
    Pruefstand p("1");
    Rinexprobe probe;
    probe.ende.clear();
    probe.typen = kopfzeile("    10    L1", "# / TYPES OF OBSERV") + kopfzeile("     1    L2", "# / TYPES OF OBSERV");
    probe.daten = " 16  5  1  8  0  0.0000000  0  1G05\n  1.0\n 16  5  1  9  0  0.0000000  0  1G07\n";
    schreiben(p.pfad(rover), probe.text());
    ASSERT_FALSE(ist_fehler(punkt_info_lesen(p.g, rover)));
    // Two data lines belong to the first epoch, so what looks like a second one is data.
    EXPECT_EQ(p.g.OBS_R[1].Endzeit_Stunde, 8);
}

TEST(PunktInfo, MeldungenDerWorte)
{
    const std::vector<std::array<const char*, 2>> zeiten = {{"beim #jahr", "#jahr"},
                                                            {"beim #monat", "#monat"},
                                                            {"beim #tag", "#tag"},
                                                            {"bei der #stunde", "Die #stunde"},
                                                            {"bei der #minute", "Die #minute"},
                                                            {"bei der #sekunde", "Die #sekunde"}};
    const auto fuer = [&](std::string_view vorsilbe) {
        std::vector<std::array<std::string, 2>> alle;
        for (const auto& [a, b] : zeiten)
            alle.push_back({ersetzt(std::string_view(a), "#", vorsilbe), ersetzt(std::string_view(b), "#", vorsilbe)});
        return alle;
    };
    const std::vector<std::array<std::string, 2>> xyz = {
        {"beim X-Wert", "X-Wert"}, {"beim Y-Wert", "Y-Wert"}, {"beim Z-Wert", "Z-Wert"}};
    struct Gruppe {
        std::string Rinexprobe::*teil;
        const char* marke;
        int zeile;
        std::vector<std::array<std::string, 2>> namen;
        const char* zu_gross;
    };
    for (const auto& gruppe : {Gruppe{&Rinexprobe::position, "APPROX POSITION XYZ", 4, xyz, "1E999"},
                               Gruppe{&Rinexprobe::beginn, "TIME OF FIRST OBS", 8, fuer("Start"), "32768"},
                               Gruppe{&Rinexprobe::ende, "TIME OF LAST OBS", 9, fuer("End"), "-32769"}})
        for (std::size_t i = 0; i < gruppe.namen.size(); ++i)
            for (const bool zu_gross : {true, false}) {
                // The empty pair of quotes is no word; a word that is really missing ends the label's own words.
                std::string text;
                for (std::size_t k = 0; k < i; ++k) text += "1 ";
                text += zu_gross ? gruppe.zu_gross : "\"\"";
                Pruefstand p("1");
                Rinexprobe probe;
                probe.*gruppe.teil = kopfzeile(text, gruppe.marke);
                schreiben(p.pfad(rover), probe.text());
                EXPECT_TRUE(ist_fehler(punkt_info_lesen(p.g, rover)));
                EXPECT_EQ(p.schirm.einzige(), familie(zu_gross ? "Konvertierungsfehler " + gruppe.namen[i][0]
                                                               : gruppe.namen[i][1] + " fehlt",
                                                      rover, gruppe.zeile));
                EXPECT_EQ(saetze(p.g), 0);
            }
}

TEST(PunktInfo, MeldungenDerLetztenEpoche)
{
    struct Fall {
        const char* epoche;
        const char* kopf;
    };
    // The words behind the year stand before column 27 or not at all, the flag makes it an epoch line.
    for (const auto& f :
         std::vector<Fall>{{"", "Endjahr fehlt"},
                           {"40000                       0  0", "Konvertierungsfehler beim Endjahr"},
                           {"16 99999 1 1 1 1.0          0  0", "Konvertierungsfehler beim Endmonat"},
                           {"16 5 1 10 11 1E9            0  0", "Konvertierungsfehler bei der Endsekunde"},
                           {"16 5 1                      0", "Die Endminute fehlt"}}) {
        std::string zeile = f.epoche;
        if (!zeile.empty()) zeile.replace(26, 3, "  0");
        Pruefstand p("1");
        Rinexprobe probe;
        probe.ende.clear();
        probe.daten = zeile.empty() ? "" : zeile + "\n";
        schreiben(p.pfad(rover), probe.text());
        EXPECT_TRUE(ist_fehler(punkt_info_lesen(p.g, rover))) << f.epoche;
        EXPECT_EQ(p.schirm.einzige(), familie(f.kopf, rover, zeile.empty() ? 9 : 10));
    }
    // The year of a word that fits alone can leave the range with the century in front.
    Pruefstand p("1");
    Rinexprobe probe;
    probe.ende.clear();
    probe.beginn = kopfzeile(" 32700 5 1 8 0 0.0", "TIME OF FIRST OBS");
    probe.daten = " 99  5  1 10 11 12.0000000  0  0\n";
    schreiben(p.pfad(rover), probe.text());
    EXPECT_TRUE(ist_fehler(punkt_info_lesen(p.g, rover)));
    EXPECT_EQ(p.schirm.einzige(), familie("Konvertierungsfehler beim Endjahr", rover, 10));
}

TEST(PunktInfo, FehlendeAngaben)
{
    struct Fall {
        std::string Rinexprobe::*teil;
        std::string ersatz;
        const char* was;
    };
    for (const auto& f :
         {Fall{&Rinexprobe::position, "", "Koordinaten"},
          Fall{&Rinexprobe::position, kopfzeile("0 0 0", "APPROX POSITION XYZ"), "Koordinaten"},
          Fall{&Rinexprobe::antenne, "", "Antenneninformationen"}, Fall{&Rinexprobe::beginn, "", "Startzeiten"},
          Fall{&Rinexprobe::ende, kopfzeile("", "COMMENT"), "Endzeiten"}}) {
        Pruefstand p("1");
        Rinexprobe probe;
        probe.*f.teil = f.ersatz;
        // A start in the first century and an epoch of the year 0 make an end year of 0.
        if (f.was == std::string_view("Endzeiten")) {
            probe.beginn = kopfzeile("    16     5     1     8     0    0.0000000", "TIME OF FIRST OBS");
            probe.daten = " 00  5  1 10 11 12.0000000  0  0\n";
        }
        schreiben(p.pfad(rover), probe.text());
        EXPECT_TRUE(ist_fehler(punkt_info_lesen(p.g, rover)));
        EXPECT_EQ(p.schirm.einzige(), std::string("Keine ") + f.was + " in der RINEX-Datei:\n" + rover +
                                          " gefunden!\n\nRINEX-Datei überprüfen und ggf. neu versuchen!");
        EXPECT_EQ(saetze(p.g), 0);
    }
}

TEST(PunktInfo, UmrechnungUndDimensionierung)
{
    struct Fall {
        const char *modus, *name, *umrechnung, *dimensionierung;
        Feld<Punkt> Global::*punkte;
        Feld<OBS> Global::*obs;
    };
    for (const auto& f :
         {Fall{"1", "5501122a.16o", "ROVER-Punkt!\n\nROVER-Datei:", "12", &Global::R_Punkt, &Global::OBS_R},
          Fall{"1", "0590122a.16o", "TOREL-Punkt!\n\nTOREL-Datei:", "13", &Global::S_Punkt, &Global::OBS_S},
          Fall{"3", "virt122a.16o", "virt.-Punkt!\n\nvirt. RINEX-Datei:", "70", &Global::V_Punkt, &Global::OBS_V}}) {
        Pruefstand p(f.modus);
        Rinexprobe probe;
        probe.position = kopfzeile("1 2 3", "APPROX POSITION XYZ");
        schreiben(p.pfad(f.name), probe.text());
        EXPECT_TRUE(ist_fehler(punkt_info_lesen(p.g, f.name)));
        EXPECT_EQ(p.schirm.einzige(), std::string("Fehler bei der Umrechnung von einem ") + f.umrechnung + f.name +
                                          "\nüberprüfen und ggf. neu versuchen!");
        EXPECT_EQ((p.g.*f.obs).anzahl(), 1) << "the new record stays behind, empty";

        for (const int arrays : {0, 1, 2}) {
            Pruefstand q(f.modus);
            if (arrays == 0) (q.g.*f.punkte).grenze_setzen(0);
            if (arrays == 1) (q.g.*f.obs).grenze_setzen(0);
            if (arrays == 2) q.g.ROVER_Settings.grenze_setzen(0);
            if (arrays == 2 && f.dimensionierung != std::string_view("12")) continue;
            schreiben(q.pfad(f.name), Rinexprobe().text());
            EXPECT_TRUE(ist_fehler(punkt_info_lesen(q.g, f.name)));
            const char art = f.dimensionierung[0] == '7' ? 'V' : f.dimensionierung[1] == '2' ? 'R' : 'S';
            EXPECT_EQ(q.schirm.einzige(), std::string("Dimensionierungsfehler! (") + f.dimensionierung +
                                              " in punkt_info_lesen)\n    ReDim Preserve " + art +
                                              "_Punkt( 1)\n    ReDim Preserve OBS_" + art +
                                              "( 1)\nevtl. Speicherplatzprobleme\n\nOffene Anwendungen schließen und "
                                              "erneut versuchen!");
            EXPECT_EQ(saetze(q.g), 0);
        }
    }
}

TEST(PunktInfo, VirtuellerPunktOhneWATIME)
{
    Pruefstand p("3");
    p.g.EXE_Verzeichnis = p.ordner.dos();
    schreiben(p.pfad("virt122a.16o"), Rinexprobe().text());
    EXPECT_TRUE(ist_fehler(punkt_info_lesen(p.g, "virt122a.16o")));
    ASSERT_GE(p.schirm.gezeigt.size(), 1u);
    EXPECT_EQ(p.schirm.texte().back(),
              "Fehler bei der Umrechnung der Startzeit in GPS-Sekunden!\n\nvirt. RINEX-Datei:"
              "virt122a.16o\nüberprüfen und ggf. neu versuchen!");
}

TEST(PunktInfo, UnlesbareDateien)
{
    Pruefstand p("1");
    fs::create_directory(p.pfad("dir0122a.16o"));
    const std::string ordner = p.ordner.dos();
    for (const char* name : {"fehlt22a.16o", "dir0122a.16o"}) {
        p.schirm.gezeigt.clear();
        EXPECT_TRUE(ist_fehler(punkt_info_lesen(p.g, name)));
        const std::string ende = ":\n" + ordner + "\\" + name + "\nkonnte nicht geöffnet werden!";
        EXPECT_EQ(p.schirm.einzige(), "Die Beobachtungsdatei" + ende);
        p.schirm.gezeigt.clear();
        EXPECT_TRUE(ist_fehler(satelliten_lesen(p.g, name)));
        EXPECT_EQ(p.schirm.einzige(), "Die Beobachtungsdatei" + ende);
        p.schirm.gezeigt.clear();
        double x = 0, y = 0, z = 0;
        std::string nummer;
        EXPECT_TRUE(ist_fehler(rinex_position_lesen(p.g, name, x, y, z, nummer)));
        EXPECT_EQ(p.schirm.einzige(), "Die RINEX-Datei" + ende);
    }
    // In the first piece, and behind it where the end time has to be looked for.
    Rinexprobe ohne_ende;
    ohne_ende.ende.clear();
    schreiben(p.pfad(rover), ohne_ende.text());
    Bruch bruch(p.g);
    for (const int bei : {1, 2}) {
        p.schirm.gezeigt.clear();
        Bruch::lesen_bei = bei;
        EXPECT_TRUE(ist_fehler(punkt_info_lesen(p.g, rover)));
        EXPECT_EQ(p.schirm.einzige(), "Lesefehler in der Datei:\n" + ordner + "\\" + rover +
                                          "\n\nDatei überprüfen und ggf. neu versuchen!");
    }
}

TEST(PunktInfo, SonderbareInhalteEndenMitMeldungOhneSaetze)
{
    const std::string gut = Rinexprobe().text();
    std::string binaer;
    for (int i = 0; i < 5000; ++i) binaer += static_cast<char>(i * 7919 >> 3);
    std::string nur_cr = gut;
    for (char& z : nur_cr)
        if (z == '\n') z = '\r';
    for (const auto& inhalt : {std::string(), binaer, nur_cr, gut.substr(0, 300), std::string(200000, 'x'),
                               std::string(1000, '\0'), std::string(5000, '\n')}) {
        Pruefstand p("1");
        schreiben(p.pfad(rover), inhalt);
        EXPECT_TRUE(ist_fehler(punkt_info_lesen(p.g, rover)));
        EXPECT_EQ(p.schirm.gezeigt.size(), 1u);
        EXPECT_EQ(p.schirm.gezeigt[0].symbol, Symbol::stop);
        EXPECT_EQ(saetze(p.g), 0);
        EXPECT_EQ(lesen(p.pfad(rover)), inhalt);
    }
    // A header that isn't closed is scanned on, although it gave an end time.
    Pruefstand p("1");
    Rinexprobe probe;
    probe.schluss = probe.daten = "";
    schreiben(p.pfad(rover), probe.text());
    EXPECT_TRUE(ist_fehler(punkt_info_lesen(p.g, rover)));
    EXPECT_EQ(p.schirm.einzige(), familie("Endjahr fehlt", rover, 9));
}

TEST(RinexPosition, LiestNurWasDerKopfHat)
{
    Pruefstand p("1");
    Rinexprobe probe;
    schreiben(p.pfad(rover), probe.text());
    double x = 7, y = 8, z = 9;
    std::string nummer = "alt";
    ASSERT_FALSE(ist_fehler(rinex_position_lesen(p.g, rover, x, y, z, nummer)));
    EXPECT_EQ(x, 3783000.1234);
    EXPECT_EQ(nummer, "Musterstadt");
    probe.position = probe.marker = "";
    schreiben(p.pfad("leer122a.16o"), probe.text());
    x = 7;
    nummer = "alt";
    ASSERT_FALSE(ist_fehler(rinex_position_lesen(p.g, p.ordner.dos() + "\\leer122a.16o", x, y, z, nummer)));
    EXPECT_EQ(x, 7);
    EXPECT_EQ(nummer, "alt");
    probe.position = kopfzeile("1 1E999", "APPROX POSITION XYZ");
    schreiben(p.pfad(rover), probe.text());
    EXPECT_TRUE(ist_fehler(rinex_position_lesen(p.g, rover, x, y, z, nummer)));
    EXPECT_EQ(p.schirm.einzige(), familie("Konvertierungsfehler beim Y-Wert", rover, 2));
}

TEST(Satelliten, GrenzenUndSysteme)
{
    Pruefstand p("1");
    Rinexprobe probe;
    // 75 satellites in one epoch over seven lines; the last five are dropped, and the foreign system is passed over.
    std::string epoche = " 16  5  1  8  0  0.0000000  0 76E01";
    for (int i = 1; i <= 75; ++i) {
        if (i % 12 == 0) epoche += "\n" + std::string(32, ' ');
        epoche += (i % 2 ? "G" : " ") + std::string(i < 10 ? " " : "") + std::to_string(i);
    }
    probe.daten = epoche + "\n";
    schreiben(p.pfad(rover), probe.text());
    ASSERT_FALSE(ist_fehler(punkt_info_lesen(p.g, rover)));
    ASSERT_FALSE(ist_fehler(satelliten_lesen(p.g, rover)));
    const auto& satz = p.g.ROVER_Settings[1];
    EXPECT_EQ(satz.AnzahlDelSatellite, 70);
    EXPECT_EQ(satz.DelSatelliteName[1], " 02");
    EXPECT_EQ(satz.DelSatelliteName[70], "G69");
    EXPECT_TRUE(std::is_sorted(satz.DelSatelliteName.begin() + 1, satz.DelSatelliteName.end()));
    // Without a record of that rover there is nothing to fill.
    schreiben(p.pfad("7777122a.16o"), probe.text());
    EXPECT_FALSE(ist_fehler(satelliten_lesen(p.g, "7777122a.16o")));
}

}  // namespace jorv
