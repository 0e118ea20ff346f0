#include "dos/zeile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "plattform/codepage_850.h"
#include "plattform/text.h"

namespace jorv::dos {
namespace {

using testing::ElementsAre;

TEST(Codepage850, deutsche_zeichen)
{
    struct Fall {
        std::string_view text;
        unsigned char byte;
    };
    const Fall faelle[] = {{u8"ä"_w, 132}, {u8"Ä"_w, 142}, {u8"ö"_w, 148}, {u8"Ö"_w, 153},
                           {u8"ü"_w, 129}, {u8"Ü"_w, 154}, {u8"ß"_w, 225}, {u8"§"_w, 245},
                           {u8"°"_w, 248}, {u8"´"_w, 239}, {u8"é"_w, 130}, {"A", 65}};
    for (const auto& fall : faelle) {
        EXPECT_EQ(nach_850(fall.text), std::string(1, static_cast<char>(fall.byte)));
        EXPECT_EQ(aus_850(std::string(1, static_cast<char>(fall.byte))), fall.text);
    }
}

TEST(Codepage850, jedes_byte_kommt_zurueck)
{
    std::string alle;
    for (int i = 0; i < 256; ++i) alle += static_cast<char>(i);
    EXPECT_EQ(nach_850(aus_850(alle)), alle);
    EXPECT_EQ(aus_850(nach_850(alle)), alle);
}

TEST(Zeile, variablen)
{
    const auto wert = [](std::string_view name) -> std::string {
        return gleich_ohne_gross(name, "path") ? "C:\\a b" : gleich_ohne_gross(name, "p") ? "%q%" : "";
    };
    struct Fall {
        std::string_view zeile, ergebnis;
    };
    const Fall faelle[] = {
        {"path %path%;Z:\\x", "path C:\\a b;Z:\\x"},
        {"echo \"%PATH%\"", "echo \"C:\\a b\""},
        {"REM %Path%", "REM C:\\a b"},
        {"a%unbekannt%b", "ab"},
        {"100%% und 5%", "100% und 5"},
        {"%1-%2-%9-%0", "eins-zwei--B.BAT"},
        {"%*", "eins zwei"},
        {"%p%", "%q%"},
        {"%%path%%", "%path%"},
        {"50 % a", "50  a"},
    };
    for (const auto& fall : faelle)
        EXPECT_EQ(ausdehnen(fall.zeile, wert, {"B.BAT", "eins", "zwei"}), fall.ergebnis) << fall.zeile;
}

TEST(Zeile, umlenkung_und_rest)
{
    struct Fall {
        std::string_view zeile, text;
        int strom;
        Umlenkungsart art;
        std::string_view ziel;
    };
    using enum Umlenkungsart;
    const Fall faelle[] = {
        {"echo a > f", "echo a ", 1, leeren, "f"},
        {"echo a>f", "echo a", 1, leeren, "f"},
        {"echo a >> f", "echo a ", 1, anhaengen, "f"},
        {"> f echo a", "echo a", 1, leeren, "f"},
        {"echo a > f b", "echo a  b", 1, leeren, "f"},
        {"wa2 +FL001 >> f", "wa2 +FL001 ", 1, anhaengen, "f"},
        {"echo a1>f", "echo a1", 1, leeren, "f"},
        {"echo a 1>f", "echo a ", 1, leeren, "f"},
        {"echo a 2>f", "echo a ", 2, leeren, "f"},
        {"echo a,2>f", "echo a,", 2, leeren, "f"},
        {"echo \"a 2\">f", "echo \"a 2\"", 1, leeren, "f"},
        {"echo a 12>f", "echo a 12", 1, leeren, "f"},
        {"more < f", "more ", 0, lesen, "f"},
        {"echo a 2>&1", "echo a ", 2, verdoppeln, "1"},
        {"echo a > \"x y.txt\"", "echo a ", 1, leeren, "x y.txt"},
        {"echo a >jorv_out\\l\\001.LIS", "echo a ", 1, leeren, "jorv_out\\l\\001.LIS"},
    };
    for (const auto& fall : faelle) {
        std::string_view rest = fall.zeile;
        const auto befehl = befehl_nehmen(rest);
        EXPECT_EQ(befehl.text, fall.text) << fall.zeile;
        ASSERT_EQ(befehl.umlenkungen.size(), 1u) << fall.zeile;
        EXPECT_EQ(befehl.umlenkungen[0].strom, fall.strom) << fall.zeile;
        EXPECT_EQ(befehl.umlenkungen[0].art, fall.art) << fall.zeile;
        EXPECT_EQ(befehl.umlenkungen[0].ziel, fall.ziel) << fall.zeile;
        EXPECT_EQ(rest, "");
    }
}

TEST(Zeile, trennen_und_schuetzen)
{
    struct Fall {
        std::string_view zeile, text, rest;
        Verknuepfung danach;
    };
    const Fall faelle[] = {
        {"a&b", "a", "b", Verknuepfung::immer},
        {"a && b", "a ", " b", Verknuepfung::bei_erfolg},
        {"a||b", "a", "b", Verknuepfung::bei_fehler},
        {"a|b", "a", "b", Verknuepfung::rohr},
        {"\"a&b>c\" d", "\"a&b>c\" d", "", Verknuepfung::ende},
        {"a^&b^>c", "a&b>c", "", Verknuepfung::ende},
        {"a^^b", "a^b", "", Verknuepfung::ende},
        {"\"a^b\"", "\"a^b\"", "", Verknuepfung::ende},
        {"echo ! (1) ", "echo ! (1) ", "", Verknuepfung::ende},
    };
    for (const auto& fall : faelle) {
        std::string_view rest = fall.zeile;
        const auto befehl = befehl_nehmen(rest);
        EXPECT_EQ(befehl.text, fall.text) << fall.zeile;
        EXPECT_EQ(rest, fall.rest) << fall.zeile;
        EXPECT_EQ(befehl.danach, fall.danach) << fall.zeile;
        EXPECT_TRUE(befehl.umlenkungen.empty()) << fall.zeile;
    }
}

TEST(Zeile, befehlswort)
{
    const std::pair<std::string_view, std::string_view> faelle[] = {
        {"cd..", "cd"},     {"CD\\x", "cd"},     {"echo.", "echo"},  {"Copy a b", "copy"},
        {"del,a", "del"},   {"cd-x", "cd-x"},    {"wa2 x", "wa2"},   {"\"a b\" c", "\"a"},
        {"goto:x", "goto"}, {"type\ta", "type"}, {"echo>f", "echo"},
    };
    for (const auto& [zeile, wort] : faelle) EXPECT_EQ(befehlswort(zeile), wort) << zeile;
}

TEST(Zeile, woerter_und_schalter)
{
    EXPECT_THAT(parameter("  a , b;c=d\te ").namen, ElementsAre("a", "b", "c", "d", "e"));
    EXPECT_THAT(parameter("\"a b\"\\c \"x,y\"").namen, ElementsAre("a b\\c", "x,y"));
    for (const std::string_view text : {"a /s/q", "a /S /Q", "/q /s a", "/s/q a", "a/s/q"}) {
        const Parameter angaben = parameter(text);
        EXPECT_THAT(angaben.namen, ElementsAre("a")) << text;
        EXPECT_TRUE(angaben.hat("s") && angaben.hat("q")) << text;
    }
    EXPECT_THAT(argumente(" 0384,0585  +PRO \"a b\" x\"y z\" \"\""),
                ElementsAre("0384,0585", "+PRO", "a b", "xy z", ""));
}

TEST(Zeile, marken)
{
    EXPECT_EQ(marke(":ende"), "ende");
    EXPECT_EQ(marke("  :Ende Kommentar"), "ende");
    EXPECT_EQ(marke(":ende:2"), "ende");
    EXPECT_EQ(marke(":ende2"), "ende2");
    EXPECT_EQ(marke(":a+b"), "a");
    EXPECT_EQ(marke(":"), "");
    EXPECT_EQ(marke("goto :ende"), std::nullopt);
}

}  // namespace
}  // namespace jorv::dos
