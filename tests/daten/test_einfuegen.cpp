#include <gtest/gtest.h>

#include "daten/einfuegen.h"
#include "daten/krypt.h"
#include "modell/Baum.h"
#include "proben.h"
#include "projekt/projektdatei_schreiben.h"

namespace jorv {

using namespace hilfen;

namespace {

using Namen = std::vector<std::string>;

// A project beside a folder of source files; the catalogue lies in the sources' folder.
struct Einfuegestand : Pruefstand {
    explicit Einfuegestand(std::string_view modus = "1") : Pruefstand(modus), quelle(ordner.wurzel() / "Quelle")
    {
        fs::create_directories(quelle);
        g.EXE_Verzeichnis = quelle_dos();
        g.Verfahren[1].LetztDatum = "alt";
    }
    std::string quelle_dos() const { return Laufwerke().dos(quelle).value(); }
    std::string datei(std::string_view name, std::string_view inhalt)
    {
        schreiben(quelle / std::string(name), inhalt);
        return quelle_dos() + "\\" + std::string(name);
    }
    void einfuegen(const Namen& pfade, Dateiart art = Dateiart::rinex)
    {
        schirm.gezeigt.clear();
        schirm.dateiwahlen.push_back(Dateiwahl{pfade, quelle_dos()});
        art == Dateiart::rinex ? m_datei_rinex(g) : m_datei_antenne(g);
    }
    Namen rinex() const { return {g.RINEX_Dateien.begin(), g.RINEX_Dateien.end()}; }
    Namen antennen() const { return {g.Antennen_Dateien.begin(), g.Antennen_Dateien.end()}; }
    fs::path quelle;
};

const std::string gut = Rinexprobe().text();

std::string dim(std::string_view text)
{
    return "Dimensionierungsfehler! " + std::string(text) +
           "\nevtl. Speicherplatzprobleme\n\nOffene Anwendungen schließen und erneut versuchen!";
}

}  // namespace

TEST(Einfuegen, WasDerDialogAnbietet)
{
    Einfuegestand s("3");
    for (const char* name : {"12340010.16O", "12340010.16n", "1234001a.RXO", "unter/12340020.16o", "virt5501092a.05o"})
        s.datei(name, gut);
    s.datei("12340030.16o", "");
    s.datei("12340040.16o", "no label in the first line\n" + gut);
    s.datei("12340050.16o", "     2.11 rinex version / type");
    s.datei("brief.txt.xxo", gut);
    s.datei("a.ATX", "");
    s.datei("b.apc", "");
    fs::create_directory(s.quelle / "12340060.16o");
    std::error_code fehler;
    fs::create_directory_symlink(s.quelle, s.quelle / "unter" / "kreis", fehler);
    const auto namen = [&s](Dateiart art, bool tief) {
        Namen liste;
        for (const auto& pfad : einfuegbare_Dateien(s.g, art, s.quelle_dos(), tief))
            liste.push_back(pfad.substr(s.quelle_dos().size() + 1));
        return liste;
    };
    EXPECT_EQ(namen(Dateiart::rinex, false),
              (Namen{"12340010.16O", "12340010.16n", "1234001a.RXO", "12340050.16o", "virt5501092a.05o"}));
    EXPECT_EQ(namen(Dateiart::rinex, true), (Namen{"12340010.16O", "12340010.16n", "1234001a.RXO", "12340050.16o",
                                                   "unter\\12340020.16o", "virt5501092a.05o"}));
    s.g.Verfahrensmodus = "1";
    EXPECT_FALSE(RINEX_Test(s.g, s.quelle_dos(), "virt5501092a.05o"));
    EXPECT_EQ(namen(Dateiart::antennen, true), (Namen{"a.ATX", "b.apc"}));
    s.g.Verfahren[1].Antenne = "AXT";
    EXPECT_EQ(namen(Dateiart::antennen, true), Namen{"a.ATX"});
    s.g.Verfahren[1].Antenne = "APC";
    EXPECT_EQ(namen(Dateiart::antennen, true), Namen{"b.apc"});
    EXPECT_TRUE(einfuegbare_Dateien(s.g, Dateiart::rinex, "Z:\\does\\not\\exist", true).empty());
}

TEST(Einfuegen, RoverUndNavigationKommenInsVerfahren)
{
    Einfuegestand s("1");
    ASSERT_TRUE(s.g.GEO_Punkt.anfuegen());
    s.g.geo_fertig = false;
    const Namen pfade = {s.datei("5502122A.16O", gut), s.datei("5501122a.16o", gut), s.datei("5501122a.16n", "x")};
    s.einfuegen(pfade);
    EXPECT_TRUE(s.schirm.gezeigt.empty()) << s.schirm.einzige();
    EXPECT_EQ(s.rinex(), (Namen{"5501122a.16n", "5501122a.16o", "5502122a.16o"}));
    EXPECT_EQ(lesen(s.pfad("5502122a.16o")), gut);
    EXPECT_EQ(s.g.OBS_R.anzahl(), 2);
    EXPECT_EQ(s.g.ROVER_TOREL.anzahl(), 2);
    EXPECT_EQ(s.g.ROVER_Settings[1].AnzahlDelSatellite, 3);
    EXPECT_EQ(s.g.GEO_Punkt.anzahl(), 0);
    EXPECT_TRUE(s.g.geo_fertig);
    EXPECT_EQ(std::vector<std::int16_t>(s.g.tage.begin(), s.g.tage.end()).back(), 122);
    EXPECT_EQ(s.g.Verfahren[1].LetztDatum, "01.12.2016 12:00:00");
    EXPECT_EQ(s.g.Datei_Verzeichnis, s.quelle_dos());
    EXPECT_EQ(s.g.baum.finden("R_Datei")->Kinder.size(), 2u);
    EXPECT_GE(s.schirm.karte_gezeichnet, 1);

    // A file taken in twice is overwritten and registered once; the state before is kept.
    s.g.ROVER_Settings[1].Elevation = 17;
    s.einfuegen({s.datei("5501122a.16o", gut)});
    EXPECT_EQ(s.g.RINEX_Dateien.anzahl(), 3);
    EXPECT_EQ(s.g.OBS_R.anzahl(), 2);
    EXPECT_EQ(s.g.ROVER_Settings[1].Elevation, 5);
    EXPECT_NE(lesen(s.pfad("001.BAK")).find(" 17 "), std::string::npos);
    EXPECT_EQ(lesen(s.pfad("001.BAK")), lesen(s.pfad("001.INI")));
}

TEST(Einfuegen, OhneKopieBleibtAllesWieEsIst)
{
    Einfuegestand s("1");
    ASSERT_TRUE(s.g.OBS_R.anfuegen());
    s.schirm.dateiwahlen.push_back(std::nullopt);
    m_datei_rinex(s.g);
    s.einfuegen({});
    const std::string fehlt = s.quelle_dos() + "\\fehlt22a.16o";
    s.einfuegen({fehlt, s.datei("5501122a.16o", gut)});
    EXPECT_EQ(s.schirm.einzige(), "Kopierfehler! Die Datei: \n" + fehlt + "\nkonnte nicht nach: \n" + s.ordner.dos() +
                                      "\\fehlt22a.16o\nkopiert werden!");
    EXPECT_EQ(s.g.OBS_R.anzahl(), 1);
    EXPECT_FALSE(fs::exists(s.pfad("001.INI")));
    s.g.Verfahrensname.clear();
    s.einfuegen({s.datei("5501122a.16o", gut)});
    EXPECT_FALSE(fs::exists(s.pfad("5501122a.16o"))) << "no project is open";
}

TEST(Einfuegen, WasEinerVollenPlatteEntgehtWirdAlleinNochmalsVersucht)
{
    struct Fall {
        int schreiben_bei;  // that write fails, once
        bool fehlt;         // the second file isn't there
        int gelistet;
    };
    for (const auto& fall : {Fall{0, false, 40}, Fall{1, false, 0}, Fall{2, false, 40}, Fall{0, true, 1}}) {
        Einfuegestand s("1");
        Namen pfade;
        for (int i = 1; i <= 40; ++i) pfade.push_back(s.datei(verkettet(5500 + i, "122a.16o"), gut));
        if (fall.fehlt) fs::remove(s.quelle / "5502122a.16o");
        std::vector<std::size_t> gemeldet;
        Bruch bruch(s.g);
        Bruch::schreiben_bei = fall.schreiben_bei;
        dateien_kopieren(s.g, Dateiart::rinex, pfade, [&](std::size_t i) { gemeldet.push_back(i); });
        ASSERT_EQ(s.g.dateien_liste.anzahl(), fall.gelistet);
        for (std::size_t i = 0; i < gemeldet.size(); ++i) EXPECT_EQ(gemeldet[i], i);
        EXPECT_EQ(gemeldet.size(), static_cast<std::size_t>(fall.gelistet));
        for (const auto& name : s.g.dateien_liste) EXPECT_EQ(lesen(s.pfad(name)), gut);
        EXPECT_EQ(s.schirm.gezeigt.size(), fall.gelistet == 40 ? 0u : 1u);
    }
}

TEST(Einfuegen, GescheiterteSicherungSetztNichtsZurueck)
{
    Einfuegestand s("1");
    ASSERT_TRUE(s.g.GEO_Punkt.anfuegen());
    const std::string quelle = s.datei("5501122a.16o", gut);
    Bruch bruch(s.g);
    Bruch::verboten = "001.BAK";
    s.einfuegen({quelle});
    EXPECT_EQ(s.schirm.einzige(), "Kopierfehler! Die Datei: \n" + s.g.Verfahrensdatei + "\nkonnte nicht nach: \n" +
                                      s.ordner.dos() + "\\001.BAK\nkopiert werden!");
    EXPECT_EQ(s.g.GEO_Punkt.anzahl(), 1);
}

TEST(Einfuegen, UnlesbareDateiBeendetDenLaufUndKommtAusDerListe)
{
    for (const char* schlecht : {"binary", "position"}) {
        Einfuegestand s("1");
        Rinexprobe probe;
        probe.position = kopfzeile("1 2 3", "APPROX POSITION XYZ");
        const std::string inhalt = schlecht[0] == 'b' ? std::string(5000, '\x01') : probe.text();
        s.einfuegen({s.datei("5501122a.16o", gut), s.datei("5502122a.16o", inhalt), s.datei("5503122a.16o", gut)});
        EXPECT_EQ(s.schirm.gezeigt.size(), 1u);
        EXPECT_EQ(s.rinex(), (Namen{"5501122a.16o", "5503122a.16o"}));
        EXPECT_EQ(s.g.OBS_R.anzahl(), 1) << "what was read so far stays, no empty record";
        EXPECT_EQ(s.g.R_Punkt.anzahl(), 1);
        EXPECT_EQ(s.g.ROVER_Settings.anzahl(), 1);
        EXPECT_TRUE(fs::exists(s.pfad("5502122a.16o")));
        s.einfuegen({s.datei("5504122a.16o", gut)});
        EXPECT_TRUE(s.schirm.gezeigt.empty());
        EXPECT_EQ(s.g.OBS_R.anzahl(), 3) << "the next intake isn't stopped";
    }
}

TEST(Einfuegen, AbbruchBehaeltDasGelesene)
{
    Einfuegestand s("1");
    s.schirm.abbruch_nach = 1;
    s.einfuegen({s.datei("5501122a.16o", gut), s.datei("5502122a.16o", gut)});
    EXPECT_EQ(s.g.OBS_R.anzahl(), 1);
    EXPECT_EQ(s.g.RINEX_Dateien.anzahl(), 2);
}

TEST(Einfuegen, NameAusserhalbDerSpaltenWirdGemeldet)
{
    Einfuegestand s("1");
    s.einfuegen({s.datei("5501122.16o", gut)});
    EXPECT_EQ(s.schirm.einzige(),
              "Die ROVER-Datei:\n5501122.16o\nkann nicht berechnet werden!\n\nDer Name muss ohne "
              "Leerzeichen aus acht Zeichen, einem Punkt und drei Zeichen bestehen (z. B. "
              "12340010.16o).");
    EXPECT_EQ(s.schirm.gezeigt[0].symbol, Symbol::warnung);
    EXPECT_EQ(s.g.OBS_R.anzahl(), 1);
}

TEST(Einfuegen, NeueStation)
{
    Einfuegestand s("1");
    const std::string quelle = s.datei("0590122a.16o", gut);
    s.schirm.antworten = {Antwort::nein};
    s.einfuegen({quelle});
    EXPECT_EQ(s.schirm.einzige(),
              "Eine neue TOREL-Station: 0590 (Musterstadt) für die Anzeige des Punktehimmels in der "
              "Grafik identifiziert!\n\nIst es tatsächlich eine neue TOREL-Station, oder wurde eine "
              "nicht zulässige Punktnummer vergeben (siehe Handbuch)?\n\nDie neue TOREL-Station "
              "laden?");
    EXPECT_TRUE(s.rinex().empty());
    EXPECT_TRUE(fs::exists(s.pfad("0590122a.16o")));
    s.schirm.antworten = {Antwort::ja};
    s.einfuegen({quelle});
    ASSERT_EQ(s.g.TOREL_Punkt.anzahl(), 1);
    EXPECT_EQ(s.g.TOREL_Punkt[1].Name, "Musterstadt");
    EXPECT_EQ(s.g.S_Punkt.anzahl(), 1);
    EXPECT_TRUE(fs::exists(s.quelle / "Grund_TOREL.CIF"));

    // Less than a millimetre is no difference.
    s.g.TOREL_Punkt[1].X = 3783000.1233;
    s.einfuegen({quelle});
    EXPECT_TRUE(s.schirm.gezeigt.empty());
    s.g.TOREL_Punkt[1].X = 3783001;
    s.einfuegen({quelle});
    EXPECT_EQ(
        s.schirm.einzige(),
        "Die TOREL-Station: 0590 soll für die Anzeige des Punktehimmels in der Grafik\naus der Datei: "
        "0590122a.16o neue Koordinaten bekommen!\n\n  alt     X:  3783001.000   Y:  901600.123   Z:  5038200.123\n"
        "  neu   X:  3783000.123   Y:  901600.123   Z:  5038200.123\n\nBei größeren Abweichungen liegt vermutlich "
        "ein Fehler vor (siehe Handbuch)!\n\nDie Station trotz der Abweichungen laden?");
    EXPECT_EQ(s.g.TOREL_Punkt[1].X, 3783001) << "the default answer is No";
    s.schirm.antworten = {Antwort::ja};
    s.einfuegen({quelle});
    EXPECT_EQ(s.g.TOREL_Punkt[1].X, 3783000.1234);

    // A station at the earth's centre: the conversion is told, the file is registered, the reading then drops it.
    Rinexprobe probe;
    probe.position = kopfzeile("1 2 3", "APPROX POSITION XYZ");
    s.schirm.antworten = {Antwort::ja};
    s.einfuegen({s.datei("0591122a.16o", probe.text())});
    ASSERT_EQ(s.schirm.gezeigt.size(), 3u);
    EXPECT_EQ(s.schirm.texte()[1],
              "Fehler bei der Umrechnung von einem TOREL-Punkt!\n\nTOREL-Datei:0591122a.16o\n"
              "überprüfen und ggf. neu versuchen!");
    EXPECT_EQ(s.rinex(), Namen{"0590122a.16o"});
}

TEST(Einfuegen, VirtuelleDateienDesModusF)
{
    Einfuegestand s("3");
    s.einfuegen({s.datei("virt5501092a.05o", gut)});
    // Without the suite the file can't be dated; that it was read at all shows by the message.
    ASSERT_FALSE(s.schirm.gezeigt.empty());
    EXPECT_NE(s.schirm.texte().back().find("virt. RINEX-Datei:virt5501092a.05o"), std::string::npos);
    EXPECT_EQ(s.g.OBS_V.anzahl(), 0);
}

TEST(Einfuegen, DimensionierungDerListen)
{
    for (const auto& [nummer, text] : std::vector<std::pair<int, std::string>>{
             {29, "(29 in (Dateien command1_click))\n    ReDim Preserve dateien_liste(0)"},
             {31, "(31 in neue_rinex_datei)\n    ReDim Preserve RINEX_Dateien(1)"},
             {34, "(34 in neue_antennen_datei)\n    ReDim Preserve Antennen_Dateien(1)"}}) {
        Einfuegestand s("1");
        if (nummer == 29) s.g.dateien_liste.grenze_setzen(0);
        if (nummer == 31) s.g.RINEX_Dateien.grenze_setzen(0);
        if (nummer == 34) s.g.Antennen_Dateien.grenze_setzen(0);
        const bool antenne = nummer == 34;
        s.einfuegen({antenne ? s.datei("a.atx", "x") : s.datei("5501122a.16o", gut)},
                    antenne ? Dateiart::antennen : Dateiart::rinex);
        ASSERT_FALSE(s.schirm.gezeigt.empty());
        EXPECT_EQ(s.schirm.texte()[0], dim(text));
    }
}

TEST(Einfuegen, AntennenLegenDasFormatFest)
{
    const std::string absolut = kopfzeile("A", "PCV TYPE / REFANT") + antennenblock("AAA", "1"),
                      relativ = kopfzeile("R                   REF", "PCV TYPE / REFANT");
    Einfuegestand s("1");
    s.einfuegen({s.datei("A.ATX", absolut), s.datei("b.apc", "x"), s.datei("c.atx", absolut)}, Dateiart::antennen);
    EXPECT_EQ(
        s.schirm.einzige(),
        "Das Format von Antennenkorrekturdaten (IGS / ANTEX) darf\ninnerhalb eines Verfahrens nicht gemischt "
        "werden!\nDie Festlegung erfolgt durch die zuerst geladene Datei \nmit Antennenkorrekturdaten und ist zur "
        "Zeit: ANTEX\n\nLadefunktion abgebrochen.");
    EXPECT_EQ(s.antennen(), Namen{"a.atx"});
    EXPECT_EQ(s.g.Verfahren[1].Antenne, "ATX");
    EXPECT_EQ(lesen(s.pfad("001.ATX")), ersetzt(absolut, "\n", "\r\n"));

    // A refused file is dropped, and the rest still makes the project file.
    s.einfuegen({s.datei("b.atx", relativ), s.datei("c.atx", absolut)}, Dateiart::antennen);
    EXPECT_EQ(s.schirm.gezeigt.size(), 1u);
    EXPECT_EQ(s.antennen(), (Namen{"a.atx", "c.atx"}));
    EXPECT_EQ(lesen(s.pfad("001.ATX")), ersetzt(absolut + absolut, "\n", "\r\n"));

    // When none is left, or none could be copied, the format is open again.
    Einfuegestand leer("1");
    leer.einfuegen({leer.datei("x.atx", absolut + relativ)}, Dateiart::antennen);
    EXPECT_TRUE(leer.antennen().empty());
    EXPECT_EQ(leer.g.Verfahren[1].Antenne, "?");
    leer.einfuegen({leer.quelle_dos() + "\\fehlt.apc"}, Dateiart::antennen);
    EXPECT_EQ(leer.g.Verfahren[1].Antenne, "?");

    leer.einfuegen({leer.datei("x.apc", "x"), leer.datei("y.atx", absolut)}, Dateiart::antennen);
    ASSERT_EQ(leer.schirm.gezeigt.size(), 2u);
    EXPECT_NE(leer.schirm.texte()[0].find("ist zur Zeit: IGS\n"), std::string::npos);
    EXPECT_EQ(leer.schirm.texte()[1],
              "Antennen-Dateien im Format *.apc werden von JorvPlus nicht mehr unterstützt!\n"
              "Wenn möglich Antennen-Dateien im Format *.atx verwenden oder die Vorversion Jorv "
              "für die Auswertung nutzen.");
    EXPECT_EQ(leer.antennen(), Namen{"x.apc"});
    EXPECT_EQ(leer.g.Verfahren[1].Antenne, "APC");
}

}  // namespace jorv
