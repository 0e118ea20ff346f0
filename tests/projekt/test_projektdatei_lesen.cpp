#include "projekt/projektdatei_lesen.h"

#include <gtest/gtest.h>

#include "hilfen/Projekt.h"
#include "plattform/wort.h"
#include "projekt/geo_lesen.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

using Leser = Fehler (*)(Global&, const Profil&);

template <const char* Sektion>
Fehler obs(Global& g, const Profil& p)
{
    return Dateidaten_OBS_lesen(g, p, Sektion);
}
template <const char* Sektion>
Fehler graphik(Global& g, const Profil& p)
{
    return Dateidaten_GRAPHIK_lesen(g, p, Sektion);
}
constexpr char torel_obs[] = "TOREL-OBS", rover_obs[] = "ROVER-OBS", virt_obs[] = "FREMD-VIRT-OBS";
constexpr char graphik_torel[] = "GRAPHIK-TOREL", graphik_rover[] = "GRAPHIK-ROVER",
               graphik_virt[] = "GRAPHIK-FREMD-VIRT";

struct Leserfall {
    const char* sektion;
    Leser leser;
    const char* gute_zeile;
    std::vector<const char*> worte;   ///< how the missing n-th word is named
    std::vector<std::size_t> zahlen;  ///< words that must convert
    const char *erste, *weitere;      ///< head of the two growth messages
    void (*grenze)(Global&, int);
};

constexpr const char* obs_zeile = "5501001a.14o 5501 1 \"ANT 1\" 2014 1 1 8 0 0 2014 1 1 9 0 0 80000 90000";
const std::vector<const char*> obs_worte = {"Dateiname",         "Punktkennzeichen",      "Tag",
                                            "Antenne",           "Startzeit-Jahr",        "Startzeit-Monat",
                                            "Startzeit-Tag",     "Startzeit-Stunde",      "Startzeit-Minute",
                                            "Startzeit-Sekunde", "Endzeit-Jahr",          "Endzeit-Monat",
                                            "Endzeit-Tag",       "Endzeit-Stunde",        "Endzeit-Minute",
                                            "Endzeit-Sekunde",   "Startzeit-GPS-Sekunde", "Endzeit-GPSSekunde"};
const std::vector<std::size_t> obs_zahlen = {2, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17};
const std::vector<const char*> graphik_worte = {"Punktkennzeichen", "Rechtswert", "Hochwert",
                                                "X-Wert",           "Y-Wert",     "Z-Wert"};
constexpr const char* obs_anfang =
    " (17 in Dateidaten_OBS_lesen)\n    ReDim OBS_S(1) oder ReDim OBS_R(1) oder ReDim OBS_V(1)\n";
constexpr const char* graphik_anfang =
    " (20 in Dateidaten_GRAPHIK_lesen)\n    ReDim S_Punkt(1) oder ReDim R_Punkt(1) oder ReDim V_Punkt(1)\n";

const std::vector<Leserfall> leserfaelle = {
    {"GEO",
     geo_lesen,
     "1 0590 1000,5 2000",
     std::vector<const char*>(4, "Geometrie-Angaben"),
     {2, 3},
     " (15 in geo_lesen)\n     ReDim GEO_Punkt(1)\n",
     " (16 in geo_lesen)\n    ReDim Preserve GEO_Punkt(2)\n",
     [](Global& g, int n) { g.GEO_Punkt.grenze_setzen(n); }},
    {"TOREL-OBS", obs<torel_obs>, obs_zeile, obs_worte, obs_zahlen, obs_anfang,
     " (18 in Dateidaten_OBS_lesen)\n    ReDim Preserve OBS_S(2)\n",
     [](Global& g, int n) { g.OBS_S.grenze_setzen(n); }},
    {"ROVER-OBS", obs<rover_obs>, obs_zeile, obs_worte, obs_zahlen, obs_anfang,
     " (19 in Dateidaten_OBS_lesen)\n    ReDim Preserve OBS_R(2)\n",
     [](Global& g, int n) { g.OBS_R.grenze_setzen(n); }},
    {"FREMD-VIRT-OBS", obs<virt_obs>, obs_zeile, obs_worte, obs_zahlen, obs_anfang,
     " (72 in Dateidaten_OBS_lesen)\n    ReDim Preserve OBS_V(2)\n",
     [](Global& g, int n) { g.OBS_V.grenze_setzen(n); }},
    {"GRAPHIK-TOREL",
     graphik<graphik_torel>,
     "0590 1,5 2 3 4 5",
     graphik_worte,
     {1, 2, 3, 4, 5},
     graphik_anfang,
     " (21 in Dateidaten_GRAPHIK_lesen)\n    ReDim Preserve S_Punkt(2)\n",
     [](Global& g, int n) { g.S_Punkt.grenze_setzen(n); }},
    {"GRAPHIK-ROVER",
     graphik<graphik_rover>,
     "5501 1,5 2 3 4 5",
     graphik_worte,
     {1, 2, 3, 4, 5},
     graphik_anfang,
     "(22 in Dateidaten_GRAPHIK_lesen)\n    ReDim Preserve R_Punkt(2)\n",
     [](Global& g, int n) { g.R_Punkt.grenze_setzen(n); }},
    {"GRAPHIK-FREMD-VIRT",
     graphik<graphik_virt>,
     "virt 1,5 2 3 4 5",
     graphik_worte,
     {1, 2, 3, 4, 5},
     graphik_anfang,
     "(73 in Dateidaten_GRAPHIK_lesen)\n    ReDim Preserve V_Punkt(2)\n",
     [](Global& g, int n) { g.V_Punkt.grenze_setzen(n); }},
    {"ROVER-SETTINGS",
     Dateidaten_ROVER_Settings_lesen,
     "5501001a.14o 1 1 G01 0 1 2 5 80000 15 2 90000",
     {"ROVER-Dateiname in [ROVER-SETTINGS]", "Ein-/Ausschalterkennung in [ROVER-SETTINGS]",
      "AnzahlDelSatellite in [ROVER-SETTINGS]", "DelSatelliteName in [ROVER-SETTINGS]",
      "DelSatellite in [ROVER-SETTINGS]", "DelFirstMinutes in [ROVER-SETTINGS]", "DelLastMinutes in [ROVER-SETTINGS]",
      "Elevation in [ROVER-SETTINGS]", "StartTime in [ROVER-SETTINGS]", "EpochRate in [ROVER-SETTINGS]",
      "Solution in [ROVER-SETTINGS]", "EndTime in [ROVER-SETTINGS]"},
     {1, 2, 4, 5, 6, 7, 8, 9, 10, 11},
     " (70 in Dateidaten_ROVER_Settings_lesen)\n    ReDim ROVER_Settings(1)\n",
     " (24 in Dateidaten_ROVER_TOREL_lesen)\n    ReDim Preserve ROVER_TOREL(3)\n",
     [](Global& g, int n) {
         g.ROVER_Settings.grenze_setzen(n);
         (void)g.ROVER_TOREL.groesse_setzen(3);
     }},
    {"ROVER-TOREL",
     Dateidaten_ROVER_TOREL_lesen,
     "5501001a.14o 1 0590001a.14o 2 1 80000 90000 2",
     {"ROVER-Dateiname in [ROVER-TOREL]", "Anzahl TOREL-Dateiname in [ROVER-TOREL]", "TOREL-Dateiname in [ROVER-TOREL]",
      "Status in [ROVER-TOREL]", "Schutz in [ROVER-TOREL]", "Zeitfenster-Startzeit in [ROVER-TOREL]",
      "Zeitfenster-Endzeit in [ROVER-TOREL]", "Grund in [ROVER-TOREL]"},
     {1, 3, 4, 5, 6, 7},
     " (23 in Dateidaten_ROVER_TOREL_lesen)\n    ReDim ROVER_TOREL(1)\n",
     " (24 in Dateidaten_ROVER_TOREL_lesen)\n    ReDim Preserve ROVER_TOREL(2)\n",
     [](Global& g, int n) { g.ROVER_TOREL.grenze_setzen(n); }},
    {"ROVER-VIRT",
     Dateidaten_ROVER_VIRT_lesen,
     "5501001a.14o ? 0 0",
     {"ROVER-Dateiname in [ROVER-VIRT]", "VIRT-Dateiname in [ROVER-VIRT]", "VIRT-Index in [ROVER-VIRT]",
      "Strecke in [ROVER-VIRT]"},
     {2, 3},
     " (77 in Dateidaten_ROVER_VIRT_lesen)\n    ReDim ROVER_VIRT(1)\n",
     " (78 in Dateidaten_ROVER_VIRT_lesen)\n    ReDim Preserve ROVER_VIRT(2)\n",
     [](Global& g, int n) { g.ROVER_VIRT.grenze_setzen(n); }},
    {"RINEX-DATEIEN",
     Dateidaten_RINEX_lesen,
     "5501001a.14o",
     {"RINEX-Dateiname in [RINEX-DATEIEN]"},
     {},
     " (32 in Dateidaten_RINEX_lesen)\n    ReDim RINEX_Dateien(0)\n",
     " (33 in Dateidaten_RINEX_lesen)\n    ReDim Preserve RINEX_Dateien(2)\n",
     [](Global& g, int n) { g.RINEX_Dateien.grenze_setzen(n); }},
    {"ANTENNEN-DATEIEN",
     Dateidaten_Antennen_lesen,
     "igs.atx",
     {"Antennen-Dateiname in [ANTENNEN-DATEIEN]"},
     {},
     " (35 in Dateidaten_Antennen_lesen)\n    ReDim Antennen_Dateien(0)\n",
     " (36 in Dateidaten_Antennen_lesen)\n    ReDim Preserve Antennen_Dateien(2)\n",
     [](Global& g, int n) { g.Antennen_Dateien.grenze_setzen(n); }},
    {"BASISLINIE",
     Dateidaten_BASISLINIE_lesen,
     "5501 5502 5501001a.14o 5502001a.14o",
     {"Basislinien-PKK(von)", "Basislinien-PKK(nach)", "Dateiname der RINEX-Datei(von)",
      "Dateiname der RINEX-Datei(nach)"},
     {},
     " (45 in Dateidaten_BASISLINIE_lesen)\n    ReDim BASISLINIE(1)\n",
     " (46 in Dateidaten_BASISLINIE_lesen)\n    ReDim Preserve BASISLINIE(2)\n",
     [](Global& g, int n) { g.BASISLINIE.grenze_setzen(n); }},
};

void PrintTo(const Leserfall& fall, std::ostream* strom)
{
    *strom << fall.sektion;
}

std::vector<std::string> worte(std::string_view zeile)
{
    std::vector<std::string> alle;
    Wortfolge folge(zeile);
    for (Wort w = folge.naechstes(); w.status != Wortstatus::fehlt; w = folge.naechstes()) alle.emplace_back(w.text);
    return alle;
}

std::string zeile_aus(std::vector<std::string> teile)
{
    std::string zeile;
    for (const auto& teil : teile) zeile += (zeile.empty() ? "\"" : " \"") + teil + "\"";
    return zeile;
}

struct Sektionsleser : testing::TestWithParam<Leserfall> {
    // Reads a section of the given rows; the message, empty when the reading went well.
    std::string lesen(std::initializer_list<std::string> zeilen)
    {
        Profil profil;
        int n = 1;
        for (const auto& zeile : zeilen) profil.setzen(GetParam().sektion, verkettet(n++), zeile);
        p.schirm.gezeigt.clear();
        const Fehler fehler = GetParam().leser(p.g, profil);
        EXPECT_EQ(ist_fehler(fehler), !p.schirm.gezeigt.empty());
        for (const auto& g : p.schirm.gezeigt) EXPECT_EQ(g.symbol, Symbol::stop);
        return p.schirm.gezeigt.empty() ? "" : p.schirm.einzige();
    }
    std::string feldmeldung(std::string_view wort)
    {
        return utf8_aus_1252(verkettet(wort, " fehlerhaft in der Datei:\n", p.g.Verfahrensdatei, "\n\n",
                                       u8"Datei überprüfen und ggf. reparieren!"_w));
    }
    Pruefstand p;
};

}  // namespace

TEST_P(Sektionsleser, NenntJedesFehlendeWort)
{
    const auto& fall = GetParam();
    EXPECT_EQ(lesen({fall.gute_zeile, fall.gute_zeile}), "");
    const auto alle = worte(fall.gute_zeile);
    ASSERT_EQ(alle.size(), fall.worte.size());
    for (std::size_t n = 0; n < alle.size(); ++n) {
        // An empty pair of quotes is no word either; at the start the row would be empty otherwise.
        auto teile = std::vector(alle.begin(), alle.begin() + static_cast<std::ptrdiff_t>(n));
        if (n > 0) {
            EXPECT_EQ(lesen({fall.gute_zeile, zeile_aus(teile)}), feldmeldung(fall.worte[n]));
        }
        if (n == 0 && std::string_view(fall.sektion) == "GEO") continue;  // its count is no word but a character
        teile.emplace_back();
        EXPECT_EQ(lesen({zeile_aus(teile)}), feldmeldung(fall.worte[n]));
    }
}

TEST_P(Sektionsleser, NenntJedeZahlDieUeberlaeuft)
{
    const auto& fall = GetParam();
    for (const std::size_t n : fall.zahlen) {
        auto teile = worte(fall.gute_zeile);
        teile[n] = "1E999";
        std::string wort = fall.worte[n];
        if (wort == "Endzeit-GPSSekunde") wort = "Endzeit-GPS-Sekunde";
        EXPECT_EQ(lesen({zeile_aus(teile)}), feldmeldung(wort));
    }
}

TEST_P(Sektionsleser, MeldetFehlendenPlatz)
{
    const auto& fall = GetParam();
    const auto meldung = [](const char* kopf) {
        return std::string("Dimensionierungsfehler!") + kopf +
               "evtl. Speicherplatzprobleme\n\nOffene Anwendungen schließen und erneut versuchen!";
    };
    fall.grenze(p.g, 1);
    EXPECT_EQ(lesen({fall.gute_zeile, fall.gute_zeile}), meldung(fall.weitere));
    fall.grenze(p.g, -1);
    EXPECT_EQ(lesen({}), meldung(fall.erste));
}

INSTANTIATE_TEST_SUITE_P(Projektdatei, Sektionsleser, testing::ValuesIn(leserfaelle));

TEST(ProjektdateiLesen, WerteAusserhalbIhresFeldesSindFehler)
{
    struct Fall {
        const char *sektion, *zeile, *wort;
    };
    const Fall faelle[] = {
        {"ROVER-TOREL", "r 0 1 2 0 0 0", "Schutz in [ROVER-TOREL]"},
        {"ROVER-TOREL", "r 0 256 0 0 0 0", "Status in [ROVER-TOREL]"},
        {"ROVER-TOREL", "r -1 1 0 0 0 0", "Anzahl TOREL-Dateiname in [ROVER-TOREL]"},
        {"ROVER-TOREL", "r 5 a b c d e 1 0 0 0 0", "TOREL-Dateiname in [ROVER-TOREL]"},
        {"ROVER-SETTINGS", "r 1 71 G01 1", "AnzahlDelSatellite in [ROVER-SETTINGS]"},
        {"ROVER-SETTINGS", "r 1 0 0 0 5 2147483648 15 2 0", "StartTime in [ROVER-SETTINGS]"},
        {"ROVER-OBS", "a b 32768 \"A\"", "Tag"},
        {"GEO", "5 a 1 2 b 1 2 c 1 2 d 1 2 e 1 2", "Geometrie-Angaben"},
        {"GEO", "x a 1 2", "Geometrie-Angaben"},
    };
    for (const auto& fall : faelle) {
        Pruefstand p;
        Profil profil;
        profil.setzen(fall.sektion, "1", fall.zeile);
        EXPECT_EQ(Dateidaten_lesen(p.g, profil), Fehler::gesetzt);
        EXPECT_EQ(p.schirm.einzige(), std::string(fall.wort) + " fehlerhaft in der Datei:\n" + p.g.Verfahrensdatei +
                                          "\n\nDatei überprüfen und ggf. reparieren!");
    }
}

TEST(ProjektdateiLesen, KommataWerdenNurInDenSechsSektionenZuPunkten)
{
    Pruefstand p;
    Profil profil;
    profil.setzen("ROVER-OBS", "1", "a,b.14o a,b 1 \"A,B\" 2014 1 1 8 0 0 2014 1 1 9 0 0 1 2");
    profil.setzen("BASISLINIE", "1", "a,b c a,b.14o c.14o");
    profil.setzen("GRAPHIK-ROVER", "1", "a,b 1,25 ,5 5, , -,125");
    profil.setzen("GEO", "1", "1 a,b 1,5 2,");
    profil.setzen("RINEX-DATEIEN", "1", "a,b.14o");
    profil.setzen("ROVER-SETTINGS", "1", "a,b.14o 1 0 0 0 5 1 15 2 2");
    profil.setzen("ROVER-TOREL", "1", "a,b.14o 1 c,d.14o 1 0 0 0 0");
    profil.setzen("ROVER-VIRT", "1", "a,b.14o ? 0 0.5");
    ASSERT_EQ(Dateidaten_lesen(p.g, profil), Fehler::keiner);
    EXPECT_EQ(p.g.OBS_R[1].Dateiname, "a.b.14o");
    EXPECT_EQ(p.g.OBS_R[1].Antenne, "A.B");
    EXPECT_EQ(p.g.BASISLINIE[1].Datei_von, "a.b.14o");
    EXPECT_EQ(p.g.GEO_Punkt[1].Punkt[0], "a.b");
    EXPECT_DOUBLE_EQ(p.g.R_Punkt[1].Rechtswert, 1.25);
    EXPECT_DOUBLE_EQ(p.g.R_Punkt[1].Hochwert, 0.5);
    EXPECT_DOUBLE_EQ(p.g.R_Punkt[1].X, 5);
    EXPECT_DOUBLE_EQ(p.g.R_Punkt[1].Y, 0);
    EXPECT_DOUBLE_EQ(p.g.R_Punkt[1].Z, -0.125);
    EXPECT_EQ(p.g.RINEX_Dateien[1], "a,b.14o");
    EXPECT_EQ(p.g.ROVER_Settings[1].ROVER_Dateiname, "a,b.14o");
    EXPECT_EQ(p.g.ROVER_TOREL[1].TOREL_Dateiname[0], "c,d.14o");
    EXPECT_DOUBLE_EQ(p.g.ROVER_VIRT[1].Strecke, 0.5);
}

TEST(ProjektdateiLesen, DasLesenEndetBeimErstenLeerenSchluessel)
{
    Pruefstand p;
    const Profil profil("[rinex-dateien]\r\n1=a.14o\r\n2=\r\n3=c.14o\r\n");
    ASSERT_EQ(Dateidaten_RINEX_lesen(p.g, profil), Fehler::keiner);
    EXPECT_EQ(p.g.RINEX_Dateien.anzahl(), 1);
}

TEST(ProjektdateiLesen, NurDieEinstellungenDerROVERDuerfenLangSein)
{
    Pruefstand p;
    Profil profil;
    std::string zeile = "r 1 70";
    for (int i = 1; i <= 70; ++i) zeile += " G" + std::to_string(i) + " 1";
    profil.setzen("ROVER-SETTINGS", "1", zeile + " 1 2 3 4 5 6 7");
    profil.setzen("RINEX-DATEIEN", "1", std::string(300, 'x'));
    ASSERT_EQ(Dateidaten_lesen(p.g, profil), Fehler::keiner);
    EXPECT_EQ(p.g.ROVER_Settings[1].DelSatelliteName[70], "G70");
    EXPECT_EQ(p.g.ROVER_Settings[1].EndTime, 7);
    EXPECT_EQ(p.g.RINEX_Dateien[1].size(), 254u);
}

TEST(ProjektdateiLesen, DieZuordnungBringtZeitfensterUndAuswertemodusMit)
{
    Pruefstand p;
    p.g.Zeitfenster_1h = "1";
    p.g.Auswertemodus = "L0";
    EXPECT_EQ(Dateidaten_ROVER_TOREL_lesen(p.g, Profil("[GRUNDEINSTELLUNGEN]\r\nAuswertemodus=\r\n")), Fehler::keiner);
    EXPECT_EQ(p.g.Zeitfenster_1h + p.g.Auswertemodus, "1L0");
    EXPECT_EQ(Dateidaten_ROVER_TOREL_lesen(
                  p.g, Profil("[GRUNDEINSTELLUNGEN]\r\nZeitfenster 1H = 0\r\nAuswertemodus=L1\r\n[ROVER-TOREL]\r\n"
                              "1=r 0 3 1 093000 000059 1\r\n")),
              Fehler::keiner);
    EXPECT_EQ(p.g.Zeitfenster_1h + p.g.Auswertemodus, "0L1");
    EXPECT_EQ(p.g.ROVER_TOREL[1].Zeitfenster_Startzeit, "93000");
    EXPECT_EQ(p.g.ROVER_TOREL[1].Zeitfenster_Endzeit, "59");
}

TEST(Kopf, FensterUndKnotenErsetzenNurWasDaIst)
{
    Pruefstand p;
    schreiben(p.pfad("007.INI"),
              "[VERFAHREN]\r\nName=Neu\r\nNummer=007\r\nModus=2\r\n[KNOTEN]\r\n1=0\r\n2=\r\n"
              "[GRAFIK-FENSTER]\r\nY-min=1.5\r\nY-max=2\r\nX-min=3\r\nX-max=4\r\nFaktor=0.5\r\n");
    p.g.KNOTEN[2] = "0";
    const std::string datei = im_Verfahren(p.g, "007.INI");
    ASSERT_EQ(Verfahren_lesen(p.g, datei), Fehler::keiner);
    EXPECT_EQ(p.g.Verfahrensdatei, datei);
    EXPECT_EQ(p.g.Arbeitsverzeichnis, p.ordner.dos());
    EXPECT_EQ(p.g.KNOTEN[1] + p.g.KNOTEN[2] + p.g.KNOTEN[3], "001");
    EXPECT_TRUE(p.g.Grafik_Fenster_gelesen);
    EXPECT_DOUBLE_EQ(p.g.Y_min, 1.5);
    EXPECT_EQ(p.schirm.fenstertitel, "Verfahren -->Neu<--(007) Modus: >S<   (Jorv+, Version 1.0 vom 01.12.2016)");
    EXPECT_EQ(p.g.Liste_Name[0] + p.g.Liste_Modus[0], "Neu2");
}

TEST(Kopf, EineUnlesbareDateiAendertNichts)
{
    for (const bool ohne_namen : {false, true}) {
        Pruefstand p;
        const std::string datei = im_Verfahren(p.g, "077.INI");
        if (ohne_namen)
            schreiben(p.pfad("077.INI"), "[VERFAHREN]\r\nNummer=077\r\n");
        else
            fs::create_directories(p.pfad("077.INI"));
        EXPECT_EQ(Verfahren_lesen(p.g, datei), Fehler::gesetzt);
        EXPECT_EQ(p.schirm.einzige(),
                  "In der Verfahrensdatei: \n" + datei + "\n\nkonnt nicht fehlerfrei gelesen werden!");
        EXPECT_EQ(p.g.Verfahrensname, "Muster");
    }
}

TEST(Kopf, VerloreneNamenStehenNochInDerVerfahrensliste)
{
    Pruefstand p("3");
    schreiben(p.pfad("001.INI"), "[RINEX-DATEIEN]\r\n1=a.14o\r\n");
    const std::string datei = p.g.Verfahrensdatei;
    p.g.Verfahrensname = p.g.Verfahrensnummer = p.g.Verfahrensmodus = "";
    ASSERT_EQ(Verfahren_lesen(p.g, datei), Fehler::keiner);
    EXPECT_EQ(p.g.Verfahrensname + p.g.Verfahrensnummer + p.g.Verfahrensmodus, "Muster0013");
}
