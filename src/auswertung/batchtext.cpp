#include "auswertung/batchtext.h"

#include <algorithm>

#include "modell/Batchzeilen.h"
#include "modell/Gemeinsam.h"
#include "plattform/text.h"

namespace jorv {

Batchtext::Batchtext(const Global& g)
{
    setzen("VNAME", g.Verfahrensname);
    setzen("VNR", g.Verfahrensnummer);
    setzen("ANT", Antennenformat(g));
    setzen("UTMZONE", g.UTM_Zone);
    setzen("DATUM", tag_text(g.uhr->jetzt()));
    setzen("ZEIT", uhrzeit_text(g.uhr->jetzt()));
}

void Batchtext::setzen(std::string_view name, std::string_view wert)
{
    const auto alt = std::find_if(m_namen.begin(), m_namen.end(), [&](const auto& n) { return n.first == name; });
    if (alt != m_namen.end())
        alt->second = wert;
    else
        m_namen.emplace_back(name, wert);
}

std::string_view Batchtext::wert(std::string_view name) const
{
    const auto stelle = std::find_if(m_namen.begin(), m_namen.end(), [&](const auto& n) { return n.first == name; });
    return stelle == m_namen.end() ? std::string_view{} : std::string_view(stelle->second);
}

std::string Batchtext::einsetzen(std::string_view vorlage) const
{
    return ersetzt(vorlage, true);
}

std::string Batchtext::dateiname(std::string_view vorlage) const
{
    return ersetzt(vorlage, false);
}

std::string Batchtext::ersetzt(std::string_view vorlage, bool als_wort) const
{
    std::string fertig;
    while (!vorlage.empty()) {
        const auto auf = vorlage.find('{');
        const auto zu = auf == std::string_view::npos ? auf : vorlage.find('}', auf);
        if (zu == std::string_view::npos) break;
        fertig += vorlage.substr(0, auf);
        const std::string_view name = vorlage.substr(auf + 1, zu - auf - 1);
        // The project's name is for people.
        fertig += als_wort && name != "VNAME" ? batch_wort(wert(name)) : std::string(wert(name));
        vorlage.remove_prefix(zu + 1);
    }
    return fertig.append(vorlage);
}

void Batchtext::zeile(std::string_view vorlage, Zeilenart art)
{
    const std::string fertig = einsetzen(vorlage);
    fertige_zeile(art == Zeilenart::konsole ? dos_text(fertig) : fertig);
}

void Batchtext::zeilen(std::span<const Batchzeile> tabelle)
{
    for (const auto& z : tabelle) zeile(z.text, z.art);
}

void Batchtext::fertige_zeile(std::string_view zeile)
{
    m_text += zeile;
    m_text += "\r\n";
}

}  // namespace jorv
