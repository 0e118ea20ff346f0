#include "suite/versuche.h"

#include <algorithm>

#include "plattform/text.h"
#include "plattform/zahl.h"
#include "suite/spalten.h"

namespace jorv::suite {

namespace {

constexpr std::string_view LOESERVERSION = "2.4.3";  // the one whose option words and columns are known

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
                      ", Anteil ", fest(urteil.anteil, 2), ", s0 ", fest(urteil.masse.s0, 2), ": ");
    m_protokoll.zeile(text.append(ausgang));
}

// Runs both; the witness's line tells what it says.
bool Versuchsreihe::bestaetigt(const Versuch& versuch, const Position& position)
{
    const Loeserlauf& zeuge = lauf(*versuch.zeuge);
    const Urteil seines = urteilen(zeuge.ausgabe, ANNAHME_ZEUGE);
    std::string grund = seines.grund;
    const bool gut = seines.angenommen && einig(position, zeuge.ausgabe.positionen[seines.epoche], grund);
    zeile(*versuch.zeuge, zeuge, seines,
          verkettet(gut ? u8"bestätigt "_w : u8"bestätigt nicht "_w, laufname(versuch.art), gut ? "" : ", ", grund));
    return gut;
}

std::optional<Fund> Versuchsreihe::fest_loesen(const std::vector<Versuch>& versuche)
{
    for (const Versuch& versuch : versuche) {
        if (m_haengt) break;
        const Loeserlauf& dieser = lauf(versuch.art);
        Urteil urteil = urteilen(dieser.ausgabe, versuch.annahme);
        zeile(versuch.art, dieser, urteil, urteil.angenommen ? "angenommen" : urteil.grund);
        if (!urteil.angenommen) continue;
        if (versuch.zeuge && !bestaetigt(versuch, dieser.ausgabe.positionen[urteil.epoche])) continue;
        return Fund{&dieser.ausgabe, std::move(urteil), versuch.typ};
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
        return Fund{&dieser.ausgabe, std::move(urteil), "FloatDGNSS"};
    }
    return {};
}

}  // namespace jorv::suite
