// Each effect alone, by the difference of the files made with and without it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <set>

#include "simulator/bahn.h"
#include "werkzeuge/umgebung.h"

namespace jorv::simulator {
namespace {

constexpr double c = lichtgeschwindigkeit;
constexpr double welle[] = {c / f_l1, c / f_l2};
constexpr double rundung = 0.0011;  // both files round to a millimetre

/// What an effect adds to one satellite's observations at one epoch, all in metres.
struct Zuwachs {
    double t = 0;
    std::string satellit;
    double hoehe = 0, azimut = 0;  // radians
    std::array<double, 2> code{}, phase{};
};

struct Vergleich {
    Szenario mit;
    Beobachtungen vorher, nachher;
    std::vector<Zuwachs> alle;
};

Vergleich vergleichen(const std::function<void(Szenario&)>& einschalten)
{
    Vergleich v;
    Szenario s = ohne_wirkung();
    v.vorher = simulieren(s);
    einschalten(s);
    v.mit = s;
    v.nachher = simulieren(s);
    EXPECT_GT(v.vorher.size(), 900u);
    const Bahnen bahnen(s);
    const Vektor ort = s.punkte[0].ort;
    const Horizont horizont(nach_geographisch(ort));
    for (const auto& [wann, neu] : v.nachher) {
        const auto alt = v.vorher.find(wann);
        if (alt == v.vorher.end()) continue;  // the satellite at the mask
        Zuwachs z{wann.first, wann.second};
        for (const Satellit& satellit : bahnen.satelliten()) {
            if (satellit.nummer != std::stoi(z.satellit.substr(1))) continue;
            const Richtung r = richtung(horizont, ort, bahnen.wahr(satellit, z.t).ort);
            z.hoehe = r.hoehe;
            z.azimut = r.azimut;
        }
        for (std::size_t f = 0; f < 2; ++f) {
            z.code[f] = neu.code[f] - alt->second.code[f];
            z.phase[f] = (neu.phase[f] - alt->second.phase[f]) * welle[f];
        }
        v.alle.push_back(z);
    }
    EXPECT_GT(v.alle.size(), 900u);
    return v;
}

/// Checks one expected amount for all four observables.
void alle_vier(const Zuwachs& z, double soll, double schranke)
{
    for (std::size_t f = 0; f < 2; ++f) {
        ASSERT_NEAR(z.code[f], soll, schranke) << z.satellit << " at " << z.t;
        ASSERT_NEAR(z.phase[f], soll, schranke) << z.satellit << " at " << z.t;
    }
}

double streuung(const std::vector<double>& werte)
{
    double summe = 0;
    for (const double w : werte) summe += w * w;
    return std::sqrt(summe / static_cast<double>(werte.size()));
}

TEST(Wirkungen, IonosphaereVerzoegertDenCodeUndEiltDiePhaseVoraus)
{
    const auto v = vergleichen([](Szenario& s) { s.wirkungen.ionosphaere.vtec = 10; });
    for (const Zuwachs& z : v.alle) {
        const double schief = 10 / std::sqrt(1 - std::pow(6371.0 / 6771.0 * std::cos(z.hoehe), 2));
        for (std::size_t f = 0; f < 2; ++f) {
            const double hertz = f == 0 ? f_l1 : f_l2, soll = 40.3e16 * schief / (hertz * hertz);
            ASSERT_NEAR(z.code[f], soll, rundung);
            ASSERT_NEAR(z.phase[f], -soll, rundung);
        }
    }
}

TEST(Wirkungen, IonosphaerischerGradientUndWelle)
{
    const auto eben = vergleichen([](Szenario& s) { s.wirkungen.ionosphaere = {100}; });
    // A long standing wave is a gradient of 2 pi amplitude / length in its direction.
    const double gradient = 2 * pi * 50 / 20000, ewig = 1e9;
    const auto nord = vergleichen([&](Szenario& s) { s.wirkungen.ionosphaere = {100, gradient, 0}; });
    const auto ost = vergleichen([&](Szenario& s) { s.wirkungen.ionosphaere = {100, 0, gradient}; });
    const auto nordwelle = vergleichen([&](Szenario& s) { s.wirkungen.ionosphaere = {100, 0, 0, 50, 20000, ewig, 0}; });
    const auto ostwelle = vergleichen([&](Szenario& s) { s.wirkungen.ionosphaere = {100, 0, 0, 50, 20000, ewig, 90}; });
    const auto zeitlich = vergleichen([&](Szenario& s) { s.wirkungen.ionosphaere = {100, 0, 0, 50, ewig, 40, 0}; });
    int geprueft = 0;
    for (std::size_t i = 0; i < eben.alle.size(); ++i) {
        const Zuwachs& z = eben.alle[i];
        if (z.hoehe < 45 * grad) continue;
        ++geprueft;
        const auto mehr = [&](const Vergleich& v) { return v.alle.at(i).code[0] - z.code[0]; };
        // The pierce point lies 400 km / tan(elevation) away, a little less on the curved shell; the
        // point itself lies 10 km beside the middle of the net.
        const double strecke = 400 / std::tan(z.hoehe) * gradient / 100 * z.code[0];
        const double spielraum = 0.15 * strecke + 12 * gradient / 100 * z.code[0];
        ASSERT_NEAR(mehr(nord), strecke * std::cos(z.azimut), spielraum);
        ASSERT_NEAR(mehr(ost), strecke * std::sin(z.azimut), spielraum);
        ASSERT_NEAR(mehr(nordwelle), mehr(nord), 0.02 * strecke + rundung);
        ASSERT_NEAR(mehr(ostwelle), mehr(ost), 0.02 * strecke + rundung);
        ASSERT_NEAR(mehr(zeitlich) / z.code[0], -0.5 * std::sin(2 * pi * z.t / 2400), 0.001);
    }
    EXPECT_GT(geprueft, 200);
}

TEST(Wirkungen, TroposphaereTrifftAlleGleich)
{
    const auto v = vergleichen([](Szenario& s) { s.wirkungen.troposphaere = {true, 0.15}; });
    const Geographisch ort = nach_geographisch(v.mit.punkte[0].ort);
    int tiefe = 0;
    const double zenit = 0.0022768 * 995.6 + 0.15 * std::exp(-ort.hoehe / 2000);  // 995.6 hPa at 148 m
    for (const Zuwachs& z : v.alle) {
        alle_vier(z, z.code[0], rundung);
        // 1/sin is right high up; at 5 degrees every mapping function in use gives 10.15 for the dry part, so
        // 0.885 here, and 10.75 for the small wet part.
        const double verhaeltnis = z.code[0] / zenit * std::sin(z.hoehe);
        if (z.hoehe > 50 * grad) {
            ASSERT_NEAR(verhaeltnis, 1, 0.003);
        }
        if (z.hoehe < 5.3 * grad) {
            ++tiefe;
            ASSERT_NEAR(verhaeltnis, 0.890, 0.008);
        }
    }
    EXPECT_GT(tiefe, 3);
}

TEST(Wirkungen, EmpfaengeruhrStehtInCodeUndPhase)
{
    const auto v = vergleichen([](Szenario& s) { s.wirkungen.uhr_versatz = 3e-4, s.wirkungen.uhr_gang = 1e-7; });
    int geprueft = 0;
    std::set<double> groessen;
    for (const Zuwachs& z : v.alle) {
        const auto davor = v.vorher.find({z.t - 30, z.satellit}), danach = v.vorher.find({z.t + 30, z.satellit});
        if (davor == v.vorher.end() || danach == v.vorher.end()) continue;
        ++geprueft;
        const double tempo = (danach->second.code[0] - davor->second.code[0]) / 60;
        const double uhr = empfaengeruhr(v.mit, v.mit.punkte[0], z.t);
        ASSERT_LE(std::abs(uhr), 5e-4);
        groessen.insert(uhr);
        // A clock that is ahead measures too early: the satellite's way in that time is missing.
        alle_vier(z, (c - tempo) * uhr, 3 * rundung);
    }
    EXPECT_GT(geprueft, 800);
    EXPECT_GT(*groessen.rbegin() - *groessen.begin(), 1e-4);
}

TEST(Wirkungen, SatellitenuhrStehtInDerNavigationsdatei)
{
    const auto v = vergleichen([](Szenario& s) { s.wirkungen.satellitenuhren = true; });
    const Testordner ordner;
    std::string meldung;
    ASSERT_TRUE(schreiben(v.mit, ordner.pfad(), meldung)) << meldung;
    const auto z = zeilen(datei_lesen(ordner.pfad() / dateiname(v.mit, v.mit.punkte[0], 'n')));
    std::map<std::string, std::array<double, 3>> uhren;  // af0, af1, group delay of the set at 10 h
    for (std::size_t i = 6; i + 7 < z.size(); i += 8) {
        if (spalte(z[i], 13, 2) != 10) continue;
        const std::string name = z[i][0] == ' ' ? "G0" + z[i].substr(1, 1) : "G" + z[i].substr(0, 2);
        uhren[name] = {spalte(z[i], 23, 19), spalte(z[i], 42, 19), spalte(z[i + 6], 42, 19)};
    }
    for (const Zuwachs& d : v.alle) {
        ASSERT_TRUE(uhren.contains(d.satellit));
        const auto& [af0, af1, tgd] = uhren[d.satellit];
        const double phase = -c * (af0 + af1 * (d.t - 36000));
        for (std::size_t f = 0; f < 2; ++f) {
            const double verzug = c * tgd * (f == 0 ? 1 : 77.0 * 77 / 3600);
            ASSERT_NEAR(d.phase[f], phase, rundung);
            ASSERT_NEAR(d.code[f], phase + verzug, rundung);
        }
    }
}

TEST(Wirkungen, AntennenhoeheVerkuerztDieStrecke)
{
    const auto v = vergleichen([](Szenario& s) { s.punkte[0].antennenhoehe = 1.5; });
    for (const Zuwachs& z : v.alle) alle_vier(z, -1.5 * std::sin(z.hoehe), rundung);
}

TEST(Wirkungen, AntennenzentrumJeFrequenz)
{
    const auto v = vergleichen([](Szenario& s) {
        s.antennen.push_back(antenne_machen("17", "PRUEF", {0.02, -0.03, 0.1}, {-0.01, 0.04, 0.12}, 0.02, -0.01));
        s.punkte[0].antenne = "17";
        s.wirkungen.antennenzentrum = true;
    });
    for (const Zuwachs& z : v.alle) {
        for (std::size_t f = 0; f < 2; ++f) {
            const Vektor p = v.mit.antennen[0].versatz[f];
            const double cz = std::cos(z.hoehe);
            const double gang = (f == 0 ? 0.02 : -0.01) * cz * cz;
            const double soll =
                gang - p.x * cz * std::cos(z.azimut) - p.y * cz * std::sin(z.azimut) - p.z * std::sin(z.hoehe);
            ASSERT_NEAR(z.code[f], soll, rundung);
            ASSERT_NEAR(z.phase[f], soll, rundung);
        }
    }
}

TEST(Wirkungen, MehrdeutigkeitenSindGanzeZahlen)
{
    const auto v = vergleichen([](Szenario& s) { s.wirkungen.mehrdeutigkeiten = true; });
    std::map<std::string, std::array<double, 2>> ganze;
    for (const Zuwachs& z : v.alle) {
        for (std::size_t f = 0; f < 2; ++f) {
            ASSERT_EQ(z.code[f], 0);
            const double zyklen = z.phase[f] / welle[f];
            ASSERT_NEAR(zyklen, std::round(zyklen), rundung);
            const auto erste = ganze.emplace(z.satellit, std::array<double, 2>{1e9, 1e9}).first;
            if (erste->second[f] == 1e9) erste->second[f] = std::round(zyklen);
            ASSERT_EQ(erste->second[f], std::round(zyklen)) << z.satellit;
        }
    }
    std::set<double> verschieden;
    for (const auto& [name, n] : ganze) verschieden.insert({n[0], n[1]});
    EXPECT_EQ(verschieden.size(), 2 * ganze.size());
}

TEST(Wirkungen, PhasensprungMitMarke)
{
    const auto v = vergleichen([](Szenario& s) { s.wirkungen.spruenge = 3; });
    std::map<std::string, Zuwachs> davor;
    int gesprungen = 0;
    for (const Zuwachs& z : v.alle) {
        const Gelesen& g = v.nachher.at({z.t, z.satellit});
        const auto alt = davor.find(z.satellit);
        for (std::size_t f = 0; alt != davor.end() && f < 2; ++f) {
            const double zyklen = (z.phase[f] - alt->second.phase[f]) / welle[f];
            ASSERT_EQ(g.verloren[f], std::abs(zyklen) > 0.5) << z.satellit << " at " << z.t;
            ASSERT_NEAR(zyklen, std::round(zyklen), 2 * rundung);
            gesprungen += g.verloren[f];
        }
        davor[z.satellit] = z;
    }
    EXPECT_GT(gesprungen, 20);  // 10 satellites, 1 hour, 3 slips of one or both frequencies
    EXPECT_LT(gesprungen, 80);
}

TEST(Wirkungen, RauschenHatDieBestellteGroesse)
{
    const auto code = vergleichen([](Szenario& s) { s.wirkungen.coderauschen = 0.5; });
    const auto phase = vergleichen([](Szenario& s) { s.wirkungen.phasenrauschen = 0.01; });
    std::vector<double> c1, p2, l1, l2, summe;
    for (const Zuwachs& z : code.alle) {
        const double s = std::sin(z.hoehe), faktor = std::sqrt(0.5 + 0.5 / (s * s));
        ASSERT_EQ(z.phase[0], 0);
        ASSERT_EQ(z.phase[1], 0);
        c1.push_back(z.code[0] / faktor);
        p2.push_back(z.code[1] / faktor);
        summe.push_back((z.code[0] + z.code[1]) / faktor);
    }
    for (const Zuwachs& z : phase.alle) {
        const double s = std::sin(z.hoehe), faktor = std::sqrt(0.5 + 0.5 / (s * s));
        ASSERT_EQ(z.code[0], 0);
        l1.push_back(z.phase[0] / faktor);
        l2.push_back(z.phase[1] / faktor);
    }
    EXPECT_NEAR(streuung(c1), 0.5, 0.04);
    EXPECT_NEAR(streuung(p2), 0.5, 0.04);
    EXPECT_NEAR(streuung(summe), 0.5 * std::sqrt(2), 0.06) << "the two frequencies are not independent";
    EXPECT_NEAR(streuung(l1), 0.01, 0.0008);
    EXPECT_NEAR(streuung(l2), 0.01, 0.0008);
}

TEST(Wirkungen, MehrwegNimmtMitDerHoeheAb)
{
    const auto v = vergleichen([](Szenario& s) { s.wirkungen.mehrweg = 0.3; });
    std::vector<double> unten, oben;
    for (const Zuwachs& z : v.alle) {
        ASSERT_LT(std::abs(z.phase[0]), welle[0] / 4);
        ASSERT_LT(std::abs(z.code[0]), 0.3 * 2 * 2.5);
        if (z.hoehe < 20 * grad) unten.push_back(z.phase[0]);
        if (z.hoehe > 55 * grad) oben.push_back(z.phase[0]);
    }
    EXPECT_GT(streuung(unten), 0.002);
    EXPECT_LT(streuung(oben), streuung(unten) / 3);
}

TEST(Wirkungen, BahnfehlerIstBenachbartenPunktenGemeinsam)
{
    const auto v = vergleichen([](Szenario& s) { s.wirkungen.bahnfehler = 2; });
    const Beobachtungen vorher = simulieren(ohne_wirkung(), 1), nachher = simulieren(v.mit, 1);
    std::vector<double> groesse;
    for (const Zuwachs& z : v.alle) {
        alle_vier(z, z.code[0], 1.5 * rundung);
        groesse.push_back(z.code[0]);
        const auto dort = nachher.find({z.t, z.satellit});
        if (dort == nachher.end() || !vorher.contains(dort->first)) continue;
        const double anderer = dort->second.code[0] - vorher.at(dort->first).code[0];
        ASSERT_NEAR(z.code[0], anderer, 0.012);  // 20 km in 20000 km of at most 10 m
    }
    EXPECT_NEAR(streuung(groesse), 2, 1.2);
}

TEST(Wirkungen, LueckenSindLeer)
{
    const auto v = vergleichen([](Szenario& s) { s.punkte[0].luecken = {{9 * 3600 + 600, 9 * 3600 + 720}}; });
    std::set<double> fehlend;
    for (const auto& [wann, g] : v.vorher) {
        if (!v.nachher.contains(wann)) fehlend.insert(wann.first - 9 * 3600);
    }
    EXPECT_THAT(fehlend, testing::ElementsAre(600, 630, 660, 690, 720));
}

}  // namespace
}  // namespace jorv::simulator
