#include "suite/entscheidung.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "plattform/zahl.h"

namespace jorv::suite {

namespace {

// A run of epochs at 30 s with six satellites whose residuals are scaled to about the wanted s0.
struct Reihe {
    std::size_t epochen = 120, fest_ab = 20, offen_am_ende = 0;
    double verhaeltnis = 10.0, s0 = 0.4;
    int satelliten = 6;
};

Loeserausgabe lauf(const Reihe& r)
{
    Loeserausgabe a;
    for (std::size_t i = 0; i < r.epochen; ++i) {
        Position p;
        p.zeit = {static_cast<std::int64_t>(30 * i), 0.0};
        p.guete = i >= r.fest_ab && i + r.offen_am_ende < r.epochen ? Guete::fest : Guete::offen;
        p.verhaeltnis = r.verhaeltnis;
        a.positionen.push_back(p);
        for (int s = 0; s < r.satelliten; ++s) {
            const double e = (25.0 + 10.0 * s) * GRAD;
            const double sigma = SIGMA_PHASE * std::sqrt(2.0 * (1.0 + 1.0 / (std::sin(e) * std::sin(e))));
            const double vorzeichen = (static_cast<std::size_t>(s) + i) % 2 == 0 ? 1.0 : -1.0;
            a.reste.push_back({p.zeit, std::string(1, static_cast<char>('A' + s)), 1, 60.0 * s * GRAD, e, 0.0,
                               vorzeichen * r.s0 * sigma, true, p.guete == Guete::fest});
        }
    }
    return a;
}

}  // namespace

TEST(Entscheidung, urteilt_nach_der_reihe_und_der_wahren_laenge)
{
    struct Fall {
        const char* name;
        Reihe reihe;
        bool kurz, mittel, l0;  // accepted as L1 at 3 km, at 20 km, as L0
    };
    const std::vector<Fall> faelle = {
        {"gut", {}, true, true, true},
        {"Verhaeltnis 4", {120, 20, 0, 4.0, 0.4}, true, false, true},
        {"Verhaeltnis 2.9", {120, 20, 0, 2.9, 0.4}, false, false, false},
        {"Verhaeltnis genau 3", {120, 20, 0, 3.0, 0.4}, true, false, true},
        {"Verhaeltnis genau 5", {120, 20, 0, 5.0, 0.4}, true, true, true},
        {"s0 0.95", {120, 20, 0, 10, 0.867}, true, true, true},
        {"s0 1.05", {120, 20, 0, 10, 0.958}, true, false, true},
        {"s0 2.4", {120, 20, 0, 10, 2.19}, true, false, true},
        {"s0 2.6", {120, 20, 0, 10, 2.37}, true, false, false},
        {"s0 3.1", {120, 20, 0, 10, 2.83}, false, false, false},
        {"s0 1.5", {120, 20, 0, 10, 1.37}, true, false, true},
        {"s0 2.8", {120, 20, 0, 10, 2.55}, true, false, false},
        {"s0 4", {120, 20, 0, 10, 4.0}, false, false, false},
        {"erst spaet fest", {120, 100, 0, 10, 0.4}, true, false, true},
        {"Anteil 0.50", {120, 90, 0, 10, 0.4}, true, true, true},
        {"Anteil 0.48", {120, 91, 0, 10, 0.4}, true, false, true},
        {"Anteil 0.25", {120, 105, 0, 10, 0.4}, true, false, true},
        {"Anteil 0.23", {120, 106, 0, 10, 0.4}, false, false, true},
        {"Anteil 0.10", {120, 114, 0, 10, 0.4}, false, false, true},
        {"Anteil 0.08", {120, 115, 0, 10, 0.4}, false, false, false},
        {"fuenf Epochen", {5, 0, 0, 10, 0.4}, true, true, true},
        {"am Ende offen, im letzten Zehntel fest", {120, 20, 5, 10, 0.4}, true, true, true},
        {"letztes Zehntel offen", {120, 20, 13, 10, 0.4}, false, false, false},
        {"vier Epochen", {4, 0, 0, 10, 0.4}, false, false, false},
        {"nie fest", {120, 120, 0, 10, 0.4}, false, false, false},
        {"fuenf Satelliten", {120, 20, 0, 10, 0.4, 5}, true, true, true},
        {"vier Satelliten", {120, 20, 0, 10, 0.4, 4}, false, false, false},
    };
    for (const Fall& f : faelle) {
        const Loeserausgabe a = lauf(f.reihe);
        const std::string s0 = fest(urteilen(a, ANNAHME_L0).masse.s0, 3);
        for (const double laenge : {1.0, 3000.0, 15000.0})
            EXPECT_EQ(urteilen(a, annahme_l1(laenge)).angenommen, f.kurz) << f.name << ", s0 " << s0;
        for (const double laenge : {15001.0, 30000.0, 50000.0})  // beyond 30 km only when L1 is asked for
            EXPECT_EQ(urteilen(a, annahme_l1(laenge)).angenommen, f.mittel) << f.name << ", s0 " << s0;
        EXPECT_EQ(urteilen(a, ANNAHME_L0).angenommen, f.l0) << f.name;
    }
    EXPECT_NEAR(urteilen(lauf({}), annahme_l1(3000)).masse.s0, 0.44, 0.05);
    EXPECT_FALSE(urteilen({}, ANNAHME_L0).angenommen);
}

TEST(Entscheidung, eine_frequenz_allein_braucht_mehr)
{
    EXPECT_TRUE(urteilen(lauf({120, 71, 0, 3.0, 0.867}), annahme_nur_l1(3000)).angenommen);
    EXPECT_FALSE(urteilen(lauf({120, 73, 0, 10, 0.4}), annahme_nur_l1(3000)).angenommen);
    EXPECT_FALSE(urteilen(lauf({120, 20, 0, 10, 0.958}), annahme_nur_l1(3000)).angenommen);
    EXPECT_FALSE(urteilen(lauf({120, 20, 0, 4.9, 0.4}), annahme_nur_l1(20000)).angenommen);
    EXPECT_EQ(plan(Loesungsart::l1, 3000, false)[0].annahme.anteil, annahme_nur_l1(3000).anteil);
    EXPECT_EQ(plan(Loesungsart::l1, 3000, true)[0].annahme.anteil, annahme_l1(3000).anteil);
}

TEST(Entscheidung, beide_frequenzen_ohne_l1_muessen_gut_passen)
{
    const auto allein = [](double laenge, bool netz) {
        const auto versuche = plan(Loesungsart::automatisch, laenge, true, netz);
        const auto fund = std::find_if(versuche.begin(), versuche.end(),
                                       [](const Versuch& v) { return v.art == Laufart::l1_l2 && !v.zeuge; });
        return fund == versuche.end() ? Annahme{} : fund->annahme;
    };
    const Loeserausgabe mit_1_15 = lauf({120, 20, 0, 10, 1.05}), mit_1_3 = lauf({120, 20, 0, 10, 1.19});
    EXPECT_TRUE(urteilen(mit_1_15, allein(3000, false)).angenommen);
    EXPECT_FALSE(urteilen(mit_1_3, allein(3000, false)).angenommen);
    EXPECT_TRUE(urteilen(mit_1_3, allein(3000, true)).angenommen);
    EXPECT_FALSE(urteilen(lauf({120, 20, 0, 10, 1.92}), allein(3000, true)).angenommen);
    EXPECT_FALSE(urteilen(mit_1_15, allein(20000, true)).angenommen);
}

TEST(Entscheidung, zeuge_kommt_zum_selben_ort)
{
    std::string grund;
    const Position hier{{}, {4e6, 5e5, 4.9e6}, Guete::fest, {}, {}, 5.0};
    Position dort = hier;
    dort.ort.z += 0.029;
    EXPECT_TRUE(einig(hier, dort, grund));
    EXPECT_EQ(grund, "");
    dort.ort.x -= 0.010;
    EXPECT_FALSE(einig(hier, dort, grund));
    EXPECT_NE(grund.find("31 mm"), std::string::npos) << grund;
}

TEST(Entscheidung, residuen_loser_satelliten_zaehlen_nicht_im_festen_lauf)
{
    Loeserausgabe a = lauf({});
    for (Restzeile& r : a.reste)
        if (r.satellit == "A") r.fest = false, r.rest = 1.0;
    const Guetemasse g = guetemasse(a, Massstab::fest);
    EXPECT_LT(g.s0, 0.6);
    EXPECT_LT(g.umgewichtet, 1.0);
    EXPECT_NEAR(g.mehrdeutigkeiten, 100.0 * 5 / 6, 0.1);
    EXPECT_GT(guetemasse(a, Massstab::offen).s0, 10.0);
}

TEST(Entscheidung, plant_nach_art_laenge_und_frequenzen)
{
    const auto arten = [](const std::vector<Versuch>& versuche) {
        std::string text;
        for (const Versuch& v : versuche) {
            EXPECT_TRUE(!v.zeuge || *v.zeuge == Laufart::l1_l2);
            text.append(laufname(v.art)).append(v.zeuge ? "! " : " ");
        }
        return text;
    };
    EXPECT_EQ(arten(plan(Loesungsart::automatisch, 3000, true)), "L1! L1+L2 L0 ");
    EXPECT_EQ(arten(plan(Loesungsart::automatisch, 30000, true)), "L1! L1+L2 L0 ");
    EXPECT_EQ(arten(plan(Loesungsart::automatisch, 30001, true)), "L0 ");
    EXPECT_EQ(arten(plan(Loesungsart::automatisch, 3000, false)), "L1 ");
    EXPECT_EQ(arten(plan(Loesungsart::automatisch, 3000, true, true)), "L1! L0 L1! L1+L2 ");
    EXPECT_EQ(arten(plan(Loesungsart::automatisch, 3000, false, true)), "L1 ");
    EXPECT_EQ(arten(plan(Loesungsart::l1, 50000, true)), "L1! L1+L2 ");
    EXPECT_EQ(arten(plan(Loesungsart::l0, 3000, true)), "L0 ");
    EXPECT_EQ(plan_offen(3000, true).front(), Laufart::offen);
    EXPECT_EQ(plan_offen(15000, true).front(), Laufart::offen);
    EXPECT_EQ(plan_offen(15001, true).front(), Laufart::offen_l0);
    EXPECT_EQ(plan_offen(20000, false).front(), Laufart::offen_l1);
}

// The combination free of the ionosphere has no integers: with an ambiguity search the solver reports fixed and errs by
// metres.
TEST(Entscheidung, nie_ganze_zahlen_der_ionosphaerenfreien_kombination)
{
    for (const Laufart art : {Laufart::l1, Laufart::l1_l2, Laufart::l0, Laufart::offen, Laufart::offen_l0,
                              Laufart::offen_l1, Laufart::code})
        EXPECT_EQ(optionsdatei({}, art).find("dual-freq"), std::string::npos);
}

TEST(Entscheidung, pdop_der_geometrie)
{
    // One satellite in the zenith and three at the horizon, 120 degrees apart: variances 2/3 level, 4/3 upwards.
    const std::vector<std::array<double, 2>> ideal = {{0, 90 * GRAD}, {0, 0}, {120 * GRAD, 0}, {240 * GRAD, 0}};
    EXPECT_NEAR(pdop(ideal), std::sqrt(2.0 / 3.0 * 2.0 + 4.0 / 3.0), 1e-9);
    EXPECT_EQ(pdop({{0, 1}, {1, 1}, {2, 1}}), 0.0);
    EXPECT_EQ(pdop({{0, 1}, {1, 1}, {2, 1}, {3, 1}}), 0.0);  // a cone: up and clock can't be told apart
}

}  // namespace jorv::suite
