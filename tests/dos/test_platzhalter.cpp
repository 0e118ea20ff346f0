#include "dos/platzhalter.h"

#include <gtest/gtest.h>

#include "plattform/text.h"

namespace jorv::dos {
namespace {

TEST(Platzhalter, muster_und_namen)
{
    struct Fall {
        std::string_view muster;
        std::vector<std::string_view> ja, nein;
    };
    const Fall faelle[] = {
        {"*.*", {"a", "a.b", "a.b.c", ".x"}, {}},
        {"*", {"a", "a.b", ""}, {}},
        {"virt*.*", {"virt", "virt092", "VIRT092.05O", "virt.a.b"}, {"xvirt.05o", "vir.t"}},
        {"virt092.??o",
         {"virt092.05o", "Virt092.RXO"},
         {"virt092.5o", "virt092.o", "virt092", "virt0921.05o", "virt092.05obs"}},
        {"virt*.??n",
         {"virt092.05n", "virt5501092a.05n", "virt.a.05n"},
         {"virt092.5n", "virt092.05n.bak", "virt092.0.n"}},
        {"*.LIS", {"001.lis", "5501092a.05o.LIS", ".lis"}, {"LIS", "a.LIS.bak", "a.LISTE"}},
        {"a??", {"a", "ab", "abc"}, {"abcd", "b", "a.b"}},
        {"a??.x", {"a.x", "ab.x", "abc.x"}, {"abcd.x", "a.y"}},
        {"?.?", {"a.b", "a", "a."}, {"ab", "a.bc"}},
        {"a.b", {"a.b", "A.B"}, {"a", "a.b.c", "axb"}},
        {u8"ü*.prt"_w, {u8"Übung.PRT"_w, u8"ü.prt"_w}, {"u.prt"}},
        {"*a*a*a*a*a*a*b", {"aaaaaaaaaaaab"}, {"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa"}},
    };
    for (const auto& fall : faelle) {
        for (const auto name : fall.ja) EXPECT_TRUE(passt(fall.muster, name)) << fall.muster << " " << name;
        for (const auto name : fall.nein) EXPECT_FALSE(passt(fall.muster, name)) << fall.muster << " " << name;
    }
}

}  // namespace
}  // namespace jorv::dos
