// The example network as a user has it: files, catalogue, borders and a first project.
#pragma once

#include <gtest/gtest.h>

#include "ganz/Programmlauf.h"
#include "simulator/beispiel.h"

namespace jorv::hilfen {

/// The example's files, and a project 001 of the mode with the catalogue made from its list.
struct Beispielplatz : Arbeitsplatz {
    explicit Beispielplatz(const std::string& modus = "E")
    {
        std::string meldung;
        EXPECT_TRUE(simulator::beispiel_schreiben(host("beispiel"), meldung)) << meldung;
        gut({"katalog", "machen", "beispiel/katalog.txt"});
        gut({"grenzen", "machen", "beispiel/grenzen.txt"});
        EXPECT_EQ(gut({"neu", "Waldweg", "--modus", modus, "--verzeichnis", "verfahren"}).aus, "001\n");
    }
    Programmlauf gut(const std::vector<std::string>& worte) const
    {
        auto lauf = jorv(worte);
        EXPECT_EQ(lauf.status, 0) << worte[0] << "\n" << lauf.aus << lauf.err;
        EXPECT_EQ(lauf.err.find("STOP"), std::string::npos) << worte[0];
        return lauf;
    }
    std::string projektdatei() const { return lesen(host("verfahren/001.INI")); }
};

}  // namespace jorv::hilfen
