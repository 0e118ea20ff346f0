// GLONASS: orbits from broadcast messages of 2012 against the messages half an hour later, files, and the shifted
// observations of a virtual station.
#include "suite/glonass.h"

#include <gtest/gtest.h>

#include <utility>

#include "simulator/beispiel.h"
#include "simulator/szenario_text.h"
#include "suite/Pruefdaten.h"

namespace jorv::suite {

namespace {

// Four satellites of 31 October 2012 at 00:15 and 00:45 UTC, each from another plane or half of it.
constexpr std::string_view MELDUNGEN =
    R"(     2.10           G: GLONASS NAV DATA                     RINEX VERSION / TYPE
    16                                                      LEAP SECONDS
                                                            END OF HEADER
 1 12 10 31  0 15  0.0-1.759855076671D-04 0.000000000000D+00 0.000000000000D+00
    5.416847656250D+03 2.984502792358D+00 2.793967723846D-09 0.000000000000D+00
   -9.795950195312D+03 9.660949707031D-01 9.313225746155D-10 1.000000000000D+00
    2.292654296875D+04-2.906579971313D-01-9.313225746155D-10 0.000000000000D+00
 8 12 10 31  0 15  0.0-1.596445217729D-04 1.818989403546D-12 0.000000000000D+00
    2.092193554688D+04 1.928675651550D+00 5.587935447693D-09 0.000000000000D+00
   -2.260909179688D+03 4.129400253296D-01 0.000000000000D+00 6.000000000000D+00
    1.439020947266D+04-2.739249229431D+00 0.000000000000D+00 0.000000000000D+00
13 12 10 31  0 15  0.0-3.670472651720D-04-9.094947017729D-13 3.000000000000D+01
    1.453364257813D+02 2.156267166138D+00-1.862645149231D-09 0.000000000000D+00
   -1.342531689453D+04-2.045801162720D+00 9.313225746155D-10-2.000000000000D+00
   -2.170585009766D+04 1.278804779053D+00 9.313225746155D-10 0.000000000000D+00
21 12 10 31  0 15  0.0-7.934868335724D-07 9.094947017729D-13 3.000000000000D+01
    1.155848632813D+04 6.093025207520D-01 0.000000000000D+00 0.000000000000D+00
    1.312469482422D+04 2.472773551941D+00-9.313225746155D-10 4.000000000000D+00
   -1.862208544922D+04 2.112836837769D+00 1.862645149231D-09 0.000000000000D+00
 1 12 10 31  0 45  0.0-1.759855076671D-04 0.000000000000D+00 1.800000000000D+03
    1.076225292969D+04 2.904001235962D+00 4.656612873077D-09 0.000000000000D+00
   -8.480842773438D+03 4.912681579590D-01 0.000000000000D+00 1.000000000000D+00
    2.152460693359D+04-1.256902694702D+00-9.313225746155D-10 0.000000000000D+00
 8 12 10 31  0 45  0.0-1.596407964826D-04 1.818989403546D-12 1.800000000000D+03
    2.379282226562D+04 1.229611396790D+00 5.587935447693D-09 0.000000000000D+00
   -1.859089843750D+03 6.194591522217D-02-0.000000000000D+00 6.000000000000D+00
    8.966086425781D+03-3.248352050781D+00 9.313225746155D-10 0.000000000000D+00
13 12 10 31  0 45  0.0-3.670491278172D-04-9.094947017729D-13 1.830000000000D+03
    3.498686523438D+03 1.551924705505D+00 0.000000000000D+00 0.000000000000D+00
   -1.712878027344D+04-2.021867752075D+00 1.862645149231D-09-2.000000000000D+00
   -1.859614208984D+04 2.154030799866D+00 1.862645149231D-09 0.000000000000D+00
21 12 10 31  0 45  0.0-7.897615432739D-07 9.094947017729D-13 1.830000000000D+03
    1.282851464844D+04 7.644634246826D-01 0.000000000000D+00 0.000000000000D+00
    1.697837988281D+04 1.780872344971D+00-1.862645149231D-09 4.000000000000D+00
   -1.415149951172D+04 2.822278022766D+00 1.862645149231D-09 0.000000000000D+00
)";

Glonassnavigation gelesen(std::string_view text, int saetze)
{
    Glonassnavigation n;
    EXPECT_EQ(glonass_lesen(text, n), saetze);
    return n;
}

}  // namespace

// An integration that forgot moon and sun, the flattening or the turning earth is off by 1 m, 100 m and more.
TEST(Glonass, bahn_trifft_die_naechste_meldung)
{
    const auto n = gelesen(MELDUNGEN, 8);
    for (std::size_t i = 0; i < 4; ++i) {
        const Glonasssatz &a = n.saetze[i], &b = n.saetze[i + 4];
        SCOPED_TRACE(a.satellit);
        ASSERT_EQ(a.satellit, b.satellit);
        ASSERT_EQ(abstand(b.zeit, a.zeit), 1800.0);
        const GpsZeit mitte = verschoben(a.zeit, 900.0);
        const Satellitenlage vor = satellitenlage(a, mitte), zurueck = satellitenlage(b, mitte);
        EXPECT_LT(laenge(vor.ort - zurueck.ort), 1.5);
        EXPECT_LT(laenge(vor.geschwindigkeit - zurueck.geschwindigkeit), 0.004);
        EXPECT_LT(laenge(satellitenlage(a, b.zeit).ort - b.ort), 5.0);
        EXPECT_LT(std::abs(vor.uhr - zurueck.uhr) * LICHT, 1.0);
        // The velocity is that of the position.
        const Satellitenlage spaeter = satellitenlage(a, verschoben(mitte, 0.5));
        EXPECT_LT(laenge(vor.nach(0.5) - spaeter.ort), 0.2);
    }
}

TEST(Glonass, dateien_werden_ohne_doppelte_zusammengefuehrt)
{
    auto n = gelesen(MELDUNGEN, 8);
    const Glonasssatz& satz = n.saetze[0];
    EXPECT_EQ(satz.satellit, GLONASS + 1);
    EXPECT_EQ(satz.kanal, 1);
    EXPECT_EQ(n.saetze[2].kanal, -2);
    EXPECT_EQ(zeittext(satz.zeit), "31.10.2012 00:15:16");
    EXPECT_EQ(glonass_lesen(MELDUNGEN, n), 8);
    EXPECT_EQ(n.saetze.size(), 8u);
    // Without the header's line the table tells the leap seconds.
    const std::string ohne = ersetzt(MELDUNGEN, "LEAP SECONDS", "COMMENT     ");
    EXPECT_EQ(gelesen(ohne, 8).saetze[0].zeit, satz.zeit);
    EXPECT_EQ(gelesen(glonass_text(n), 8).saetze[7].ort, n.saetze[7].ort);
    // A torn set costs itself alone.
    const std::string kaputt =
        ersetzt(MELDUNGEN, "    2.092193554688D+04 1.928675651550D+00", "    2.0921x3554688D+04");
    EXPECT_EQ(gelesen(kaputt, 7).saetze[1].satellit, GLONASS + 13);
    Glonassnavigation leer;
    EXPECT_EQ(glonass_lesen(ersetzt(MELDUNGEN, "G: GLONASS NAV DATA ", "N: GPS NAV DATA     "), leer), -1);
    EXPECT_EQ(glonass_lesen("", leer), -1);
}

TEST(Glonass, der_naechste_gesunde_satz_gilt_eine_halbe_stunde)
{
    auto n = gelesen(MELDUNGEN, 8);
    const GpsZeit erste = n.saetze[0].zeit;
    const auto bei = [&](double sekunden) {
        return passender_satz(n.saetze, GLONASS + 1, verschoben(erste, sekunden));
    };
    EXPECT_EQ(bei(899), &n.saetze[0]);
    EXPECT_EQ(bei(901), &n.saetze[4]);
    EXPECT_EQ(bei(-1801), nullptr);
    EXPECT_EQ(bei(3601), nullptr);
    EXPECT_EQ(passender_satz(n.saetze, GLONASS + 2, erste), nullptr);
    n.saetze[0].gesundheit = 1;
    EXPECT_EQ(bei(0), &n.saetze[4]);
    struct Fall {
        Kalenderzeit tag;
        int sekunden;
    };
    for (const Fall& f :
         {Fall{{1980, 6, 1, 0, 0, 0}, 0}, Fall{{1998, 12, 31, 0, 0, 0}, 12}, Fall{{1999, 1, 1, 0, 0, 0}, 13},
          Fall{{2012, 6, 30, 0, 0, 0}, 15}, Fall{{2012, 7, 1, 0, 0, 0}, 16}, Fall{{2030, 1, 1, 0, 0, 0}, 18}})
        EXPECT_EQ(schaltsekunden(*gps_zeit(f.tag)), f.sekunden) << f.tag.jahr;
}

// Nothing but geometry: codes and phases of the shifted station are those at the place itself, channel by channel. With
// a network there are none, because it can't correct them.
TEST(Glonass, virtuelle_station_traegt_die_verschobenen_beobachtungen)
{
    simulator::Szenario s;
    std::string meldung;
    ASSERT_TRUE(simulator::szenario_lesen(simulator::beispiel_text(), s, meldung)) << meldung;
    s.glonass = true;
    const simulator::Wirkungen wirkungen = std::exchange(s.wirkungen, {});
    s.wirkungen.satellitenuhren = true;
    std::erase_if(s.punkte, [](const auto& p) {
        return p.pkz != "5506" && p.pkz != "5501" && p.pkz != "0590" && p.pkz != "0591" && p.pkz != "0596";
    });
    for (simulator::Punkt& punkt : s.punkte) {
        punkt.naeherung = {};
        punkt.antennenhoehe = 0.0;
        punkt.von = 11 * 3600.0;
        punkt.bis = 12 * 3600.0;
    }
    const Pruefordner p;
    ASSERT_TRUE(simulator::schreiben(s, p.temp.host(), meldung)) << meldung;
    const std::string rover = "55061670.16o";
    ASSERT_EQ(p.wav2({rover, "0596"}, Troposphaerenmodell::ohne).status, 0);
    EXPECT_NE(p.text("virt167.16o").find("M (MIXED)"), std::string::npos);
    Glonassnavigation saetze;
    EXPECT_GT(glonass_lesen(p.text("virt167.16g"), saetze), 20);
    std::string grund;
    const auto virt = beobachtung_lesen(p.text("virt167.16o"), Umfang::alles, grund, {}, Systeme::gps_glonass);
    const auto echt = beobachtung_lesen(p.text(rover), Umfang::alles, grund, {}, Systeme::gps_glonass);
    ASSERT_TRUE(virt && echt);
    std::size_t verglichen = 0;
    double code = 0, phase = 0;
    for (std::size_t e = 0; e < virt->epochen.size(); ++e) {
        const Epoche &a = virt->epochen[e], &b = echt->epochen[e];
        ASSERT_EQ(a.zeit, b.zeit);
        for (std::size_t i = 0; i < a.anzahl; ++i)
            for (std::size_t k = 0; k < b.anzahl; ++k) {
                const Messung &x = virt->messungen[a.erste + i], &y = echt->messungen[b.erste + k];
                if (x.satellit != y.satellit || x.satellit < GLONASS) continue;
                ++verglichen;
                code = std::max(code, std::abs(x[Art::C1] - y[Art::C1]));
                phase = std::max({phase, std::abs(x[Art::L1] - y[Art::L1]), std::abs(x[Art::L2] - y[Art::L2])});
            }
    }
    EXPECT_GT(verglichen, 500u);
    EXPECT_LT(code, 0.0021);   // two files rounded to millimetres
    EXPECT_LT(phase, 0.0121);  // cycles, of 18 cm

    s.wirkungen = wirkungen;
    for (simulator::Punkt& punkt : s.punkte)
        if (!punkt.pkz.starts_with("55")) punkt.von -= 1800, punkt.bis += 1800;
    ASSERT_TRUE(simulator::schreiben(s, p.temp.host(), meldung)) << meldung;
    const Lauf netz = p.wav2({"55011670.16o", "0590,0591"});
    EXPECT_TRUE(netz.meldet("im Netz mit")) << netz.protokoll;
    EXPECT_FALSE(p.da("virt167.16g"));
}

}  // namespace jorv::suite
