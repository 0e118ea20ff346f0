// The indexed assignment against the steps as they are told: every step over all rovers, every search linear.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "geo/koordtrans.h"
#include "hilfen/Projekt.h"
#include "planung/Beobachtungen.h"
#include "planung/automatik.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

bool in_figur(const GEO_Punkt_Satz& f, const Punkt& r)
{
    Polygon ecken, vorbereitet;
    ecken.anzahl = f.Anzahl;
    for (std::size_t i = 0; i < static_cast<std::size_t>(f.Anzahl); ++i) {
        ecken.x[i] = f.Rechtswert[i];
        ecken.y[i] = f.Hochwert[i];
    }
    UMRPOL(ecken, vorbereitet);
    std::int32_t lage = 0, status = 0;
    UMRPIP(r.Rechtswert, r.Hochwert, vorbereitet, lage, status);
    return lage == 1 || lage == 2;
}

void stationen_woertlich(Global& g, int i)
{
    auto& z = g.ROVER_TOREL[i];
    int n = 0;
    for (int f = 1; f <= g.GEO_Punkt.anzahl(); ++f) {
        if (!in_figur(g.GEO_Punkt[f], g.R_Punkt[i])) continue;
        n = g.GEO_Punkt[f].Anzahl;
        for (std::size_t ecke = 0; ecke < static_cast<std::size_t>(n); ++ecke)
            for (int k = 1; k <= g.OBS_S.anzahl(); ++k) {
                const OBS& o = g.OBS_S[k];
                if (o.Punktkennzeichen != g.GEO_Punkt[f].Punkt[ecke] || o.Startzeit() > g.OBS_R[i].Startzeit() ||
                    o.Endzeit() < g.OBS_R[i].Endzeit())
                    continue;
                ++z.Anzahl;
                if (z.Anzahl <= 4) z.TOREL_Dateiname[static_cast<std::size_t>(z.Anzahl - 1)] = o.Dateiname;
            }
        break;
    }
    if (z.Anzahl == 0)
        z.Status = 3, z.Grund = 1;
    else if (z.Anzahl < n)
        z.Status = 2, z.Grund = 2;
    else if (z.Anzahl == n)
        z.Status = 1, z.Grund = 0;
}

void namen_woertlich(ROVER_TOREL_Satz& z)
{
    for (int k = 0; k < std::min(z.Anzahl, 4); ++k)
        if (mitte(z.TOREL_Dateiname[static_cast<std::size_t>(k)], 5, 3) != mitte(z.ROVER_Dateiname, 5, 3)) {
            z.Status = 3, z.Grund = 3;
            break;
        }
    for (int k = 1; k < std::min(z.Anzahl, 4); ++k)
        if (mitte(z.TOREL_Dateiname[static_cast<std::size_t>(k)], 5, 4) != mitte(z.TOREL_Dateiname[0], 5, 4)) {
            z.Status = 3, z.Grund = 4;
            break;
        }
}

void dauer_woertlich(Global& g, ROVER_TOREL_Satz& z)
{
    const OBS& r = g.OBS_R[Index_OBS_R(g, z.ROVER_Dateiname)];
    const auto gruen = [&] {
        if (z.Status < 2) z.Status = 1, z.Grund = 0;
    };
    if (minuten_zwischen(r.Startzeit(), r.Endzeit()) >= 60) return gruen();
    Zeitpunkt s = zeitpunkt_aus_sekunden(sekunden_seit_1970(r.Startzeit()) - 3600);
    Zeitpunkt t = zeitpunkt_aus_sekunden(sekunden_seit_1970(r.Endzeit()) + 3600);
    for (int k = 0; k < std::min(z.Anzahl, 4); ++k) {
        const OBS& o = g.OBS_S[Index_OBS_S(g, z.TOREL_Dateiname[static_cast<std::size_t>(k)])];
        if (o.Startzeit() > s) s = o.Startzeit();
        if (o.Endzeit() < t) t = o.Endzeit();
    }
    if (minuten_zwischen(s, t) < 60)
        z.Status = 3, z.Grund = 5;
    else if (s <= r.Startzeit() && t > r.Endzeit())
        gruen();
    else
        z.Status = 3, z.Grund = 6;
}

void automatik_woertlich(Global& g)
{
    const int anzahl = g.OBS_R.anzahl();
    (void)g.ROVER_TOREL.groesse_setzen(anzahl);
    for (int i = 1; i <= anzahl; ++i) {
        auto& z = g.ROVER_TOREL[i];
        z.ROVER_Dateiname = g.OBS_R[i].Dateiname;
        if (z.Schutz) continue;
        z.Anzahl = z.Status = z.Grund = 0;
        z.TOREL_Dateiname = {};
    }
    if (g.GEO_Punkt.anzahl() == 0) return;
    for (int i = 1; i <= anzahl; ++i)
        if (!g.ROVER_TOREL[i].Schutz) stationen_woertlich(g, i);
    for (auto& z : g.ROVER_TOREL) namen_woertlich(z);
    for (auto& z : g.ROVER_TOREL)
        if (!z.Schutz) dauer_woertlich(g, z);
}

void fremde_woertlich(Global& g)
{
    (void)g.ROVER_VIRT.groesse_setzen(g.OBS_R.anzahl());
    for (int i = 1; i <= g.OBS_R.anzahl(); ++i) {
        auto& z = g.ROVER_VIRT[i] = {};
        z.ROVER_Dateiname = g.OBS_R[i].Dateiname;
        double beste = 999999999.0;
        for (int j = 1; j <= g.V_Punkt.anzahl(); ++j) {
            const double dr = g.V_Punkt[j].Rechtswert - g.R_Punkt[i].Rechtswert;
            const double dh = g.V_Punkt[j].Hochwert - g.R_Punkt[i].Hochwert;
            const double d = std::sqrt(dr * dr + dh * dh);
            const Zeitpunkt b = g.OBS_V[j].Startzeit(), c = g.OBS_V[j].Endzeit();
            if (d >= beste || minuten_zwischen(b, c) < 60 || b > g.OBS_R[i].Startzeit() || c < g.OBS_R[i].Endzeit())
                continue;
            beste = z.Strecke = d;
            z.VIRT_Dateiname = g.OBS_V[j].Dateiname;
            z.VIRT_Index = j;
        }
    }
}

// Small ranges everywhere, so that borders, ties, equal names and gaps of a second are hit often.
class Zufallsprojekt {
public:
    explicit Zufallsprojekt(unsigned start) : m_zufall(start) {}

    void fuellen(Global& g)
    {
        for (int n = zahl(0, 8); n > 0; --n) rover(g, beobachtung_von("55"), zahl(0, 12) * 100, zahl(0, 12) * 100);
        for (int n = zahl(0, 25); n > 0; --n) station(g, beobachtung_von("05"));
        for (int n = zahl(0, 10); n > 0; --n) fremde(g, beobachtung_von("07"), zahl(0, 5) * 100, zahl(0, 5) * 100);
        for (int n = zahl(0, 4); n > 0; --n) {
            GEO_Punkt_Satz f;
            f.Anzahl = zahl(0, 9) == 0 ? 2 : zahl(3, 4);
            for (std::size_t i = 0; i < static_cast<std::size_t>(f.Anzahl); ++i) {
                f.Punkt[i] = verkettet("050", zahl(0, 4));
                f.Rechtswert[i] = zahl(0, 12) * 100;
                f.Hochwert[i] = zahl(0, 12) * 100;
            }
            (void)g.GEO_Punkt.anfuegen(f);
        }
        for (int n = zahl(0, 9); n > 0; --n) {
            ROVER_TOREL_Satz z;
            z.Schutz = zahl(0, 3) == 0;
            z.Anzahl = zahl(0, 2);
            for (std::size_t i = 0; i < static_cast<std::size_t>(z.Anzahl); ++i) z.TOREL_Dateiname[i] = name("05");
            z.Status = static_cast<std::uint8_t>(zahl(0, 3));
            (void)g.ROVER_TOREL.anfuegen(z);
        }
    }

private:
    int zahl(int von, int bis) { return std::uniform_int_distribution(von, bis)(m_zufall); }
    std::string name(std::string_view anfang)
    {
        return verkettet(anfang, "0", zahl(0, 4), "00", zahl(0, 9) == 0 ? 2 : 1, zahl(0, 9) == 0 ? 'b' : 'a', ".14o");
    }
    OBS beobachtung_von(std::string_view anfang)
    {
        const int beginn = zahl(0, 4) * 1800 + zahl(-1, 1);
        return beobachtung(name(anfang), beginn, beginn + zahl(1, 5) * 1800 + zahl(-60, 1));
    }
    std::mt19937 m_zufall;
};

}  // namespace

TEST(AutomatikVergleich, ZufaelligeProjekteEndenWieNachDenEinzelnenSchritten)
{
    int beurteilt[4][7] = {};
    for (unsigned start = 1; start <= 1500; ++start) {
        SCOPED_TRACE(start);
        const bool fremd = start % 3 == 0;
        Pruefstand p(fremd ? "3" : "1");
        Zufallsprojekt(start).fuellen(p.g);
        if (p.g.OBS_R.anzahl() == 0) continue;
        Global erwartet = p.g;
        fremd ? fremde_woertlich(erwartet) : automatik_woertlich(erwartet);
        automatik(p.g);
        for (int i = 1; i <= p.g.OBS_R.anzahl(); ++i)
            if (fremd) {
                const auto &ist = p.g.ROVER_VIRT[i], &soll = erwartet.ROVER_VIRT[i];
                ASSERT_EQ(ist.VIRT_Dateiname, soll.VIRT_Dateiname);
                ASSERT_EQ(ist.VIRT_Index, soll.VIRT_Index);
                ASSERT_EQ(ist.Strecke, soll.Strecke);
            } else {
                const auto &ist = p.g.ROVER_TOREL[i], &soll = erwartet.ROVER_TOREL[i];
                ASSERT_EQ(ist.ROVER_Dateiname, soll.ROVER_Dateiname);
                ASSERT_EQ(ist.Anzahl, soll.Anzahl);
                ASSERT_EQ(ist.TOREL_Dateiname, soll.TOREL_Dateiname);
                ASSERT_EQ(ist.Status, soll.Status);
                ASSERT_EQ(ist.Grund, soll.Grund);
                ++beurteilt[ist.Status][ist.Grund];
            }
    }
    // The projects are varied enough to reach every verdict.
    EXPECT_GT(beurteilt[1][0], 10);
    EXPECT_GT(beurteilt[2][2], 10);
    for (const int grund : {1, 3, 4, 5, 6}) EXPECT_GT(beurteilt[3][grund], 5) << grund;
}
