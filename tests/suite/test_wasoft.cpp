#include "suite/wasoft.h"

#include <gtest/gtest.h>

#include "suite/Pruefdaten.h"
#include "suite/ergebnistext.h"
#include "suite/waprt.h"

namespace jorv::suite {

namespace {

const std::string ROVER = "07590920.05o", BASIS = "30400920.05o";

struct Batchordner : Pruefordner {
    Lauf wasoft(const Worte& worte) const
    {
        Protokoll p;
        const int status = suite::wasoft(worte, ordner, {programm_finden("rnx2rtkp")}, uhr, p);
        return {status, p.text(), p.ausgabe()};
    }
    // The line of a list, without its end.
    std::string zeile(const Worte& worte) const
    {
        const Ausdruck a = waprt(worte, ordner);
        EXPECT_EQ(a.status, 0) << a.fehler;
        return a.zeilen.substr(0, a.zeilen.size() - 2);
    }
};

}  // namespace

TEST(Wasoft, ein_rover_und_eine_basislinie_wie_in_der_batch)
{
    NUR_MIT_DATEN("geonet2005");
    NUR_MIT_LOESER();
    const Batchordner p;
    p.geonet();
    p.schreiben("wav2.err", "alt");
    const Lauf vrs = p.wasoft({"0920", "3040", "+Vvirt," + ROVER, "+A001.ATX", "+C001.COO", "+b000000", "+e5959"});
    ASSERT_EQ(vrs.status, 0) << vrs.ausgabe;
    EXPECT_TRUE(vrs.meldet("WARNUNG: Die Koordinatendatei 001.COO fehlt"));
    EXPECT_EQ(p.text("virt0920.vrt"), vrs.protokoll);
    EXPECT_FALSE(p.da("wav2.err") || p.da("wav2log.txt"));
    // One station makes no plane, and no model of an earlier call stays.
    p.schreiben("model.wam", "alt");
    const Lauf ohne_ebene = p.wasoft({"0920", "3040", "+Vvirt," + ROVER, "+A001.ATX", "+k"});
    EXPECT_EQ(ohne_ebene.status, 0);
    EXPECT_TRUE(ohne_ebene.meldet("WARNUNG: Die Modelldatei model.wam braucht drei Stationen"));
    EXPECT_FALSE(p.da("model.wam"));
    fs::rename(p.pfad("virt0920.05o"), p.pfad("virt0920.rxo"));
    // Its navigation file is that of the first step, whose type names the year.
    for (const char* name : {"30400920.05n", "07590920.05n"}) fs::remove(p.pfad(name));
    const Lauf rover = p.wasoft({"virt0920.rxo", ROVER, "+A001.ATX"});
    ASSERT_EQ(rover.status, 0) << rover.ausgabe;
    EXPECT_NE(rover.protokoll.find("Scan of RINEX file       virt0920.rxo\r\n  actual epochs         120\r\nScan"),
              std::string::npos);
    EXPECT_FALSE(p.da("wav2.err") || p.da("wa2ext.txt") || p.da("wa2log.txt"));
    ASSERT_EQ(p.wa2({"virt0920.rxo", ROVER, "+ACF001.ATX", "+U54",
                     "+E-NS2,CU2,DOY,SES,TDM,BSU,STY,AMB,NS2,DOY,SES,SDV,AMB,SVA,PDM,ROB,STY,TDM,AH2,AT2,TSH"})
                  .status,
              0);
    const std::string zeile = p.text("wa2ext.txt");
    EXPECT_EQ(p.zeile({"07590920.prt", "-SUd", "+U54", "+F"}), zeile.substr(0, 101));
    EXPECT_EQ(p.zeile({"07590920.prt", "-Sd0avpreoHAB", "+F"}), zeile.substr(102, 100));

    ASSERT_EQ(p.wasoft({BASIS, ROVER, "+A001.ATX", "-0", "+R30", "-e5"}).status, 0);
    ASSERT_EQ(p.wa2({BASIS, ROVER, "+ACF001.ATX", "+TL0", "+R30", "-e5",
                     "+E-NS1,NS2,BCX,BLE,BSX,BXX,NS1,NS2,BCX,BSX,BXX,DOY,SES,NS1,NS2,SDV,BXX,AMB,DOY,SES,SVA,STY,TDM,"
                     "PDA"})
                  .status,
              0);
    const std::string basislinie = p.text("wa2ext.txt");
    EXPECT_EQ(p.zeile({"07590920.prt", "-VSbscd"}), basislinie.substr(104, 96));
    const std::string mit_kopf = p.zeile({"07590920.prt", "+VS0sadveop"});
    EXPECT_TRUE(mit_kopf.starts_with("RefS "));
    EXPECT_EQ(mit_kopf.find("\r\n"), 87u);
    EXPECT_EQ(mit_kopf.substr(89), basislinie.substr(201, 87));
}

TEST(Wasoft, fehler_stehen_in_wav2_err_und_nie_zwischen_den_zeilen)
{
    NUR_MIT_DATEN("geonet2005");
    const Batchordner p;
    p.geonet();
    struct Fall {
        Worte worte;
        bool mit_datei;
        const char* meldung;
    };
    for (const Fall& f :
         {Fall{{"0920", "3040", "+Vvirt," + ROVER, "+kk"}, true, "ERROR: wasoft: fehlerhafte Angabe +kk"},
          Fall{{"0920", "3040", "+Vvirt"}, true, "ERROR: wasoft: fehlerhafte Angabe +Vvirt"},
          Fall{{"0920", "1111", "+Vvirt," + ROVER}, true, "ERROR: Keine Referenzstation"},
          Fall{{"virt0920.rxo", ROVER, "+A001.ATX"}, true, "virt0920.rxo konnte nicht ge"},
          Fall{{BASIS, "99990920.05o", "+A001.ATX"}, false, "99990920.05o konnte nicht ge"},
          Fall{{BASIS, ROVER, "+X"}, false, "unbekannte Angabe +X"}}) {
        fs::remove(p.pfad("wav2.err"));
        const Lauf lauf = p.wasoft(f.worte);
        EXPECT_EQ(lauf.status, 1) << f.meldung;
        EXPECT_TRUE(lauf.meldet(f.meldung)) << lauf.ausgabe;
        EXPECT_EQ(p.da("wav2.err"), f.mit_datei) << f.meldung;
        EXPECT_TRUE(!f.mit_datei || p.text("wav2.err") == lauf.ausgabe) << f.meldung;
    }
    p.schreiben("halb.prt", "WERT basis=30400920.05o\r\nWERT bx=1\r\n");
    for (const Worte& worte : {Worte{"fehlt.prt", "-SUd"}, Worte{"halb.prt", "-SUd"}, Worte{"halb.prt", "-SX"},
                               Worte{"halb.prt", "-SUd", "+U61"}, Worte{"halb.prt"}}) {
        const Ausdruck a = waprt(worte, p.ordner);
        EXPECT_EQ(a.status, 1);
        EXPECT_EQ(a.zeilen, "");
        EXPECT_EQ(a.fehler.empty(), worte[0] == "fehlt.prt") << a.fehler;
    }
}

TEST(Wasoft, koordinatendatei_geht_dem_dateikopf_vor)
{
    NUR_MIT_DATEN("geonet2005");
    NUR_MIT_LOESER();
    const Batchordner p;
    p.geonet();
    ASSERT_EQ(p.wa2({BASIS, ROVER, "+ACF001.ATX"}).status, 0);
    const Xyz vorher = p.rover();
    p.schreiben("001.COO", "\r\n3040 -3978242.435 3382841.171 3649903.767 \"TRM29659.00     NONE\"\r\n");
    const Lauf lauf = p.wasoft({BASIS, ROVER, "+A001.ATX", "+C001.COO"});
    ASSERT_EQ(lauf.status, 0) << lauf.ausgabe;
    EXPECT_FALSE(lauf.meldet("001.COO"));
    const auto nachher = loesung_lesen(p.text("07590920.prt"));
    ASSERT_TRUE(nachher);
    EXPECT_NEAR(nachher->rover.z - vorher.z, 1.0, 0.002);
}

}  // namespace jorv::suite
