#include "plattform/profil.h"

#include <gtest/gtest.h>

namespace jorv {

TEST(Profil, LiestOhneRuecksichtAufGrossUndBlanks)
{
    const Profil p("vorher\r\n[Start]\r\n Editor = Notepad.exe \r\nA=1\r\na=2\r\nZwei=a=b\r\nLeer=\r\n");
    EXPECT_EQ(p.wert("START", "EDITOR"), "Notepad.exe");
    EXPECT_EQ(p.wert("start", "A"), "1");
    EXPECT_EQ(p.wert("Start", "Zwei"), "a=b");
    EXPECT_EQ(p.wert("Start", "fehlt"), "");
    EXPECT_TRUE(p.hat("Start", "Leer"));
}

TEST(Profil, SchreibenErsetztAmOrtUndLaesstFremdesStehen)
{
    Profil p("; Kopf\n[A]\nx=1\n; Notiz\nohne Gleichheit\n\n[B]\ny=2\n[A]\nx=9\n");
    p.setzen("a", "X", "neu");
    p.setzen("A", "z", "3");
    p.setzen("C", "k", "v");
    p.entfernen("B", "Y");
    EXPECT_EQ(p.text(),
              "; Kopf\r\n[A]\r\nx=neu\r\n; Notiz\r\nohne Gleichheit\r\nz=3\r\n\r\n[B]\r\n[A]\r\nx=9\r\n[C]\r\nk=v\r\n");
    EXPECT_FALSE(p.hat("B", "y"));
    p.setzen("B", "y", "5");
    EXPECT_EQ(Profil(p.text()).wert("B", "y"), "5");
}

TEST(Profil, WerteWerdenBei254ZeichenGeschnitten)
{
    const std::string lang(300, 'x');
    Profil p;
    p.setzen("S", "k", lang);
    EXPECT_EQ(p.wert("S", "k").size(), 254u);
    EXPECT_EQ(Profil(p.text()).wert_ganz("S", "k"), lang);
}

TEST(Profil, ZeilennummernWerdenInJederReihenfolgeUndNachDemEntfernenGefunden)
{
    Profil p("[A]\r\n2=zwei\r\n1=eins\r\n03=null drei\r\n3=drei\r\n2=spaet\r\n 4 = vier\r\n");
    EXPECT_EQ(p.wert("A", "2"), "zwei");
    EXPECT_EQ(p.wert("A", "3"), "drei");
    EXPECT_EQ(p.wert("A", "03"), "null drei");
    EXPECT_EQ(p.wert("A", "4"), "vier");
    EXPECT_FALSE(p.hat("A", "5"));
    EXPECT_FALSE(p.hat("A", "0"));
    for (const char* n : {"1", "2", "4"}) {
        p.entfernen("A", n);
        EXPECT_FALSE(p.hat("A", n));
        p.setzen("A", n, "neu");
        EXPECT_EQ(p.wert("A", n), "neu");
    }
    for (int n = 5; n < 30; ++n) p.setzen("A", std::to_string(n), std::to_string(n * n));
    for (int n = 5; n < 30; ++n) EXPECT_EQ(p.wert("A", std::to_string(n)), std::to_string(n * n));
    EXPECT_EQ(p.wert("A", "3"), "drei");
}

}  // namespace jorv
