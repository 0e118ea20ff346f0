#include "konsole/Aufruf.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "hilfen/Projekt.h"

namespace jorv {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view neu_optionen[] = {"--modus=", "--verzeichnis=", "--schutz"};
constexpr Befehl muster[] = {
    {"neu", "NAME", "", "", 1, 1, neu_optionen, Grundlage::nichts, nullptr},
    {"katalog zeigen", "", "", "", 0, 0, {}, Grundlage::nichts, nullptr},
    {"rinex", "NR DATEI...", "", "", 2, beliebig_viele, {}, Grundlage::nichts, nullptr},
};
constexpr const Befehl* zeiger[] = {&muster[0], &muster[1], &muster[2]};

Aufrufergebnis lesen(const std::vector<std::string>& worte)
{
    return aufruf_lesen(worte, zeiger);
}

TEST(Aufruf, GuteAufrufe)
{
    struct Fall {
        std::vector<std::string> worte;
        std::string_view befehl;
        std::vector<std::string> rest;
        std::map<std::string, std::string> optionen;
    };
    const Fall faelle[] = {
        {{"neu", "Nord", "--modus", "E", "--verzeichnis", "v"},
         "neu",
         {"Nord"},
         {{"--modus", "E"}, {"--verzeichnis", "v"}}},
        {{"neu", "--modus", "E", "Nord"}, "neu", {"Nord"}, {{"--modus", "E"}}},
        {{"--json", "neu", "--verzeichnis", "v", "--schutz", "--modus=S", "Nord"},
         "neu",
         {"Nord"},
         {{"--modus", "S"}, {"--schutz", ""}, {"--verzeichnis", "v"}}},
        {{"neu", "--", "--modus"}, "neu", {"--modus"}, {}},
        {{"katalog", "zeigen"}, "katalog zeigen", {}, {}},
        {{"rinex", "1", "a", "b", "c", "--ja"}, "rinex", {"1", "a", "b", "c"}, {}},
        {{"--einstellungen", "e.ini", "neu", "Nord"}, "neu", {"Nord"}, {}},
    };
    for (const auto& fall : faelle) {
        const auto [aufruf, fehler] = lesen(fall.worte);
        ASSERT_EQ(fehler, "") << fall.befehl;
        EXPECT_EQ(aufruf.befehl->name, fall.befehl);
        EXPECT_EQ(aufruf.worte, fall.rest);
        EXPECT_EQ((std::map<std::string, std::string>(aufruf.option.begin(), aufruf.option.end())), fall.optionen);
    }
}

TEST(Aufruf, ProgrammoptionenStehenUeberall)
{
    EXPECT_EQ(lesen({"neu", "Nord", "--einstellungen", "e.ini"}).aufruf.einstellungen, "e.ini");
    EXPECT_EQ(lesen({"--einstellungen=e.ini", "neu", "Nord"}).aufruf.einstellungen, "e.ini");
    EXPECT_EQ(lesen({"--nein", "neu", "Nord"}).aufruf.antwort, Antwort::nein);
    EXPECT_EQ(lesen({"neu", "--ja", "Nord"}).aufruf.antwort, Antwort::ja);
    EXPECT_FALSE(lesen({"neu", "Nord"}).aufruf.antwort);
    EXPECT_TRUE(lesen({"neu", "Nord", "--json"}).aufruf.json);
}

TEST(Aufruf, FalscheAufrufeSagenWarum)
{
    const std::pair<std::vector<std::string>, std::string_view> faelle[] = {
        {{}, "Es fehlt der Befehl."},
        {{"--json"}, "Es fehlt der Befehl."},
        {{"alt"}, "Den Befehl alt gibt es nicht."},
        {{"katalog", "drucken"}, "Den Befehl katalog ... gibt es nicht."},
        {{"neu"}, "Der Befehl braucht mehr Angaben."},
        {{"neu", "Nord", "Süd"}, "Der Befehl hat zu viele Angaben."},
        {{"neu", "Nord", "--modus"}, "Der Option --modus fehlt ihr Wert."},
        {{"neu", "Nord", "--farbe"}, "Die Option --farbe gibt es hier nicht."},
        {{"rinex", "1", "a", "--schutz"}, "Die Option --schutz gibt es hier nicht."},
        {{"neu", "Nord", "--schutz=1"}, "Die Option --schutz hat keinen Wert."},
        {{"neu", "Nord", "--json=1"}, "Die Option --json hat keinen Wert."},
    };
    for (const auto& [worte, text] : faelle) EXPECT_EQ(lesen(worte).fehler, text);
}

TEST(Aufruf, PfadeInBeidenFormen)
{
    const hilfen::Arbeitsordner ordner("mit Blank ä");
    const fs::path vorher = fs::current_path();
    hilfen::schreiben(ordner.host() / "Unter" / "a.16o", "x");
    fs::current_path(ordner.host());
    const Laufwerke laufwerke;
    const std::string datei = ordner.dos() + "\\Unter\\a.16o";
    const std::string datei_utf8 = utf8_aus_1252(datei);
    for (const std::string& wort :
         {std::string("Unter/a.16o"), std::string("Unter\\a.16o"), std::string("./Unter/../Unter/a.16o"),
          (ordner.host() / "Unter/a.16o").string(), datei_utf8})
        EXPECT_EQ(pfad_aus_wort(laufwerke, wort), datei) << wort;
    EXPECT_EQ(pfad_aus_wort(laufwerke, "Unter/"), ordner.dos() + "\\Unter");
    EXPECT_EQ(pfad_aus_wort(laufwerke, "neu"), ordner.dos() + "\\neu");
    EXPECT_EQ(pfad_aus_wort(laufwerke, "Q:\\daten"), std::nullopt);
    EXPECT_EQ(pfad_aus_wort(laufwerke, "/tmp/\u4e2d"), std::nullopt);
    EXPECT_EQ(pfad_aus_wort(laufwerke, ""), std::nullopt);
    fs::current_path(vorher);
}

TEST(Aufruf, NummernHabenDreiStellen)
{
    const std::pair<std::string_view, std::optional<std::string>> faelle[] = {
        {"7", "007"}, {"007", "007"}, {"999", "999"}, {"0", {}}, {"1000", {}}, {"-1", {}}, {"7a", {}}, {"", {}}};
    for (const auto& [wort, nummer] : faelle) EXPECT_EQ(nummer_aus_wort(wort), nummer) << wort;
}

}  // namespace
}  // namespace jorv
