#include "plattform/zahl.h"

#include <gtest/gtest.h>

#include <cmath>

namespace jorv {

TEST(Zahl, LesenNimmtDieZahlAmAnfangDesWortes)
{
    struct Fall {
        const char* text;
        double wert;
    };
    const Fall faelle[] = {{"12", 12},       {" 1 2.5 ", 12.5},
                           {"-3.5m", -3.5},  {"+7", 7},
                           {"1.5D+02", 150}, {"1e3x", 1000},
                           {"1E-2", 0.01},   {".5", 0.5},
                           {"5.", 5},        {"abc", 0},
                           {"", 0},          {"-", 0},
                           {"1.2.3", 1.2},   {"59.9999999", 59.9999999},
                           {"E5", 0},        {"0x10", 0},
                           {"1,5", 1},       {"1e-999", 0},
                           {"12 34", 1234}};
    for (const auto& fall : faelle) EXPECT_DOUBLE_EQ(zahl_lesen(fall.text), fall.wert) << fall.text;
    EXPECT_TRUE(std::isinf(zahl_lesen("1e999")));
    EXPECT_TRUE(std::isinf(zahl_lesen("-1e999")) && zahl_lesen("-1e999") < 0);
}

TEST(Zahl, GanzeZahlenRundenZurGeradenUndKennenIhrenBereich)
{
    EXPECT_EQ(ganz16(59.9999999), 60);
    EXPECT_EQ(ganz16(0.5), 0);
    EXPECT_EQ(ganz16(1.5), 2);
    EXPECT_EQ(ganz16(-2.5), -2);
    EXPECT_EQ(ganz16(32767.4), 32767);
    EXPECT_FALSE(ganz16(32767.5));
    EXPECT_FALSE(ganz16(-32769));
    EXPECT_EQ(ganz32(2147483647.0), 2147483647);
    EXPECT_FALSE(ganz32(2147483648.0));
    EXPECT_FALSE(ganz32(std::nan("")));
}

TEST(Zahl, BilderSchreibenDeutschUndRundenVonNullWeg)
{
    struct Fall {
        double wert;
        const char* muster;
        const char* text;
    };
    const Fall faelle[] = {{0.5, "#######.###", ",5"},
                           {5, "#######.###", "5,"},
                           {0, "#######.###", ","},
                           {1.5, "######0.000", "1,500"},
                           {-0.0004, "0.000", "0,000"},
                           {0.0005, "0.000", "0,001"},
                           {1.005, "0.00", "1,01"},
                           {2.675, "0.00", "2,68"},
                           {-1.5, "0", "-2"},
                           {999.9996, "##0.000", "1000,000"},
                           {7, "000", "007"},
                           {1234567.125, "#######.##", "1234567,13"},
                           {1e15, "0", "1000000000000000"},
                           {5721000.5, "#######.###", "5721000,5"}};
    for (const auto& fall : faelle)
        EXPECT_EQ(format_bild(fall.wert, fall.muster), fall.text) << fall.wert << fall.muster;
}

TEST(Zahl, FesteBreitenStehenRechtsbuendigMitPunkt)
{
    EXPECT_EQ(zahl_format(1.5, "######0.000"), "      1.500");
    EXPECT_EQ(zahl_format(-12345678.9, "######0.000"), "-12345678.900");
    EXPECT_EQ(zahl_format_fuell(930, "000000", "0"), "000930");
    EXPECT_EQ(zahl_format_fuell(-5, "###0", "x"), "xx-5");
    EXPECT_EQ(fest(-0.04, 1), "0.0");
    EXPECT_EQ(fest(1.005, 2), "1.01");
    EXPECT_EQ(fest(12, 0), "12");
}

TEST(Zahl, KurzerTextOhneNullenAmEnde)
{
    EXPECT_EQ(zahl_text(0.1), "0.1");
    EXPECT_EQ(zahl_text(-3), "-3");
    EXPECT_EQ(zahl_text(1234567.25), "1234567.25");
    EXPECT_EQ(zahl_text_blank(12), " 12");
    EXPECT_EQ(zahl_text_blank(-12), "-12");
}

TEST(Zahl, StrengesLesenDuldetKeinenRest)
{
    EXPECT_EQ(ganz_streng(" 12 "), 12);
    EXPECT_EQ(ganz_streng("+5"), 5);
    for (const char* text : {"", "1x", "1.5", "--1", "99999999999"}) EXPECT_FALSE(ganz_streng(text)) << text;
    EXPECT_FALSE(zahl_streng("nan"));
    EXPECT_FALSE(zahl_streng("1e400"));
}

}  // namespace jorv
