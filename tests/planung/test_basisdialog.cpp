#include "planung/basisdialog.h"

#include <gtest/gtest.h>

#include <tuple>

#include "hilfen/Projekt.h"
#include "planung/Beobachtungen.h"
#include "planung/basislinien.h"

using namespace jorv;
using namespace jorv::hilfen;

TEST(Basisdialog, ZeichenUndKnopfFolgenDerWahl)
{
    Pruefstand p("4");
    EXPECT_EQ(basisdialog_oeffnen(p.g).zeichen, Basiszeichen::keines);
    for (const auto name : {"0002001a.14o", "0001001a.14o", "0001001b.14o"})
        rover(p.g, beobachtung(name, "10:00:00", "11:00:00"), 0, 0);
    rover(p.g, beobachtung("0003001a.14o", "11:00:00", "12:00:00"), 0, 0);  // touches the others only
    Basisdialog d = basisdialog_oeffnen(p.g);
    EXPECT_EQ(d.Punkte, (std::vector<std::string>{"0002", "0001", "0003"}));
    const struct {
        int von, nach;
        Basiszeichen zeichen;
        bool frei;
        int grenze, danach;  // records that there is room for; count after a press
    } faelle[] = {{0, 0, Basiszeichen::gleich, false, 9, 0},     {0, 2, Basiszeichen::unverbunden, true, 9, 0},
                  {0, 1, Basiszeichen::verbunden, false, 1, 1},  {1, 0, Basiszeichen::verbunden, false, 9, 1},
                  {1, 2, Basiszeichen::unverbunden, true, 9, 1}, {1, 1, Basiszeichen::gleich, true, 9, 5},
                  {3, 0, Basiszeichen::gleich, true, 5, 5}};
    for (const auto& f : faelle) {
        p.g.BASISLINIE.grenze_setzen(f.grenze);
        basisdialog_waehlen(p.g, d, f.von, f.nach);
        EXPECT_EQ(cmd_definieren(p.g, d), f.grenze < 9 ? Fehler::gesetzt : Fehler::keiner);
        EXPECT_EQ(std::tuple(d.zeichen, d.cmd_definieren_frei, p.g.BASISLINIE.anzahl()),
                  std::tuple(f.zeichen, f.frei, f.danach))
            << f.von << f.nach;
    }
    EXPECT_EQ(basislinie_name(p.g.BASISLINIE[1]), "0002001a.14o-0001001a.14o");
    EXPECT_TRUE(
        p.schirm.texte().at(0).starts_with("Dimensionierungsfehler! (87 in cmd_definieren_Click)\n"
                                           "                                ReDim Preserve BASISLINIE(2)\n"));
}
