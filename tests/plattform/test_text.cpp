#include "plattform/text.h"

#include <gtest/gtest.h>

namespace jorv {

TEST(Text, LiteralHatDieBytesVonWindows1252)
{
    EXPECT_EQ(u8"geöffnet ß § ° € „“"_w,
              "ge\xF6"
              "ffnet \xDF \xA7 \xB0 \x80 \x84\x93");
    EXPECT_EQ(u8""_w, "");
}

TEST(Text, JedesByteKommtUeberUtf8Zurueck)
{
    std::string alle;
    for (int i = 0; i < 256; ++i) alle += static_cast<char>(i);
    EXPECT_EQ(text_aus_utf8(utf8_aus_1252(alle)), alle);
}

TEST(Text, WasNichtHineinpasstWirdAbgelehntOderErsetzt)
{
    for (const char* utf8 : {"\xE4\xB8\xAD", "a\xC3", "\xFF", "\xC0\x80", "\xED\xA0\x80", "\xF0\x9F\x98\x80"})
        EXPECT_FALSE(text_aus_utf8(utf8)) << utf8;
    EXPECT_EQ(text_aus_utf8_mit_ersatz("a\xE4\xB8\xAD"
                                       "b"),
              "a?b");
}

TEST(Text, GrossUndKleinKennenUmlaute)
{
    EXPECT_EQ(gross(u8"äöüß-straße 1"_w), u8"ÄÖÜß-STRAßE 1"_w);
    EXPECT_EQ(klein(u8"ÄÖÜŠ×÷"_w), u8"äöüš×÷"_w);
    EXPECT_TRUE(gleich_ohne_gross(u8"Prüfung.UTM"_w, u8"PRÜFUNG.utm"_w));
    EXPECT_FALSE(gleich_ohne_gross("a", "ab"));
}

TEST(Text, StueckeZaehlenAbEinsUndNehmenWasDaIst)
{
    EXPECT_EQ(mitte("5501001a.14o", 5, 3), "001");
    EXPECT_EQ(mitte("550", 5, 3), "");
    EXPECT_EQ(mitte("abc", 0, 1), "");
    EXPECT_EQ(rechts("abc", 5), "abc");
    EXPECT_EQ(ohne_ende("ab", 4), "");
    EXPECT_EQ(ersetzt("aXbX", "X", "--"), "a--b--");
    EXPECT_EQ(verkettet("n=", 12, '/', -3L), "n=12/-3");
}

TEST(Text, ZeilenEndenMitUndOhneWagenruecklauf)
{
    Zeilenleser leser("a\r\n\nb\rc\nletzte");
    EXPECT_EQ(leser.naechste(), "a");
    EXPECT_EQ(leser.naechste(), "");
    EXPECT_EQ(leser.naechste(), "b\rc");
    EXPECT_EQ(leser.naechste(), "letzte");
    EXPECT_FALSE(leser.naechste());
}

}  // namespace jorv
