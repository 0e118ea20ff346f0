#include "plattform/wort.h"

#include <gtest/gtest.h>

#include <string>

namespace jorv {

struct Fall {
    std::string text;
    int nummer;
    Wortstatus status;
    std::string wort;
};

TEST(Wort, WorteUndZustaende)
{
    using enum Wortstatus;
    const Fall faelle[] = {
        {"eins  zwei", 2, gefunden, "zwei"},
        {"a", 2, fehlt, ""},
        {"", 1, fehlt, ""},
        {"   ", 1, fehlt, ""},
        {"a", 0, fehlerhaft, ""},
        {"x \"\" y", 2, leer, ""},
        {"x \"\" y", 3, gefunden, "y"},
        {"x \"ANT 1\" 2014", 2, gefunden, "ANT 1"},
        {"x \"ANT 1\" 2014", 3, gefunden, "2014"},
        {"x \"offen und lang", 2, gefunden, "offen und lan"},
        {std::string("a\0b", 3), 2, gefunden, "b"},
        {"a\"b c\"", 1, gefunden, "a\"b"},
    };
    for (const auto& fall : faelle) {
        const Wort wort = wort_finden(fall.text, fall.nummer);
        EXPECT_EQ(wort.status, fall.status) << fall.text << " / " << fall.nummer;
        EXPECT_EQ(wort.text, fall.wort) << fall.text << " / " << fall.nummer;
    }
}

TEST(Wort, BeginnUndLaengeZaehlenAbEinsOhneAnfuehrung)
{
    const Wort wort = wort_finden("ab \"c d\" e", 2);
    EXPECT_EQ(wort.beginn, 5u);
    EXPECT_EQ(wort.laenge, 3u);
}

TEST(Wort, EineFolgeGibtDieselbenWorteWieEinzelneAufrufe)
{
    for (const std::string text : {"1 \"a b\" \"\" 3", "\"offen", "a  b", "\" \" x \"y\"z"}) {
        Wortfolge folge(text);
        for (int n = 1; n <= 6; ++n) {
            const Wort einzeln = wort_finden(text, n), lauf = folge.naechstes();
            EXPECT_EQ(einzeln.status, lauf.status) << text << n;
            EXPECT_EQ(einzeln.text, lauf.text) << text << n;
        }
    }
}

}  // namespace jorv
