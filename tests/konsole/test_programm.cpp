#include "konsole/programm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>

#include "hilfen/Projekt.h"
#include "konsole/Befehle.h"
#include "konsole/Konsolenlauf.h"
#include "plattform/text.h"

namespace jorv {
namespace {

using hilfen::konsole;
using ::testing::HasSubstr;

TEST(Programm, FalscherAufrufGibtStatusZweiUndSagtWieEsGeht)
{
    const auto ohne = konsole({});
    EXPECT_EQ(ohne.status, 2);
    EXPECT_THAT(ohne.err, HasSubstr("jorv hilfe BEFEHL"));
    const auto zuviel = konsole({"hilfe", "a", "b", "c"});
    EXPECT_EQ(zuviel.status, 2);
    EXPECT_THAT(zuviel.err, HasSubstr("Aufruf: jorv hilfe [BEFEHL]"));
    EXPECT_EQ(konsole({"hilfe", "unbekannt"}).status, 2);
    EXPECT_EQ(ohne.aus + zuviel.aus, "");
}

TEST(Hilfe, JederBefehlHatZweckUndBeispielMitSeinemNamenUndStehtInDerHandbuchseite)
{
    const auto uebersicht = konsole({"hilfe"});
    EXPECT_EQ(uebersicht.status, 0);
    const std::string seite = ersetzt(hilfen::lesen(std::filesystem::path(JORV_QUELLEN) / "docs/jorv.1"), "\\-", "-");
    for (const Befehl* befehl : alle_befehle()) {
        const std::string name(befehl->name);
        EXPECT_TRUE(std::regex_search(seite, std::regex("\n\\.B[A-Z]* [^\n]*" + name))) << name << " in docs/jorv.1";
        EXPECT_THAT(uebersicht.aus, HasSubstr("  " + name + " "));
        const auto luecke = name.find(' ');
        const auto hilfe = luecke == std::string::npos
                               ? konsole({"hilfe", name})
                               : konsole({"hilfe", name.substr(0, luecke), name.substr(luecke + 1)});
        EXPECT_EQ(hilfe.status, 0) << name;
        EXPECT_THAT(hilfe.aus, HasSubstr(befehl_zeile(*befehl) + "\n\n"));
        EXPECT_THAT(befehl->beispiel, HasSubstr("jorv " + name));
        EXPECT_GT(befehl->zweck.size(), 15u) << name;
    }
}

}  // namespace
}  // namespace jorv
