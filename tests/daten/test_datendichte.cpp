#include "daten/datendichte.h"

#include <gtest/gtest.h>

#include "proben.h"

namespace jorv {

using namespace hilfen;

namespace {

std::string epoche(int sekunde, int satelliten, std::string_view zustand = "0")
{
    const auto breit = [](std::string text, std::size_t breite) {
        return std::string(breite - text.size(), ' ') + text;
    };
    std::string zeile = " 16  5  1  8 " + breit(std::to_string(sekunde / 60), 2) +
                        breit(std::to_string(sekunde % 60), 3) + ".0000000" + breit(std::string(zustand), 3) +
                        breit(std::to_string(satelliten), 3);
    std::string werte;
    for (int i = 0; i < satelliten; ++i) {
        if (i == 12) zeile += "\n" + std::string(32, ' ');
        zeile += "G" + breit(std::to_string(i + 1), 2);
        werte += "  1.000\n";
    }
    return zeile + "\n" + werte;
}

// "0-45:5 60-75:6", seconds from eight o'clock.
std::string abschnitte(const Datendichte& d)
{
    const auto acht = static_cast<double>(sekunden_seit_1970({2016, 5, 1, 8, 0, 0}));
    std::string text;
    for (const auto& a : d.Abschnitte)
        text += verkettet(text.empty() ? "" : " ", static_cast<int>(a.von - acht), "-", static_cast<int>(a.bis - acht),
                          ":", a.Satelliten);
    return text;
}

}  // namespace

TEST(Datendichten, ZeigenLueckenUndSatellitenUndMerkenSichDieDateien)
{
    Pruefstand p;
    Rinexprobe probe;
    probe.daten = epoche(0, 5) + epoche(15, 5) + epoche(30, 14) + epoche(75, 14) +  // three intervals are no gap
                  epoche(121, 2) + epoche(136, 2, "6") + epoche(151, 2) + epoche(100, 9) +
                  " 16  5  1  8  2      9E999  0  0\n" + epoche(166, 2);
    schreiben(p.pfad("a.16o"), probe.text());
    schreiben(p.pfad("leer.16o"), "");
    Datendichten dichten;
    dichten.lesen(p.g, {"a.16o", "leer.16o", "fehlt.16o"});
    ASSERT_TRUE(dichten.von("a.16o") && dichten.von("leer.16o"));
    EXPECT_FALSE(dichten.von("fehlt.16o"));
    EXPECT_TRUE(dichten.von("leer.16o")->Abschnitte.empty());
    const Datendichte& a = *dichten.von("a.16o");
    EXPECT_EQ(abschnitte(a), "0-30:5 30-75:14 121-166:2");
    EXPECT_EQ(a.Intervall, 15);
    EXPECT_EQ(a.meiste_Satelliten, 14);
    EXPECT_TRUE(p.schirm.texte().empty());

    probe.daten = epoche(0, 5) + epoche(30, 5);
    schreiben(p.pfad("a.16o"), probe.text());
    dichten.lesen(p.g, {"a.16o"});
    EXPECT_EQ(abschnitte(*dichten.von("a.16o")), "0-30:5");
    p.g.Verfahrensnummer = "002";
    dichten.lesen(p.g, {});
    EXPECT_FALSE(dichten.von("a.16o"));

    // Much to read can be left off behind the file at work.
    schreiben(p.pfad("b.16o"), probe.text());
    Datendichten viele(0);
    p.schirm.abbruch_nach = p.schirm.ereignisse_zahl + 2;
    viele.lesen(p.g, {"a.16o", "b.16o"});
    EXPECT_EQ(p.schirm.fortschritt,
              (std::vector<std::string>{"Bitte warten (Beobachtungsdaten lesen)", "(verborgen)"}));
    EXPECT_TRUE(viele.von("a.16o"));
    EXPECT_FALSE(viele.von("b.16o"));
}

}  // namespace jorv
