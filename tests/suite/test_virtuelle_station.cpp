#include "suite/virtuelle_station.h"

#include <gtest/gtest.h>

#include "suite/Pruefdaten.h"
#include "suite/herkunft.h"
#include "suite/netz_mehrdeutigkeiten.h"
#include "suite/stationen.h"

namespace jorv::suite {

namespace {

const std::string ROVER = "07590920.05o", BASIS = "30400920.05o", VIRT = "virt092.05o";

RinexBeobachtung virtuelle(const Pruefordner& p)
{
    std::string grund;
    return beobachtung_lesen(p.text(VIRT), Umfang::alles, grund).value_or(RinexBeobachtung{});
}

// Moves the hours of all tags of a file, over midnight when they pass 24.
std::string verspaetet(const std::string& text, int stunden)
{
    std::string neu;
    Zeilenleser leser(text);
    bool daten = false;
    while (const auto zeile = leser.naechste()) {
        std::string z(*zeile);
        if (daten && z.starts_with(" 05  4  2 ")) {
            const int stunde = ganz_streng(z.substr(10, 2)).value() + stunden;
            z.replace(8, 4, verkettet(2 + stunde / 24, stunde % 24 < 10 ? "  " : " ", stunde % 24));
        }
        if (z.find("END OF HEADER") != std::string::npos) daten = true;
        neu.append(z).append("\r\n");
    }
    return neu;
}

}  // namespace

TEST(Virtuelle_station, hinterlaesst_beobachtungen_navigation_und_protokoll)
{
    NUR_MIT_DATEN("geonet2005");
    const Pruefordner p;
    p.geonet();
    // Names are found without regard to case, an unknown station costs a warning.
    fs::rename(p.pfad(ROVER), p.pfad("07590920.05O"));
    const Lauf lauf = p.wav2({ROVER, "9999,3040", "+PRO", "+E", "+A001.ATX"});
    EXPECT_EQ(lauf.status, 0) << lauf.ausgabe;
    EXPECT_TRUE(lauf.meldet("WARNUNG: Keine Beobachtungsdatei der Station 9999"));
    EXPECT_EQ(p.text("wav2log.txt"), lauf.protokoll);
    const RinexBeobachtung v = virtuelle(p);
    EXPECT_EQ(v.epochen.size(), 120u);
    EXPECT_EQ(v.kopf.ort, (Xyz{-3976219.5082, 3382372.5671, 3652512.9849}));
    const auto herkunft = herkunft_lesen(v.kopf.kommentar_virtuell);
    ASSERT_TRUE(herkunft);
    EXPECT_EQ(herkunft->station, "3040");
    EXPECT_NEAR(herkunft->strecke, 3335.4, 0.1);
    EXPECT_NEAR(herkunft->hoehenunterschied, -5.6, 0.1);
    Navigation n;
    EXPECT_GT(navigation_lesen(p.text("virt092.05n"), n), 100);
    for (const char* name : {"virt092.05o", "virt092.05n", "wav2log.txt"}) {
        const std::string text = p.text(name);
        EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), std::count(text.begin(), text.end(), '\r')) << name;
    }
}

TEST(Virtuelle_station, fehler_lassen_keine_datei_zurueck)
{
    NUR_MIT_DATEN("geonet2005");
    struct Fall {
        const char* name;
        Worte worte;
        void (*schaden)(const Pruefordner& p);
        const char* meldung;
    };
    const auto nichts = [](const Pruefordner&) {};
    const std::vector<Fall> faelle = {
        {"kein Rover", {"99990920.05o", "3040"}, nichts, "Die Datei 99990920.05o konnte nicht"},
        {"keine Station", {ROVER, "1111"}, nichts, "ERROR: Keine Referenzstation"},
        {"Fenster daneben", {ROVER, "3040", "+b120000", "+e130000"}, nichts, "ERROR: Das Zeitfenster"},
        {"Station zu anderer Zeit",
         {ROVER, "3040"},
         [](const Pruefordner& p) { p.schreiben(BASIS, verspaetet(p.text(BASIS), 5)); },
         "hat im Zeitraum nicht beobachtet"},
        {"ohne Ort",
         {ROVER, "3040"},
         [](const Pruefordner& p) {
             p.aendern(ROVER, " -3976219.5082  3382372.5671  3652512.9849", std::string(42, ' '));
         },
         "keine N"},
        {"ohne Navigation",
         {ROVER, "3040"},
         [](const Pruefordner& p) {
             fs::remove(p.pfad("30400920.05n"));
             fs::remove(p.pfad("07590920.05n"));
         },
         "ERROR: Keine Navigationsdatei"},
        {"kaputte Station",
         {ROVER, "3040"},
         [](const Pruefordner& p) { p.schreiben(BASIS, "x"); },
         "ist keine RINEX-Datei"},
    };
    for (const Fall& f : faelle) {
        const Pruefordner p;
        p.geonet();
        p.schreiben(VIRT, "alt");
        f.schaden(p);
        const Lauf lauf = p.wav2(f.worte);
        EXPECT_EQ(lauf.status, 1) << f.name;
        EXPECT_TRUE(lauf.meldet(f.meldung)) << f.name << ": " << lauf.ausgabe;
        EXPECT_TRUE(lauf.meldet("ERROR: ")) << f.name;
        EXPECT_TRUE(!p.da(VIRT) || f.worte[0] != ROVER) << f.name;
        EXPECT_TRUE(p.da("wav2log.txt")) << f.name;
    }
}

TEST(Virtuelle_station, zeitfenster_und_mitternacht)
{
    NUR_MIT_DATEN("geonet2005");
    struct Fall {
        int stunden;
        Worte fenster;
        const char* erste;
        std::size_t epochen;  // one epoch more at each end
    };
    for (const Fall& f :
         {Fall{0, {"+b001000", "+e002000"}, "00:09:30", 23}, Fall{0, {"+b230000", "+e001000"}, "00:00:00", 22},
          Fall{23, {"+b233000", "+e235959"}, "23:29:30", 61}}) {
        const Pruefordner p;
        p.geonet();
        for (const std::string& name : {ROVER, BASIS}) p.schreiben(name, verspaetet(p.text(name), f.stunden));
        Worte worte = {ROVER, "3040"};
        worte.insert(worte.end(), f.fenster.begin(), f.fenster.end());
        const Lauf lauf = p.wav2(worte);
        const RinexBeobachtung v = virtuelle(p);
        ASSERT_EQ(lauf.status, 0) << lauf.ausgabe;
        ASSERT_EQ(v.epochen.size(), f.epochen);
        EXPECT_EQ(zeittext(v.epochen.front().zeit).substr(11), f.erste);
    }
}

TEST(Virtuelle_station, fuegt_stundendateien_einer_station_zusammen)
{
    NUR_MIT_DATEN("geonet2005");
    const Pruefordner p;
    p.geonet();
    const std::string ganz = p.text(BASIS);
    const auto schnitt = ganz.find("\n 05  4  2  0 30 ") + 1;
    ASSERT_GT(schnitt, 0u);
    const auto ende_kopf = ganz.find('\n', ganz.find("END OF HEADER")) + 1;
    fs::remove(p.pfad(BASIS));
    p.schreiben("3040092a.05o", ganz.substr(0, schnitt));
    p.schreiben("3040092b.05o", ganz.substr(0, ende_kopf) + ganz.substr(schnitt));
    EXPECT_EQ(p.wav2({ROVER, "3040"}).status, 0);
    EXPECT_EQ(virtuelle(p).epochen.size(), 120u);
}

// Quarters of an hour in the morning, when the ionosphere changes fast: the stations' longer data still fix, and show a
// header that is wrong by less than a wide lane.
TEST(Virtuelle_station, paar_wirklicher_stationen_ueber_eine_viertelstunde)
{
    NUR_MIT_DATEN("katalonien2010");
    const Pruefordner p;
    for (const char* name : {"upc10770.10o", "garr0770.10o", "mata0770.10o", "brdc0770.10n"})
        p.holen(echt() / "katalonien2010" / name);
    p.holen(echt() / "antennen" / "igs08_auszug.atx", "001.ATX");
    const std::string gut = p.text("mata0770.10o");
    constexpr std::string_view KOPF = "  4776835.5870   202618.9947  4207574.6304";
    const Ort mata({4776835.5870, 202618.9947, 4207574.6304});
    constexpr double HOEHER = 0.042;  // metres, what makes the network's heights agree
    for (const Enu& daneben : {Enu{}, Enu{0.17, 0, 0}, Enu{0, 0.17, 0}, Enu{0, 0, 0.3}, Enu{25, 0, 0}}) {
        std::string falsch;
        for (std::size_t i = 0; i < 3; ++i) {
            const auto& h = mata.horizont;
            const std::array<double, 3> xyz = {mata.xyz.x, mata.xyz.y, mata.xyz.z};
            const std::string zahl =
                fest(xyz[i] + daneben.e * h[0][i] + daneben.n * h[1][i] + (daneben.u + HOEHER) * h[2][i], 4);
            falsch.append(14 - zahl.size(), ' ').append(zahl);
        }
        std::string text = gut;
        p.schreiben("mata0770.10o", text.replace(text.find(KOPF), KOPF.size(), falsch));
        const bool richtig = daneben.e == 0 && daneben.n == 0 && daneben.u == 0;
        for (const char* viertel : {"050000", "051500", "053000", "054500"}) {
            const std::string ende =
                verkettet(mitte(viertel, 1, 2), ganz_streng(mitte(viertel, 3, 2)).value() + 14, "59");
            const Lauf lauf =
                p.wav2({"upc10770.10o", "garr,mata", "+A001.ATX", "+b" + std::string(viertel), "+e" + ende});
            ASSERT_EQ(lauf.status, 0) << lauf.ausgabe;
            EXPECT_EQ(lauf.meldet("im Netz mit"), richtig) << viertel << " " << daneben.e << "\n" << lauf.protokoll;
        }
    }
}

TEST(Virtuelle_station, paar_braucht_feste_boegen_nah_an_ganzen_zahlen_und_am_ort)
{
    struct Fall {
        const char* name;
        Paar paar;
        bool brauchbar;
    };
    const Enu genau{0.02, 0.02, 0.04};
    const double lang = 9000, kurz = 3600;
    for (const Fall& f :
         {Fall{"gut", {10, 7, 0.10, 0, {0.05, -0.05, 0.1}, genau, lang, {}}, true},
          Fall{"zwei Boegen", {2, 2, 0.05, 0, {}, genau, lang, {}}, false},
          Fall{"zu wenige fest", {10, 5, 0.05, 0, {}, genau, lang, {}}, false},
          Fall{"gerade genug fest", {10, 6, 0.05, 0, {}, genau, lang, {}}, true},
          Fall{"zwischen den ganzen Zahlen", {10, 10, 0.14, 0, {}, genau, lang, {}}, false},
          Fall{"Lage", {10, 10, 0.05, 0, {0.09, 0.09, 0}, genau, lang, {}}, false},
          Fall{"Hoehe", {10, 10, 0.05, 0, {0, 0, -0.16}, genau, lang, {}}, false},
          Fall{"kurz, also ungenau", {10, 10, 0.05, 0, {0.2, 0.2, 0.4}, genau, kurz, {}}, true},
          Fall{"kurz und weit", {10, 10, 0.05, 0, {0.3, 0.2, 0}, genau, kurz, {}}, false},
          Fall{"schwache Geometrie", {10, 10, 0.05, 0, {0.2, 0, 0}, {0.07, 0.01, 0.1}, lang, {}}, true}})
        EXPECT_EQ(f.paar.brauchbar(), f.brauchbar) << f.name;
}

TEST(Virtuelle_station, herkunft_steht_in_einer_zeile)
{
    for (const Herkunft& h : {Herkunft{"3040", 3335.4, -5.6}, Herkunft{"AB", 123456.7, 1234.5, true}}) {
        const std::string text = herkunft_text(h);
        EXPECT_LE(text.size(), 60u);
        const auto zurueck = herkunft_lesen(text);
        ASSERT_TRUE(zurueck);
        EXPECT_EQ(zurueck->strecke, h.strecke);
        EXPECT_EQ(zurueck->hoehenunterschied, h.hoehenunterschied);
        EXPECT_EQ(zurueck->netz, h.netz);
    }
    EXPECT_FALSE(herkunft_lesen("VIRTUELLE STATION AUS"));
    EXPECT_FALSE(herkunft_lesen("irgendwas"));
}

}  // namespace jorv::suite
