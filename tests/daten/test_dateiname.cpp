#include <gtest/gtest.h>

#include "daten/dateiname.h"
#include "hilfen/Projekt.h"

namespace jorv {

using namespace hilfen;

TEST(Dateiname, BeobachtungUndNavigation)
{
    struct Fall {
        const char* name;
        bool obs, nav;
    };
    for (const auto& f : std::vector<Fall>{{"12340010.16O", true, false},
                                           {"1234001a.rxo", true, false},
                                           {"1234001.16o", true, false},
                                           {"1234001.5.16o", true, false},
                                           {"12340010.16n", false, true},
                                           {"12340010.16G", false, true},
                                           {"1234001A.RXN", false, true},
                                           {"abcd001a.16o", true, false},
                                           {"123400a0.16o", false, false},
                                           {"12340010.1ao", false, false},
                                           {"12340010.o", false, false},
                                           {"123400.16o", false, false},
                                           {"123400100.16o", false, false},
                                           {"virt5501092a.05o", false, false},
                                           {"12340010", false, false},
                                           {"", false, false}}) {
        EXPECT_EQ(obs_datei_pruefen(f.name), f.obs) << f.name;
        EXPECT_EQ(nav_datei_pruefen(f.name), f.nav) << f.name;
    }
}

TEST(Dateiname, RoverNachModusUndNummernkreis)
{
    struct Fall {
        const char *modus, *name;
        bool rover;
    };
    for (const auto& f : std::vector<Fall>{{"1", "05900010.16o", false},
                                           {"2", "39990010.16o", false},
                                           {"1", "40000010.16o", true},
                                           {"1", "0a900010.16o", true},
                                           {"1", "059", true},
                                           {"1", "VIRT0010.16o", false},
                                           {"3", "05900010.16o", true},
                                           {"4", "05900010.16o", true},
                                           {"3", "virt0010.16o", false}}) {
        Pruefstand p(f.modus);
        EXPECT_EQ(rover_pruefen(p.g, f.name), f.rover) << f.modus << " " << f.name;
    }
    Pruefstand p("1");
    p.g.KOR_ANTENNEN[1].bis = "0100";
    ASSERT_TRUE(p.g.KOR_ANTENNEN.anfuegen({"0590", "0590"}));
    EXPECT_FALSE(rover_pruefen(p.g, "05900010.16o"));
    EXPECT_TRUE(rover_pruefen(p.g, "05910010.16o"));
}

}  // namespace jorv
