#include "suite/aufruf.h"

#include <gtest/gtest.h>

namespace jorv::suite {

TEST(Aufruf, liest_die_zeilen_der_batch)
{
    std::string grund;
    const auto wav2 =
        wav2_aufruf({"55010920.05o", "3040,0759", "+PRO", "+E", "+A001.ATX", "-e15", "+b083000", "+e093000"}, grund);
    ASSERT_TRUE(wav2) << grund;
    EXPECT_EQ(wav2->stationen, (Worte{"3040", "0759"}));
    EXPECT_EQ(wav2->antennendatei, "001.ATX");
    EXPECT_EQ(wav2->elevation, 15);
    EXPECT_EQ(wav2->beginn, 83000);
    EXPECT_EQ(wav2->ende, 93000);

    const auto wa2 =
        wa2_aufruf({"virt092.05o", "55010920.05o", "+ACF001.ATX", "+TL1", "-e10", "-M5", "-N0", "-SV05", "-SV", "5",
                    "-SVG07", "+L2", "+U32", "+E-NS2,CU2,", "+FEa.ext", "+FLb.LIS", "+FSc.prt"},
                   grund);
    ASSERT_TRUE(wa2) << grund;
    EXPECT_EQ(wa2->art, Loesungsart::l1);
    EXPECT_EQ(wa2->ohne_anfang, 5);
    EXPECT_EQ(wa2->ohne_satelliten, (Worte{"G05", "G07"}));
    EXPECT_EQ(wa2->felder, (Worte{"NS2", "CU2"}));
    EXPECT_EQ(wa2->ext_datei + wa2->protokoll_datei + wa2->loesung_datei, "a.extb.LISc.prt");
}

TEST(Aufruf, weist_falsche_zeilen_ab)
{
    std::string grund;
    for (const char* wort :
         {"+X", "+TL3", "-e90", "-e", "-M-1", "+U0", "+U61", "+R0", "+E-", "+E-NS2,XYZ", "-SVG0", "-SV", "+FE"})
        EXPECT_FALSE(wa2_aufruf({"a", "b", wort}, grund)) << wort;
    for (const char* wort : {"+b246000", "+e001260", "+A", "-M5"})
        EXPECT_FALSE(wav2_aufruf({"a", "b", wort}, grund)) << wort;
    EXPECT_FALSE(wav2_aufruf({"a", ","}, grund));
    EXPECT_FALSE(wa2_aufruf({"a"}, grund));
}

}  // namespace jorv::suite
