#include "simulator/messung.h"

#include <algorithm>
#include <cmath>

#include "simulator/atmosphaere.h"
#include "simulator/zufall.h"

namespace jorv::simulator {

namespace {

std::uint64_t punktkennung(const Punkt& punkt)
{
    return kennung(punkt.pkz + punkt.sitzung);
}

std::uint64_t satellitenkennung(const Satellit& s)
{
    return static_cast<std::uint64_t>(s.system) * 1000 + static_cast<std::uint64_t>(s.nummer);
}

/// Turns an earth-fixed position of the transmission into the earth-fixed system of the reception.
Vektor mitdrehen(Vektor v, double laufzeit)
{
    const double w = erddrehung * laufzeit, s = std::sin(w), c = std::cos(w);
    return {c * v.x + s * v.y, c * v.y - s * v.x, v.z};
}

}  // namespace

Geographisch netzmitte(const Szenario& szenario)
{
    Vektor summe;
    for (const Punkt& p : szenario.punkte) summe = summe + p.ort;
    return nach_geographisch(szenario.punkte.empty() ? Vektor{6378137, 0, 0}
                                                     : (1.0 / static_cast<double>(szenario.punkte.size())) * summe);
}

double empfaengeruhr(const Szenario& szenario, const Punkt& punkt, double t)
{
    const Wirkungen& w = szenario.wirkungen;
    if (w.uhr_versatz == 0 && w.uhr_gang == 0) return 0;
    Zufall z(szenario.saat, {nr(Strom::empfaengeruhr), punktkennung(punkt)});
    const double anteil = z.zwischen(0.5, 1.5) * (z.ganz() % 2 == 0 ? 1 : -1);
    const double versatz = anteil * (w.uhr_versatz + w.uhr_gang * t);
    return versatz - 1e-3 * std::round(versatz / 1e-3);
}

Empfaenger::Empfaenger(const Szenario& szenario, const Punkt& punkt, const Bahnen& bahnen)
    : szenario_(szenario),
      punkt_(punkt),
      bahnen_(bahnen),
      mitte_(netzmitte(szenario)),
      ort_(nach_geographisch(punkt.ort)),
      horizont_(ort_),
      kennung_(punktkennung(punkt)),
      spiegelhoehe_(Zufall(szenario.saat, {nr(Strom::mehrweg), kennung_}).zwischen(1.5, 2.5)),
      boegen_(bahnen.satelliten().size())
{
    for (const Antenne& a : szenario.antennen) {
        if (szenario.wirkungen.antennenzentrum && a.nummer == punkt.antenne) antenne_ = &a;
    }
    for (std::size_t f = 0; f < 2; ++f) {
        const Vektor hoehe{0, 0, punkt.antennenhoehe};
        phasenzentrum_[f] = punkt.ort + horizont_.geozentrisch(antenne_ ? hoehe + antenne_->versatz[f] : hoehe);
    }
}

std::uint64_t Empfaenger::tick(double t) const
{
    return static_cast<std::uint64_t>(std::llround(t * 1000) + 1000000000000);
}

bool Empfaenger::sichtbar(const Satellit& satellit, double t) const
{
    const double laufzeit = 0.075;  // good to a thousandth of a degree
    const Vektor s = mitdrehen(bahnen_.wahr(satellit, t - laufzeit).ort, laufzeit);
    return richtung(horizont_, punkt_.ort, s).hoehe >= szenario_.maske * grad;
}

Empfaenger::Weg Empfaenger::weg(const Satellit& satellit, double t, int frequenz) const
{
    const Vektor zentrum = phasenzentrum_[static_cast<std::size_t>(frequenz)];
    double laufzeit = 0.075;
    Zustand z;
    Vektor s;
    for (int i = 0; i < 8; ++i) {
        z = bahnen_.wahr(satellit, t - laufzeit);
        s = mitdrehen(z.ort, laufzeit);
        const double neu = betrag(s - zentrum) / lichtgeschwindigkeit;
        const bool fertig = std::abs(neu - laufzeit) < 1e-11;  // the next step would move it by 1e-16 s
        laufzeit = neu;
        if (fertig) break;
    }
    Weg w{lichtgeschwindigkeit * laufzeit, z.uhr, richtung(horizont_, zentrum, s)};
    w.strecke += antennengang(w.richtung.hoehe, frequenz);
    return w;
}

double Empfaenger::antennengang(double hoehe, int frequenz) const
{
    if (!antenne_) return 0;
    const auto& gang = antenne_->gang[static_cast<std::size_t>(frequenz)];
    const double stelle = std::clamp((90 - hoehe / grad) / 5, 0.0, static_cast<double>(antennen_stuetzstellen - 1));
    const auto unten = std::min(static_cast<std::size_t>(stelle), antennen_stuetzstellen - 2);
    const double anteil = stelle - static_cast<double>(unten);
    return (1 - anteil) * gang[unten] + anteil * gang[unten + 1];
}

void Empfaenger::stoeren(const Satellit& satellit, double t, double hoehe, int frequenz, Messwert& wert) const
{
    const Wirkungen& w = szenario_.wirkungen;
    const auto f = static_cast<std::size_t>(frequenz);
    const double wellenlaenge = lichtgeschwindigkeit / (frequenz == 0 ? satellit.f1 : satellit.f2);
    const double sinus = std::max(std::sin(hoehe), 0.05);
    const auto rauschen = [&](Strom strom, double groesse) {
        if (groesse == 0) return 0.0;
        Zufall z(szenario_.saat, {nr(strom), kennung_, satellitenkennung(satellit), tick(t), f});
        return groesse * std::sqrt(0.5 + 0.5 / (sinus * sinus)) * z.normal();
    };
    wert.code[f] += rauschen(Strom::code, w.coderauschen);
    wert.phase[f] += rauschen(Strom::phase, w.phasenrauschen) / wellenlaenge;
    if (w.mehrweg != 0) {
        // One ray reflected by the ground, weaker the higher the satellite stands.
        const double umweg = 2 * spiegelhoehe_ * sinus, alpha = w.mehrweg * std::exp(-hoehe / (20 * grad));
        const double theta = 2 * pi * umweg / wellenlaenge, nenner = 1 + alpha * std::cos(theta);
        wert.code[f] += alpha * umweg * std::cos(theta) / nenner;
        wert.phase[f] += std::atan2(alpha * std::sin(theta), nenner) / (2 * pi);
    }
}

void Empfaenger::bogen_fuehren(const Satellit& satellit, double t, Messwert& wert)
{
    const Wirkungen& w = szenario_.wirkungen;
    Bogen& bogen = boegen_[wert.satellit];
    Zufall z(szenario_.saat, {nr(Strom::mehrdeutigkeit), kennung_, satellitenkennung(satellit), tick(t)});
    const bool neu = !bogen.begonnen || t - bogen.zuletzt > 1.5 * punkt_.takt;
    if (neu) {
        for (std::size_t f = 0; f < 2; ++f) {
            bogen.ganze[f] = w.mehrdeutigkeiten ? std::round(z.zwischen(-4e6, 4e6)) : 0;
            wert.verloren[f] = bogen.begonnen && w.mehrdeutigkeiten;
        }
    } else if (w.spruenge > 0) {
        Zufall s(szenario_.saat, {nr(Strom::sprung), kennung_, satellitenkennung(satellit), tick(t)});
        if (s.gleich() < w.spruenge * punkt_.takt / 3600) {
            const std::uint64_t welche = 1 + s.ganz() % 3;  // L1, L2 or both
            for (std::size_t f = 0; f < 2; ++f) {
                if ((welche & (f + 1)) == 0) continue;
                const double zyklen = 1 + std::floor(s.zwischen(0, 1000));
                bogen.ganze[f] += s.ganz() % 2 == 0 ? zyklen : -zyklen;
                wert.verloren[f] = true;
            }
        }
    }
    bogen.begonnen = true;
    bogen.zuletzt = t;
    for (std::size_t f = 0; f < 2; ++f) wert.phase[f] += bogen.ganze[f];
}

void Empfaenger::messen(double t, std::vector<Messwert>& aus)
{
    aus.clear();
    const Wirkungen& w = szenario_.wirkungen;
    const double uhr = empfaengeruhr(szenario_, punkt_, t);
    const double wahr = t - uhr;
    for (std::size_t i = 0; i < bahnen_.satelliten().size(); ++i) {
        const Satellit& s = bahnen_.satelliten()[i];
        if (!sichtbar(s, wahr)) continue;
        Messwert wert;
        wert.satellit = i;
        for (int frequenz = 0; frequenz < 2; ++frequenz) {
            const auto f = static_cast<std::size_t>(frequenz);
            const double hertz = frequenz == 0 ? s.f1 : s.f2;
            const Weg g = weg(s, wahr, frequenz);
            const double hoehe = g.richtung.hoehe;
            const double ion = ionosphaere_laufzeit(elektronen(w.ionosphaere, mitte_, ort_, g.richtung, wahr), hertz);
            const double gemeinsam = g.strecke + lichtgeschwindigkeit * (uhr - g.satellitenuhr) +
                                     troposphaere_laufzeit(w.troposphaere, mitte_, ort_, hoehe);
            wert.code[f] = gemeinsam + ion + (frequenz == 0 ? s.codeversatz1 : s.codeversatz2);
            wert.phase[f] = (gemeinsam - ion) * hertz / lichtgeschwindigkeit;
            Zufall z(szenario_.saat, {nr(Strom::signal), kennung_, satellitenkennung(s), tick(t), f});
            wert.staerke[f] = std::round(4 * (34 - 6 * frequenz + 18 * std::sin(hoehe) + 0.5 * z.normal())) / 4;
            stoeren(s, t, hoehe, frequenz, wert);
        }
        bogen_fuehren(s, t, wert);
        aus.push_back(wert);
    }
}

}  // namespace jorv::simulator
