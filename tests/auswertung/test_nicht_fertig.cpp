#include "auswertung/nicht_fertig.h"

#include <gtest/gtest.h>

#include "hilfen/Projekt.h"
#include "modell/Baum.h"

namespace jorv {
namespace {

namespace fs = std::filesystem;

TEST(NichtFertig, WasSichLoeschenLaesstGehtUndDerRestWirdGemeldet)
{
    hilfen::Pruefstand p;
    OBS rover;
    rover.Dateiname = "5501167j.16o";
    ASSERT_TRUE(p.g.OBS_R.anfuegen(rover));
    const char* reste[] = {"lis_rov/5501167j.16o.LIS", "error_rov/5501167j.16o.ERR", "dat_rov/5501167j.16o.UTM"};
    for (const char* rest : reste) hilfen::schreiben(p.pfad(verkettet("jorv_out/", rest)), "x");
    baum_aufbauen(p.g);
    ASSERT_EQ(p.g.baum.finden("E_Datei")->Kinder.size(), 1u);
    mnu_tree_nichtfertig(p.g, "5501167j.16o");
    EXPECT_EQ(p.g.baum.finden("R_Datei")->Kinder.size(), 1u);
    EXPECT_TRUE(p.schirm.gezeigt.empty());
    for (const char* rest : reste) EXPECT_FALSE(fs::exists(p.pfad(verkettet("jorv_out/", rest)))) << rest;

    // A folder with a content stands where the file is looked for.
    for (const char* rest : reste) hilfen::schreiben(p.pfad(verkettet("jorv_out/", rest, "/belegt")), "x");
    mnu_tree_nichtfertig(p.g, "5501167j.16o");
    ASSERT_EQ(p.schirm.gezeigt.size(), 3u);
    EXPECT_EQ(p.schirm.gezeigt[2].text,
              verkettet("Die Ergebnisdateidatei:\n", p.g.Arbeitsverzeichnis, "\\jorv_out\\dat_rov\\5501167j.16o.UTM\n",
                        u8"konnte nicht gelöscht werden!"_w));
}

}  // namespace
}  // namespace jorv
