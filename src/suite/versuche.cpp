#include "suite/versuche.h"

#include <algorithm>

#include "plattform/text.h"
#include "plattform/zahl.h"
#include "suite/nachausgleich.h"
#include "suite/spalten.h"

namespace jorv::suite {

namespace {

constexpr std::string_view LOESERVERSION = "2.4.3";  // the one whose option words and columns are known
constexpr double S0_L1 = 0.8;  // misfit of L1 alone to that of both, which the ionosphere disturbs more

}  // namespace

const Loeserlauf& Versuchsreihe::lauf(Laufart art)
{
    if (const auto da = m_laeufe.find(art); da != m_laeufe.end()) return da->second;
    const Loeserlauf& lauf = m_laeufe.emplace(art, m_haengt ? Loeserlauf{} : m_loeser.rechnen(art)).first->second;
    m_haengt = m_haengt || lauf.zeit_abgelaufen;
    const std::string& programm = lauf.ausgabe.programm;
    if (!m_version_geprueft && !programm.empty() && programm.find(LOESERVERSION) == std::string::npos)
        m_protokoll.warnung(verkettet("Das Rechenprogramm ist \"", programm, "\", erprobt ist ", LOESERVERSION, "."));
    m_version_geprueft = m_version_geprueft || !programm.empty();
    return lauf;
}

void Versuchsreihe::zeile(Laufart art, const Loeserlauf& lauf, const Urteil& urteil, std::string_view ausgang)
{
    const auto& p = lauf.ausgabe.positionen;
    std::string text = "Lauf ";
    anhaengen_links(text, laufname(art), 12);
    if (p.empty()) {
        m_protokoll.warnung(verkettet("Lauf ", laufname(art), ": ", lauf.fehler, lauf.fehlerausgabe.empty() ? "" : ": ",
                                      lauf.fehlerausgabe));
        return;
    }
    const double verhaeltnis = p[std::min(urteil.epoche, p.size() - 1)].verhaeltnis;
    text += verkettet("Epochen ", p.size(), ", fest ", urteil.fest, u8", Verhältnis "_w, fest(verhaeltnis, 1),
                      ", Anteil ", fest(urteil.anteil, 2), ", Satelliten ", fest(urteil.masse.feste, 1), ", s0 ",
                      fest(urteil.masse.s0, 2), ": ");
    m_protokoll.zeile(text.append(ausgang));
}

// Runs both; the witness's line tells what it says. Its place, or nothing when it doesn't agree.
const Position* Versuchsreihe::bestaetigt(const Versuch& versuch, const Position& position)
{
    const Loeserlauf& zeuge = lauf(*versuch.zeuge);
    const Urteil seines = urteilen(zeuge.ausgabe, versuch.annahme_zeuge);
    std::string grund = seines.grund;
    const bool gut = seines.angenommen && einig(position, zeuge.ausgabe.positionen[seines.epoche], grund);
    if (seines.angenommen && !gut) m_widersprochen = versuch.zeuge;
    zeile(*versuch.zeuge, zeuge, seines,
          verkettet(gut ? u8"bestätigt "_w : u8"bestätigt nicht "_w, laufname(versuch.art), gut ? "" : ", ", grund));
    return gut ? &zeuge.ausgabe.positionen[seines.epoche] : nullptr;
}

// The place of the run of both frequencies, adjusted once more; one far from what was accepted is not believed.
void Versuchsreihe::nachausgleichen(const Versuch& versuch, const Position& ende, Fund& fund)
{
    const bool zwei = versuch.art == Laufart::l1_l2;
    const double s0 = fund.urteil.masse.s0 * (zwei ? S0_L1 : 1.0);
    const auto neu = suite::nachausgleichen(lauf(versuch.zeuge.value_or(versuch.art)).ausgabe, ende, fund.position.ort,
                                            s0, m_kalibriert);
    std::string grund;
    if (!neu || !einig(fund.position, neu->position, grund)) return;
    m_protokoll.zeile(verkettet(u8"Ausgleich L1 und L2, Ionosphäre "_w, fest(neu->ionosphaere * 1000.0, 1), " mm: um ",
                                fest(laenge(neu->position.ort - fund.position.ort) * 1000.0, 1), " mm verschoben"));
    fund.position.ort = neu->position.ort;
    fund.position.sigma = neu->position.sigma;
    fund.position.gemischt = neu->position.gemischt;
}

std::optional<Fund> Versuchsreihe::fest_loesen(const std::vector<Versuch>& versuche)
{
    for (const Versuch& versuch : versuche) {
        if (m_haengt) break;
        if (m_widersprochen == versuch.art) continue;
        const Loeserlauf& dieser = lauf(versuch.art);
        Urteil urteil = urteilen(dieser.ausgabe, versuch.annahme);
        zeile(versuch.art, dieser, urteil, urteil.angenommen ? "angenommen" : urteil.grund);
        if (!urteil.angenommen) continue;
        const Position& hier = dieser.ausgabe.positionen[urteil.epoche];
        const Position* ende = versuch.zeuge ? bestaetigt(versuch, hier) : &hier;
        if (!ende) continue;
        Fund fund{&dieser.ausgabe, std::move(urteil), versuch.typ, hier};
        if (versuch.nachausgleichen) nachausgleichen(versuch, *ende, fund);
        return fund;
    }
    return {};
}

std::optional<Fund> Versuchsreihe::offen_loesen(const std::vector<Laufart>& arten)
{
    for (const Laufart art : arten) {
        if (m_haengt) break;
        const Loeserlauf& dieser = lauf(art);
        Urteil urteil = urteilen_offen(dieser.ausgabe, art);
        zeile(art, dieser, urteil, urteil.angenommen ? "angenommen" : urteil.grund);
        if (!urteil.angenommen) continue;
        m_protokoll.warnung(art == Laufart::code ? u8"Nur eine Lösung aus Codemessungen (Meter)."_w
                                                 : u8"Die Mehrdeutigkeiten sind nicht festgesetzt (Dezimeter)."_w);
        const Position& hier = dieser.ausgabe.positionen[urteil.epoche];
        return Fund{&dieser.ausgabe, std::move(urteil), "FloatDGNSS", hier};
    }
    return {};
}

}  // namespace jorv::suite
