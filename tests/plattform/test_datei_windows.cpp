// What only Windows does to files: names that are held, names that differ in what they are written with.
#include <gtest/gtest.h>
#include <windows.h>

#include <thread>

#include "hilfen/Projekt.h"
#include "plattform/datei.h"
#include "plattform/sperre.h"

namespace jorv {

namespace fs = std::filesystem;
using hilfen::Arbeitsordner;

namespace {

// Holds a file as a program does that shares it with nobody.
class Halter {
public:
    explicit Halter(const fs::path& datei)
        : m_griff(CreateFileW(datei.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr))
    {
        EXPECT_NE(m_griff, INVALID_HANDLE_VALUE);
    }
    Halter(const Halter&) = delete;
    Halter& operator=(const Halter&) = delete;
    ~Halter() { CloseHandle(m_griff); }

private:
    HANDLE m_griff;
};

long eintraege(const Arbeitsordner& ordner)
{
    return static_cast<long>(std::distance(fs::directory_iterator(ordner.host()), {}));
}

}  // namespace

TEST(DateiWindows, EinGehaltenesZielBehaeltSeinenTextUndHaeltNurFuerDieDauerAuf)
{
    const Arbeitsordner ordner;
    const fs::path ziel = ordner.host() / "001.INI";
    const Dateisystem dateien;
    const std::string pfad = ordner.dos() + "\\001.INI";
    hilfen::schreiben(ziel, "alt");
    {
        const Halter halter(ziel);
        EXPECT_EQ(dateien.schreiben(pfad, "neu"), std::errc::permission_denied);
        EXPECT_TRUE(dateien.loeschen(pfad));
    }
    EXPECT_EQ(hilfen::lesen(ziel), "alt");
    EXPECT_EQ(eintraege(ordner), 1);
    auto kurz = std::make_unique<Halter>(ziel);
    std::thread loslassen([&] {
        Sleep(80);
        kurz.reset();
    });
    EXPECT_FALSE(dateien.schreiben(pfad, "neu"));
    loslassen.join();
    EXPECT_EQ(hilfen::lesen(ziel), "neu");
    EXPECT_EQ(eintraege(ordner), 1);
}

// Reading holds nobody up, and a reader sees the text that was there when it began.
TEST(DateiWindows, EineAbgebildeteDateiLaesstSichErsetzenOderBleibtGanz)
{
    const Arbeitsordner ordner;
    const Dateisystem dateien;
    const std::string pfad = ordner.dos() + "\\a.16o";
    hilfen::schreiben(ordner.host() / "a.16o", "alt");
    std::error_code fehler;
    const Abbild bild = dateien.abbilden(pfad, fehler);
    const bool ersetzt = !dateien.schreiben(pfad, "neu");
    EXPECT_EQ(bild.text(), "alt");
    EXPECT_EQ(dateien.lesen(pfad), ersetzt ? "neu" : "alt");
    EXPECT_EQ(eintraege(ordner), 1);
}

TEST(DateiWindows, NamenInJederSchreibweiseSindDieselbeDatei)
{
    const Arbeitsordner ordner("Büro ß");
    const Dateisystem dateien;
    const std::string pfad = ordner.dos() + "\\" + hilfen::t1252("Größe.Txt");
    EXPECT_FALSE(dateien.schreiben(pfad, "x"));
    EXPECT_EQ(dateien.lesen(ersetzt(gross(pfad), '\\', '/')), "x");
    const auto eintrag = Laufwerke::eintrag(ordner.host(), hilfen::t1252("GRÖßE.TXT"));
    ASSERT_TRUE(eintrag);
    EXPECT_EQ(eintrag->filename(), hilfen::p8("Größe.Txt"));
}

TEST(DateiWindows, DieSperreEinesAnderenProgrammsGiltUndEndetMitIhm)
{
    const Arbeitsordner ordner;
    const Dateisystem dateien;
    const std::string pfad = ordner.dos() + "\\001.INI";
    const fs::path sperrdatei = ordner.host() / "001.INI.sperre";
    hilfen::schreiben(sperrdatei, "");  // of a program that couldn't clear it away
    EXPECT_FALSE(Sperre(dateien, pfad, 0).besetzt());
    hilfen::schreiben(sperrdatei, "");
    const Halter halter(sperrdatei);
    const Sperre sperre(dateien, pfad, 30);
    EXPECT_FALSE(sperre.gehalten());
    EXPECT_TRUE(sperre.besetzt());
}

}  // namespace jorv
