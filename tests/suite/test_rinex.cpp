#include "suite/rinex_beobachtung.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <random>
#include <sstream>

#include "hilfen/Haeppchen.h"
#include "suite/Pruefdaten.h"
#include "suite/rinex_navigation.h"
#include "suite/rinex_schreiben.h"
#include "suite/spalten.h"

namespace jorv::suite {

namespace {

// All that was read, as a text.
std::string bild(const RinexBeobachtung& b)
{
    std::ostringstream text;
    text.precision(17);
    text << b.kopf.marke << b.kopf.empfaenger << b.kopf.antennennummer << b.kopf.ort.x << '\n';
    for (const auto& e : b.epochen) {
        text << e.zeit.sekunde << ' ' << e.kennung << ' ' << e.uhr << '\n';
        for (std::size_t i = e.erste; i < e.erste + e.anzahl; ++i) {
            const Messung& m = b.messungen.at(i);
            text << m.satellit;
            for (std::size_t art = 0; art < ARTEN; ++art)
                text << ' ' << m.wert[art] << m.schlupf[art] << m.staerke[art];
            text << '\n';
        }
    }
    for (const auto& hinweis : b.hinweise) text << hinweis << '\n';
    return text.str();
}

RinexBeobachtung lesen(const std::string& text, std::string& grund, Umfang umfang = Umfang::alles)
{
    auto daten = beobachtung_lesen(text, umfang, grund).value_or(RinexBeobachtung{});
    // The same out of a file in pieces, so that each line is cut somewhere.
    hilfen::Haeppchen datei;
    const std::array<std::size_t, 5> laengen = {1, 3, 81, 150, 4096};
    for (const std::size_t stueck : laengen) {
        std::string warum;
        Beobachtungsstrom strom{datei.oeffnen(text, laengen[text.size() % laengen.size()]), text.size(), stueck};
        const auto in_stuecken = beobachtung_lesen(std::move(strom), umfang, warum).value_or(RinexBeobachtung{});
        EXPECT_EQ(warum, grund);
        EXPECT_EQ(bild(in_stuecken), bild(daten)) << "pieces of " << stueck;
    }
    return daten;
}

std::string kopf(std::string_view arten = "     2    C1    L1")
{
    std::string text;
    const auto zeile = [&](std::string_view inhalt, std::string_view marke) {
        anhaengen_links(text, inhalt, 60);
        text.append(marke).append("\n");
    };
    zeile("     2.11           OBSERVATION DATA    G (GPS)", "RINEX VERSION / TYPE");
    zeile(arten, "# / TYPES OF OBSERV");
    zeile("", "END OF HEADER");
    return text;
}

std::string epoche(int sekunde, std::string_view satelliten = "  1G05")
{
    std::string text = " 05  4  2  0  0";
    anhaengen_fest(text, sekunde, 11, 7);
    return text.append("  0").append(satelliten.substr(0, 3)).append(satelliten.substr(3)).append("\n");
}

const std::string WERT = "  20000000.000    10000000.000 7\n";

}  // namespace

TEST(Rinex, liest_sonderbare_dateien_wie_von_hand_gezaehlt)
{
    NUR_MIT_DATEN("lesetests");
    struct Fall {
        const char* datei;
        std::size_t epochen;  // 0: refused
        double takt;
    };
    const std::vector<Fall> faelle = {
        {"ac660270.18o", 23, 15},  {"barq071q.19o", 1, 0},      {"blank.10o", 0, 0},      {"cags1700.16o", 6, 30},
        {"demo.10o", 2, 30},       {"faa1170b00.16o", 5, 1},    {"gage2710.98o", 900, 1}, {"galb3450.04o", 360, 30},
        {"kerg1700.16o", 6, 30},   {"kosg0010.95o", 3, 0},      {"minimal2.10o", 1, 0},   {"mixed211.05o", 2, 18},
        {"qaq13010.03o", 360, 30}, {"rinexobsfile.06o", 6, 30}, {"txau0470.12o", 973, 5}, {"notobs.06o", 0, 0},
    };
    for (const Fall& f : faelle) {
        std::string grund;
        const std::string text = hilfen::lesen(echt() / "lesetests" / f.datei);
        const RinexBeobachtung b = lesen(text, grund);
        EXPECT_EQ(b.epochen.size(), f.epochen) << f.datei << " " << grund;
        EXPECT_TRUE(f.takt == 0 || std::abs(b.intervall() - f.takt) < 0.01) << f.datei << " " << b.intervall();
        EXPECT_EQ(lesen(text, grund, Umfang::epochen).epochen.size(), f.epochen) << f.datei;
        // What is written again is read the same.
        if (b.epochen.empty() || b.messungen.empty()) continue;
        const RinexBeobachtung c = lesen(beobachtung_text(b, "test", {2016, 12, 1}), grund);
        ASSERT_EQ(c.epochen.size(), b.epochen.size()) << f.datei;
        ASSERT_EQ(c.messungen.size(), b.messungen.size()) << f.datei;
        for (std::size_t i = 0; i < b.messungen.size(); ++i)
            EXPECT_EQ(c.messungen[i].wert, b.messungen[i].wert) << f.datei;
    }
}

TEST(Rinex, zwischenkoepfe_der_wirklichen_dateien)
{
    NUR_MIT_DATEN("geonet2005");
    std::string grund;
    for (const char* datei : {"07590920.05o", "30400920.05o"}) {
        const RinexBeobachtung b = lesen(hilfen::lesen(echt() / "geonet2005" / datei), grund);
        EXPECT_EQ(b.epochen.size(), 120u);
        EXPECT_TRUE(b.hinweise.empty());
        EXPECT_EQ(b.kopf.antennentyp, "TRM29659.00");
    }
}

TEST(Rinex, schaden_kostet_nur_die_eigene_epoche)
{
    struct Fall {
        const char* name;
        std::string daten;
        std::size_t epochen;
    };
    const std::string gut0 = epoche(0) + WERT, gut30 = epoche(30) + WERT, gut59 = epoche(59) + WERT;
    const std::vector<Fall> faelle = {
        {"ganz", gut0 + gut30 + gut59, 3},
        {"leere Zeilen", gut0 + "\n\n" + gut30, 2},
        {"unlesbare Epochenzeile", gut0 + " 05  4  x  0  0 30.0000000  0  1G05\n" + WERT + gut59, 2},
        {"Satellit unlesbar", gut0 + epoche(30, "  1G?5") + WERT + gut59, 2},
        {"Ende mitten in der Epoche", gut0 + epoche(30, "  2G05G07") + WERT, 1},
        {"Epoche doppelt", gut0 + gut30 + gut30 + gut59, 3},
        {"Zeit rueckwaerts", gut30 + gut0 + gut59, 2},
        {"Ereignis ohne Zeit", gut0 + "                            4  1\nText\n" + gut30, 2},
        {"Ereignis mit Zeit", gut0 + " 05  4  2  0  0 15.0000000  5  0\n" + gut30, 2},
        {"Phasenspruenge", gut0 + " 05  4  2  0  0 15.0000000  6  1G05\n" + WERT + gut30, 2},
        {"bewegte Antenne", gut0 + "                            2  0\n" + gut30, 1},
        {"bewegt vor Beginn", "                            2  1\nText\n" + gut0 + gut30, 2},
        {"neuer Standort", gut0 + "                            3  0\n" + gut30, 1},
        {"nichts", "", 0},
    };
    for (const Fall& f : faelle) {
        std::string grund;
        EXPECT_EQ(lesen(kopf() + f.daten, grund).epochen.size(), f.epochen) << f.name;
        EXPECT_EQ(lesen(ersetzt(kopf() + f.daten, "\n", "\r\n"), grund, Umfang::epochen).epochen.size(), f.epochen)
            << f.name;
    }
}

// The short ways for numbers of few digits give the library's bits and its characters, ties and signed zeros included.
TEST(Rinex, zahlen_kommen_unveraendert_hinein_und_heraus)
{
    std::mt19937_64 zufall(1);
    std::array<char, 64> puffer;
    for (int i = 0; i < 20000; ++i) {
        const int stellen = i % 8;
        const double wert = std::ldexp(static_cast<double>(zufall() >> 40), i % 40 - 30) * (i % 3 == 0 ? -1 : 1);
        std::string text;
        anhaengen_fest(text, wert, 40, stellen);
        const auto ende =
            std::to_chars(puffer.data(), puffer.data() + puffer.size(), wert, std::chars_format::fixed, stellen).ptr;
        ASSERT_EQ(trimmen(text), std::string_view(puffer.data(), static_cast<std::size_t>(ende - puffer.data())));
        double soll = 0.0;
        std::from_chars(puffer.data(), ende, soll);
        const auto ist = spaltenzahl(trimmen(text));
        ASSERT_TRUE(ist);
        ASSERT_EQ(std::bit_cast<std::uint64_t>(*ist), std::bit_cast<std::uint64_t>(soll)) << text;
    }
    EXPECT_EQ(spaltenzahl("-.123456789012D-04"), -.123456789012e-04);
    EXPECT_EQ(spaltenzahl("123456789012345678901234567890"), 123456789012345678901234567890.0);
    for (const char* falsch : {"", ".", "-", "+", "1D", "1.2.3", "1D+", "--1", "1 2", "1D9999"})
        EXPECT_FALSE(spaltenzahl(falsch)) << falsch;
}

TEST(Rinex, neue_spalten_in_den_daten_gelten_ab_dort)
{
    std::string neu;
    anhaengen_links(neu, "     3    L1    D1    C1", 60);
    const std::string text = kopf() + epoche(0) + WERT + "                            4  1\n" + neu +
                             "# / TYPES OF OBSERV\n" + epoche(30) + "  10000001.000         123.456    20000001.000\n";
    std::string grund;
    const RinexBeobachtung b = lesen(text, grund);
    ASSERT_EQ(b.messungen.size(), 2u);
    EXPECT_EQ(b.messungen[0][Art::C1], 20000000.0);
    EXPECT_EQ(b.messungen[1][Art::C1], 20000001.0);
    EXPECT_EQ(b.messungen[1][Art::L1], 10000001.0);
}

TEST(Rinex, geschwindigkeit_fuehrt_zum_naechsten_ort)
{
    NUR_MIT_DATEN("geonet2005");
    const Pruefordner p;
    p.geonet();
    Navigation n;
    ASSERT_GT(navigation_lesen(p.text("30400920.05n"), n), 100);
    for (const Ephemeride& eph : n.saetze)
        for (const double t : {-7000.0, 0.0, 5000.0}) {
            const GpsZeit zeit = verschoben(eph.toe, t);
            const Satellitenlage lage = satellitenlage(eph, zeit);
            EXPECT_LT(laenge(satellitenlage(eph, verschoben(zeit, 0.002)).ort - lage.nach(0.002)), 3e-6);
            EXPECT_LT(laenge(satellitenlage(eph, verschoben(zeit, -0.002)).ort - lage.nach(-0.002)), 3e-6);
        }
}

TEST(Rinex, navigation_ohne_doppelte_und_mit_bruechen)
{
    NUR_MIT_DATEN("geonet2005");
    const std::string text = hilfen::lesen(echt() / "geonet2005" / "07590920.05n");
    Navigation n;
    const int saetze = navigation_lesen(text, n);
    EXPECT_GT(saetze, 100);
    const std::size_t verschiedene = n.saetze.size();
    EXPECT_EQ(navigation_lesen(ersetzt(text, "\n", "\r\n"), n), saetze);
    EXPECT_EQ(n.saetze.size(), verschiedene);
    Navigation zweite;
    navigation_lesen(navigation_text(n), zweite);
    EXPECT_EQ(zweite.saetze.size(), verschiedene);
    // A set that lost a line doesn't take its neighbours along.
    Zeilenleser leser(text);
    std::string kaputt;
    for (int nummer = 0; const auto zeile = leser.naechste(); ++nummer)
        if (nummer != 12) kaputt.append(*zeile).append("\n");
    Navigation dritte;
    EXPECT_EQ(navigation_lesen(kaputt, dritte), saetze - 1);
    // A reference time outside the week, an infinite number.
    for (const char* wort : {" 9.999999999999D+99", "-1.000000000000D+00", "                inf"}) {
        std::string falsch = text;
        const auto toe = falsch.find('\n', falsch.find("END OF HEADER"));
        falsch.replace(falsch.find('\n', falsch.find('\n', falsch.find('\n', toe + 1) + 1) + 1) + 4, 19, wort);
        EXPECT_EQ(navigation_lesen(falsch, dritte), saetze - 1) << wort;
    }
    EXPECT_EQ(navigation_lesen("x", dritte), -1);
    EXPECT_EQ(navigation_lesen(kopf(), dritte), -1);
}

}  // namespace jorv::suite
