#include "suite/antenne.h"

#include <gtest/gtest.h>

#include "suite/spalten.h"

namespace jorv::suite {

namespace {

std::string block(std::string_view typ, std::string_view nummer, std::string_view kennung,
                  std::string_view gueltig = "")
{
    std::string text;
    const auto zeile = [&](std::string_view inhalt, std::string_view marke) {
        anhaengen_links(text, inhalt, 60);
        text.append(marke).append("\r\n");
    };
    std::string name;
    anhaengen_links(name, typ, 20);
    zeile("", "START OF ANTENNA");
    zeile(name + std::string(nummer), "TYPE / SERIAL NO");
    if (!gueltig.empty()) zeile(gueltig, "VALID UNTIL");
    zeile(kennung, "COMMENT");
    zeile("", "END OF ANTENNA");
    return text;
}

const std::string DATEI =
    block("BLOCK IIA", "G01", "satellit") + block("TYP1            NONE", "A17", "A17") +
    block("TYP1            NONE", "A18", "A18") + block("TYP1            NONE", "", "mittel") +
    block("TYP2            DOME", "", "haube") + block("TYP3            NONE", "B1", "stueck") +
    block("TYP4            NONE", "A17", "anderer typ") +
    block("TYP5            NONE", "", "abgelaufen", "  2000     1     1     0     0    0.0000000") +
    block("TYP5            NONE", "", "heute");

}  // namespace

TEST(Antenne, wird_nach_nummer_und_dann_nach_typ_gefunden)
{
    struct Fall {
        std::string nummer, typ, kennung;
        Antennenfund fund = Antennenfund::nummer;
        bool anderer_typ = false;
    };
    const GpsZeit zeit = gps_zeit({2005, 4, 2, 0, 0, 0}).value();
    const std::vector<Fall> faelle = {
        {"A17", "TYP1            NONE", "A17"},
        {"A18", "TYP1", "A18"},
        {"a18", "", "A18"},
        {"A17", "TYP4            NONE", "anderer typ"},
        {"A18", "TYP9            NONE", "A18", Antennenfund::nummer, true},
        {"A99", "TYP1            NONE", "mittel", Antennenfund::typ},
        {"", "TYP1", "mittel", Antennenfund::typ},
        {"", "TYP1            XYZ1", "mittel", Antennenfund::ohne_haube},
        {"", "TYP2            DOME", "haube", Antennenfund::typ},
        {"", "TYP2            NONE", ""},
        {"B2", "TYP3            NONE", "stueck", Antennenfund::anderes_stueck},
        {"", "TYP5", "heute", Antennenfund::typ},
        {"", "-", ""},
        {"", "", ""},
        {"Unknown", "TYP", ""},
    };
    for (const Fall& f : faelle) {
        const auto gefunden = antenne_suchen(DATEI, f.nummer, f.typ, zeit);
        EXPECT_EQ(gefunden.has_value(), !f.kennung.empty()) << f.nummer << f.typ;
        if (!gefunden) continue;
        EXPECT_NE(gefunden->text.find("\n" + f.kennung + " "), std::string::npos)
            << f.nummer << f.typ << gefunden->text;
        EXPECT_EQ(gefunden->fund, f.fund) << f.nummer << f.typ;
        EXPECT_EQ(gefunden->anderer_typ, f.anderer_typ) << f.nummer << f.typ;
    }
}

TEST(Antenne, kommt_unter_neuem_namen_ohne_nummer_zum_loeser)
{
    const auto eine = antenne_suchen(DATEI, "A17", "TYP1", gps_zeit(1316, 0));
    const std::string text = antex_fuer_loeser(eine, std::nullopt);
    EXPECT_NE(text.find("ROVERANTENNE" + std::string(48, ' ') + "TYPE / SERIAL NO\n"), std::string::npos) << text;
    EXPECT_EQ(text.find("BASISANTENNE"), std::string::npos);
    EXPECT_EQ(text.find('\r'), std::string::npos);
}

}  // namespace jorv::suite
