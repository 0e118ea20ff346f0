#include "auswertung/antennenwarnung.h"

#include "plattform/text.h"

namespace jorv {

namespace {

// The line of the protocols, "WARNUNG: Antenne "<number>" "<type>" der Datei <name> fehlt in <file>: ...".
constexpr std::string_view ANFANG = "WARNUNG: Antenne ", DATEI = " der Datei ", FEHLT = " fehlt in ";
constexpr std::size_t HOECHSTENS = 8;  // antennas, and items of one, that a message can show

std::string aufgezaehlt(const std::set<std::string>& stuecke)
{
    std::string text;
    std::size_t gezeigt = 0;
    for (const std::string& stueck : stuecke) {
        if (gezeigt == HOECHSTENS) break;
        text.append(gezeigt++ == 0 ? "" : ", ").append(stueck);
    }
    if (stuecke.size() > gezeigt) text += verkettet(" und ", stuecke.size() - gezeigt, " weitere");
    return text;
}

}  // namespace

void Antennenwarnung::lesen(const Global& g, const std::string& protokoll, std::string_view stueck)
{
    const auto text = g.dateien.lesen(protokoll);
    if (!text) return;
    Zeilenleser leser(*text);
    while (const auto zeile = leser.naechste()) {
        if (!zeile->starts_with(ANFANG)) continue;
        const auto fehlt = zeile->rfind(FEHLT), datei = zeile->rfind(DATEI, fehlt);
        if (fehlt == std::string_view::npos || datei == std::string_view::npos || datei < ANFANG.size()) continue;
        const std::string antenne(zeile->substr(ANFANG.size(), datei - ANFANG.size()));
        const auto name = datei + DATEI.size();
        m_stuecke[antenne].emplace(stueck.empty() ? zeile->substr(name, fehlt - name) : stueck);
    }
}

void Antennenwarnung::melden(Global& g) const
{
    if (m_stuecke.empty()) return;
    std::string text = verkettet(
        u8"Achtung!\n\nFür diese Antennen wurde keine Kalibrierung gefunden. An ihren Punkten wurde ohne "
        u8"Antennenkorrektur gerechnet:\n\n"_w);
    std::size_t gezeigt = 0;
    for (const auto& [antenne, stuecke] : m_stuecke) {
        if (gezeigt++ == HOECHSTENS) break;
        text += verkettet(antenne, "\n   bei ", aufgezaehlt(stuecke), "\n");
    }
    if (m_stuecke.size() > HOECHSTENS) text += verkettet("und ", m_stuecke.size() - HOECHSTENS, " weitere Antennen\n");
    g.oberflaeche->meldung(Symbol::warnung, text + "\nUnbedingt die Berechnungsprotokolle einsehen!");
}

}  // namespace jorv
