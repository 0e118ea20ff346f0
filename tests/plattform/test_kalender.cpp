#include "plattform/kalender.h"

#include <gtest/gtest.h>

namespace jorv {

TEST(Kalender, TageLaufenUeberSchaltjahre)
{
    EXPECT_EQ(tage_seit_1970(1970, 1, 1), 0);
    EXPECT_EQ(tage_seit_1970(2000, 3, 1) - tage_seit_1970(2000, 2, 28), 2);
    EXPECT_EQ(tage_seit_1970(2100, 3, 1) - tage_seit_1970(2100, 2, 28), 1);
    for (int tag = -800000; tag < 800000; tag += 977) {
        const Zeitpunkt z = datum_aus_tagen(tag);
        EXPECT_EQ(tage_seit_1970(z.jahr, z.monat, z.tag), tag);
    }
    EXPECT_EQ(tag_des_jahres(2016, 12, 1), 336);
}

TEST(Kalender, MinutenZaehlenKalenderminuten)
{
    EXPECT_EQ(minuten_zwischen({2016, 12, 1, 10, 0, 59}, {2016, 12, 1, 10, 1, 0}), 1);
    EXPECT_EQ(minuten_zwischen({2016, 12, 1, 10, 0, 0}, {2016, 12, 1, 10, 59, 59}), 59);
    EXPECT_EQ(minuten_zwischen({2016, 12, 31, 23, 59, 60}, {2017, 1, 1, 1, 0, 0}), 60);
}

TEST(Kalender, DatumHinUndZurueck)
{
    EXPECT_EQ(datum_text({2016, 12, 1, 12, 5, 9}), "01.12.2016 12:05:09");
    EXPECT_EQ(datum_text({2016, 12, 1, 0, 0, 0}), "01.12.2016");
    for (const char* text : {"1.2.2016", "01.02.2016 7:05", "29.02.2000 23:59:59"})
        EXPECT_TRUE(datum_lesen(text)) << text;
    for (const char* text :
         {"", "29.02.2001", "2016-01-01", "1.2", "1.2.2016 24:00", "1.2.2016 x", "a.b.c", "1.2.2016 1:2:3:4"})
        EXPECT_FALSE(datum_lesen(text)) << text;
    EXPECT_EQ(zeitpunkt_aus_sekunden(sekunden_seit_1970({1969, 12, 31, 23, 59, 58})),
              (Zeitpunkt{1969, 12, 31, 23, 59, 58}));
}

}  // namespace jorv
