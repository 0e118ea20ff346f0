// Columns of the files, and that their bytes come again.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "simulator/text.h"
#include "simulator/zeit.h"
#include "simulator/zufall.h"
#include "werkzeuge/umgebung.h"

namespace jorv::simulator {
namespace {

std::string text_von(const Szenario& s, char art)
{
    const Testordner ordner;
    std::string meldung;
    EXPECT_TRUE(schreiben(s, ordner.pfad(), meldung)) << meldung;
    return datei_lesen(ordner.pfad() / dateiname(s, s.punkte[0], art));
}

Szenario alles_an()
{
    Szenario s = ohne_wirkung();
    s.signalstaerke = s.glonass = true;
    s.wirkungen.uhr_versatz = 1e-4;
    s.wirkungen.satellitenuhren = s.wirkungen.mehrdeutigkeiten = true;
    s.wirkungen.ionosphaere.vtec = 10;
    s.wirkungen.troposphaere.an = true;
    s.wirkungen.coderauschen = 0.3;
    s.wirkungen.phasenrauschen = 0.002;
    s.wirkungen.mehrweg = 0.2;
    s.wirkungen.bahnfehler = 1;
    s.wirkungen.spruenge = 0.5;
    return s;
}

std::string inhalt(const std::vector<std::string>& z, std::string_view label)
{
    for (const std::string& zeile : z) {
        if (zeile.size() > 60 && zeile.substr(60) == label) return zeile.substr(0, 60);
    }
    ADD_FAILURE() << label << " is missing";
    return std::string(60, ' ');
}

TEST(Format, ZahlenInFestenSpalten)
{
    struct {
        double wert;
        int breite, stellen;
        const char* soll;
    } faelle[] = {{0, 14, 3, "         0.000"},  {-0.0004, 8, 3, "   0.000"},
                  {-0.0006, 8, 3, "  -0.001"},   {1234567.8995, 14, 3, "   1234567.900"},
                  {-20151.5, 9, 1, " -20151.5"}, {7, 3, 0, "  7"},
                  {12345, 4, 1, "12345.0"}};
    for (const auto& f : faelle) {
        std::string aus;
        fest(aus, f.wert, f.breite, f.stellen);
        EXPECT_EQ(aus, f.soll);
    }
    std::string aus;
    exponent(aus, -4.5e-9);
    exponent(aus, 5153.75);
    EXPECT_EQ(aus, "-4.500000000000D-09 5.153750000000D+03");
}

TEST(Format, GeneratorWieVeroeffentlicht)
{
    EXPECT_EQ(mischen(0), 0xE220A8397B1DCDAFu);  // first output of SplitMix64 with seed 0
    EXPECT_EQ(mischen(0x9E3779B97F4A7C15u), 0x6E789E6AA1B965F4u);
}

TEST(Format, NameNachTagSitzungUndJahr)
{
    Szenario s = ohne_wirkung();
    Punkt& p = s.punkte[0];
    EXPECT_EQ(dateiname(s, p, 'o'), "05901670.16o");
    p.sitzung = 'a';
    s.tag = {2005, 1, 9};
    EXPECT_EQ(dateiname(s, p, 'n'), "0590009a.05n");
    s.tag = {2016, 12, 31};
    p.von = 86400;
    EXPECT_EQ(dateiname(s, p, 'g'), "0590001a.17g");
}

TEST(Format, BytesKommenWieder)
{
    const Szenario s = alles_an();
    Szenario anders = s;
    anders.saat = 8;
    for (const char art : {'o', 'n', 'g'}) EXPECT_EQ(text_von(s, art), text_von(s, art)) << art;
    EXPECT_NE(text_von(s, 'o'), text_von(anders, 'o'));
    EXPECT_EQ(text_von(s, 'n').substr(0, 4000), text_von(anders, 'n').substr(0, 4000)) << "the seed moved the orbits";
}

TEST(Format, BeobachtungskopfSpalten)
{
    Szenario s = alles_an();
    s.glonass = false;
    s.antennen.push_back(antenne_machen("4100210090", "JORREF2         JORD", {}, {}, 0, 0));
    s.punkte[0].antenne = "4100210090";
    s.punkte[0].name = "Ahlbeek";
    s.punkte[0].naeherung = {1, -2, 3};
    s.punkte[0].antennenhoehe = 0.1234;
    const auto z = zeilen(text_von(s, 'o'));
    EXPECT_EQ(z[0], "     2.11           OBSERVATION DATA    G (GPS)             RINEX VERSION / TYPE");
    EXPECT_EQ(inhalt(z, "MARKER NAME").substr(0, 8), "Ahlbeek ");
    EXPECT_EQ(inhalt(z, "ANT # / TYPE").substr(0, 41), "4100210090          JORREF2         JORD ");
    EXPECT_EQ(inhalt(z, "APPROX POSITION XYZ").substr(0, 42), "  3884393.8034   629152.7793  5002951.8397");
    EXPECT_EQ(inhalt(z, "ANTENNA: DELTA H/E/N").substr(0, 42), "        0.1234        0.0000        0.0000");
    EXPECT_EQ(inhalt(z, "# / TYPES OF OBSERV").substr(0, 42), "     6    C1    L1    P2    L2    S1    S2");
    EXPECT_EQ(inhalt(z, "INTERVAL").substr(0, 10), "    30.000");
    EXPECT_EQ(inhalt(z, "TIME OF FIRST OBS").substr(0, 51), "  2016     6    15     9     0    0.0000000     GPS");
    EXPECT_EQ(inhalt(z, "TIME OF LAST OBS").substr(0, 51), "  2016     6    15    10     0    0.0000000     GPS");
    s.punkte[0].endzeit_im_kopf = false;
    EXPECT_THAT(text_von(s, 'o'), testing::Not(testing::HasSubstr("TIME OF LAST OBS")));
}

TEST(Format, ViereckigeZahlDerSatelliten)
{
    // With a mask below the horizon more than 24 satellites give two continuation lines.
    Szenario s = alles_an();
    s.maske = -10;
    s.punkte[0].bis = s.punkte[0].von + 60;
    const auto z = zeilen(text_von(s, 'o'));
    auto i =
        std::find_if(z.begin(), z.end(), [](const std::string& zeile) { return zeile.ends_with("END OF HEADER"); });
    ASSERT_NE(i, z.end());
    const std::string epoche = *++i;
    EXPECT_EQ(epoche.substr(0, 29), " 16  6 15  9  0  0.0000000  0");
    const auto anzahl = static_cast<std::size_t>(spalte(epoche, 30, 3));
    ASSERT_GT(anzahl, 24u);
    EXPECT_EQ(epoche.size(), 32u + 36u);
    EXPECT_EQ((++i)->substr(0, 32), std::string(32, ' '));
    EXPECT_EQ(i->size(), 68u);
    EXPECT_EQ((++i)->size(), 32 + 3 * (anzahl - 24));
    ++i;
    for (std::size_t k = 0; k < anzahl; ++k) {
        EXPECT_EQ((i++)->size(), 64u + 14u);  // C1 L1 P2 L2 with marks, S1
        EXPECT_EQ((i++)->size(), 14u);        // S2
    }
    EXPECT_EQ(i->substr(0, 29), " 16  6 15  9  0 30.0000000  0");
    for (const std::string& zeile : z) EXPECT_LE(zeile.size(), 80u);
}

TEST(Format, NavigationsdateiSpalten)
{
    const auto z = zeilen(text_von(alles_an(), 'n'));
    EXPECT_EQ(z[0].substr(0, 40), "     2.11           N: GPS NAV DATA     ");
    auto i =
        std::find_if(z.begin(), z.end(), [](const std::string& zeile) { return zeile.ends_with("END OF HEADER"); });
    ASSERT_NE(i, z.end());
    std::size_t saetze = 0;
    for (++i; i != z.end(); i += 8, ++saetze) {
        ASSERT_GE(z.end() - i, 8);
        const double stunde = spalte(*i, 13, 2);
        EXPECT_EQ(i->substr(2, 10), " 16  6 15 ");
        EXPECT_EQ(std::fmod(stunde, 2), 0);
        EXPECT_EQ(i->size(), 79u);
        EXPECT_EQ(spalte(i[3], 4, 19), 3 * 86400 + 3600 * stunde) << "a Wednesday";
        EXPECT_NEAR(spalte(i[2], 23, 19), 0.01, 0.0051);
        EXPECT_NEAR(spalte(i[2], 61, 19), 5153.65, 0.2);
        EXPECT_EQ(spalte(i[5], 42, 19), 1901);
        EXPECT_EQ(spalte(i[6], 23, 19), 0) << "healthy";
        EXPECT_EQ(spalte(i[1], 4, 19), spalte(i[6], 61, 19)) << "IODE and IODC";
    }
    EXPECT_GT(saetze, 20u);
}

TEST(Format, GlonassNavigationInUtc)
{
    const auto z = zeilen(text_von(alles_an(), 'g'));
    EXPECT_EQ(z[0].substr(0, 40), "     2.11           GLONASS NAV DATA    ");
    EXPECT_EQ(inhalt(z, "LEAP SECONDS").substr(0, 6), "    17");
    auto i =
        std::find_if(z.begin(), z.end(), [](const std::string& zeile) { return zeile.ends_with("END OF HEADER"); });
    ASSERT_NE(i, z.end());
    for (++i; i != z.end(); i += 4) {
        ASSERT_GE(z.end() - i, 4);
        EXPECT_THAT(spalte(*i, 16, 2), testing::AnyOf(15, 45));
        EXPECT_EQ(i->substr(17, 5), "  0.0");
        const double sekunden = 3 * 86400 + 3600 * spalte(*i, 13, 2) + 60 * spalte(*i, 16, 2);
        EXPECT_EQ(spalte(*i, 61, 19), sekunden) << "a Wednesday";
        EXPECT_EQ(spalte(i[1], 61, 19), 0) << "healthy";
        EXPECT_LE(std::abs(spalte(i[2], 61, 19)), 7) << "frequency number";
    }
}

TEST(Format, AntennendateiSpalten)
{
    Szenario s;
    s.antennen.push_back(antenne_machen("R7-00412", "JORFELD7        NONE", {0.00118, -0.00074, 0.06183},
                                        {0, 0, 0.05847}, -0.0042, 0.0027));
    const Testordner ordner;
    std::string meldung;
    ASSERT_TRUE(antex_schreiben(s, ordner.pfad() / "a.atx", meldung)) << meldung;
    const auto z = zeilen(datei_lesen(ordner.pfad() / "a.atx"));
    EXPECT_EQ(z[0], "     1.4            G                                       ANTEX VERSION / SYST");
    EXPECT_EQ(inhalt(z, "PCV TYPE / REFANT"), "A" + std::string(59, ' '));
    EXPECT_EQ(inhalt(z, "TYPE / SERIAL NO").substr(0, 41), "JORFELD7        NONER7-00412             ");
    EXPECT_EQ(inhalt(z, "NORTH / EAST / UP").substr(0, 31), "      1.18     -0.74     61.83 ");
    const auto gang =
        std::find_if(z.begin(), z.end(), [](const std::string& zeile) { return zeile.starts_with("   NOAZI"); });
    ASSERT_NE(gang, z.end());
    EXPECT_EQ(gang->size(), 8u + 19u * 8u);
    EXPECT_EQ(gang->substr(8, 8), "    0.00");
    EXPECT_EQ(gang->substr(8 + 18 * 8), "   -4.20");
}

}  // namespace
}  // namespace jorv::simulator
