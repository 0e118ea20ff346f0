#include "suite/entscheidung.h"

#include <algorithm>

#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv::suite {

namespace {

// Fewer epochs or less time can't show whether the integers hold.
constexpr std::size_t EPOCHEN_MINDESTENS = 5;
constexpr double DAUER_MINDESTENS = 89.0;  // s
constexpr double FESTE_MINDESTENS = 5.0;   // satellites; four fit any integers
constexpr double EINIG = 0.030;            // m between a run and its witness
constexpr double S0_OHNE_L1 = 1.2, S0_OHNE_L1_NETZ = 2.0;
constexpr double S0_OFFEN = 3.0;  // a float run above it has not modelled the ionosphere

// The last fixed epoch, when it is the last one or lies in the final tenth; else the count of positions.
std::size_t letzte_feste(const std::vector<Position>& p)
{
    const std::size_t spanne = std::max<std::size_t>(1, p.size() / 10);
    for (std::size_t i = p.size(); i-- > p.size() - spanne;)
        if (p[i].guete == Guete::fest) return i;
    return p.size();
}

}  // namespace

Annahme annahme_l1(double laenge)
{
    return laenge <= KURZ ? Annahme{3.0, 0.25, 3.0} : Annahme{5.0, 0.50, 1.0};
}

Annahme annahme_nur_l1(double laenge)
{
    const Annahme a = annahme_l1(laenge);
    return {a.verhaeltnis, std::max(a.anteil, 0.80), std::min(a.s0, 1.0)};
}

Annahme annahme_l1_l2(double laenge, bool netz)
{
    const Annahme a = annahme_l1(laenge);
    return {a.verhaeltnis, a.anteil, std::min(a.s0, netz ? S0_OHNE_L1_NETZ : S0_OHNE_L1)};
}

std::vector<Versuch> plan(Loesungsart art, double laenge, bool zwei_frequenzen, bool netz)
{
    std::vector<Versuch> versuche;
    const auto zeuge = zwei_frequenzen ? std::optional(Laufart::l1_l2) : std::nullopt;
    const bool nachausgleichen = zwei_frequenzen && art == Loesungsart::automatisch;
    const Annahme zeugenannahme = netz ? ANNAHME_ZEUGE_NETZ : ANNAHME_ZEUGE;
    const bool ruhig_zuerst = netz && nachausgleichen;
    if (ruhig_zuerst) {
        versuche.push_back({Laufart::l1, ANNAHME_NETZ, "FixedL1", zeuge, true, zeugenannahme});
        versuche.push_back({Laufart::l0, ANNAHME_L0, "FixedL0", {}});
    }
    const Annahme l1 = zwei_frequenzen ? annahme_l1(laenge) : annahme_nur_l1(laenge);
    if (art == Loesungsart::l1 || (art == Loesungsart::automatisch && laenge <= MITTEL)) {
        versuche.push_back({Laufart::l1, l1, "FixedL1", zeuge, nachausgleichen, zeugenannahme});
        if (zwei_frequenzen)
            versuche.push_back({Laufart::l1_l2, annahme_l1_l2(laenge, netz), "FixedL1", {}, nachausgleichen});
    }
    if (art != Loesungsart::l1 && zwei_frequenzen && !ruhig_zuerst)
        versuche.push_back({Laufart::l0, ANNAHME_L0, "FixedL0", {}});
    return versuche;
}

std::vector<Laufart> plan_offen(double laenge, bool zwei_frequenzen)
{
    if (!zwei_frequenzen) return {Laufart::offen_l1, Laufart::code};
    if (laenge <= KURZ) return {Laufart::offen, Laufart::offen_l0, Laufart::code};
    return {Laufart::offen_l0, Laufart::code};
}

Urteil urteilen(const Loeserausgabe& ausgabe, const Annahme& annahme)
{
    const std::vector<Position>& p = ausgabe.positionen;
    Urteil u;
    if (p.empty()) {
        u.grund = u8"keine Lösung"_w;
        return u;
    }
    const auto ist_fest = [](const Position& q) { return q.guete == Guete::fest; };
    const auto haelfte = p.begin() + static_cast<std::ptrdiff_t>(p.size() / 2);
    u.fest = static_cast<std::size_t>(std::count_if(p.begin(), p.end(), ist_fest));
    u.anteil = static_cast<double>(std::count_if(haelfte, p.end(), ist_fest)) / static_cast<double>(p.end() - haelfte);
    u.masse = guetemasse(ausgabe, Massstab::fest);
    u.epoche = letzte_feste(p);
    if (p.size() < EPOCHEN_MINDESTENS || abstand(p.back().zeit, p.front().zeit) < DAUER_MINDESTENS)
        u.grund = "zu wenige Epochen";
    else if (u.epoche == p.size())
        u.grund = "am Ende nicht festgesetzt";
    else if (p[u.epoche].verhaeltnis < annahme.verhaeltnis)
        u.grund = verkettet(u8"Verhältnis unter "_w, fest(annahme.verhaeltnis, 1));
    else if (u.anteil < annahme.anteil)
        u.grund = verkettet("Anteil fester Epochen unter ", fest(annahme.anteil, 2));
    else if (u.masse.feste < FESTE_MINDESTENS)
        u.grund = "zu wenige Satelliten";
    else if (u.masse.s0 > annahme.s0)
        u.grund = verkettet(u8"s0 über "_w, fest(annahme.s0, 1));
    else
        u.angenommen = true;
    return u;
}

bool einig(const Position& lauf, const Position& zeuge, std::string& grund)
{
    const double abstand_mm = laenge(lauf.ort - zeuge.ort) * 1000.0;
    if (abstand_mm <= EINIG * 1000.0) return true;
    grund = verkettet(fest(abstand_mm, 0), u8" mm verschieden, höchstens "_w, fest(EINIG * 1000.0, 0));
    return false;
}

Urteil urteilen_offen(const Loeserausgabe& ausgabe, Laufart art)
{
    const std::vector<Position>& p = ausgabe.positionen;
    const Guete gesucht = art == Laufart::code ? Guete::code_differentiell : Guete::offen;
    Urteil u;
    const auto letzte = std::find_if(p.rbegin(), p.rend(), [&](const Position& q) { return q.guete == gesucht; });
    if (letzte == p.rend()) {
        u.grund = u8"keine Lösung"_w;
        return u;
    }
    u.epoche = static_cast<std::size_t>(p.rend() - letzte) - 1;
    u.masse = guetemasse(ausgabe, art == Laufart::code ? Massstab::code : Massstab::offen);
    u.angenommen = art != Laufart::offen || u.masse.s0 <= S0_OFFEN;
    if (!u.angenommen) u.grund = verkettet(u8"s0 über "_w, fest(S0_OFFEN, 1));
    return u;
}

}  // namespace jorv::suite
