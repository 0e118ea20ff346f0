#include "dos/verzeichnisse.h"

#include <vector>

#include "plattform/pfad.h"
#include "plattform/text.h"

namespace jorv::dos {

namespace {

// "Z:" or "\\server\share".
std::string_view wurzel(std::string_view pfad)
{
    if (!ist_unc(pfad)) return pfad.substr(0, 2);
    const auto server = pfad.find('\\', 2);
    return server == std::string_view::npos ? pfad : pfad.substr(0, pfad.find('\\', server + 1));
}

std::string aufgeloest(std::string_view pfad)
{
    const std::string_view beginn = wurzel(pfad);
    std::vector<std::string_view> teile;
    for (std::string_view rest = pfad.substr(beginn.size()); !rest.empty();) {
        const auto ende = rest.find('\\');
        const std::string_view teil = rest.substr(0, ende);
        rest.remove_prefix(ende == std::string_view::npos ? rest.size() : ende + 1);
        if (teil.empty() || teil == ".") continue;
        if (teil != "..")
            teile.push_back(teil);
        else if (!teile.empty())
            teile.pop_back();
    }
    std::string neu(beginn);
    for (const auto teil : teile) {
        neu += '\\';
        neu += teil;
    }
    if (teile.empty() && !ist_unc(neu)) neu += '\\';
    return neu;
}

}  // namespace

bool ist_wurzel(std::string_view voller_pfad)
{
    return voller_pfad.size() <= wurzel(voller_pfad).size() + 1;
}

Verzeichnisse::Verzeichnisse(std::string_view start) : m_aktuell(aufgeloest(start)) {}

std::string Verzeichnisse::aktuell_auf(std::string_view laufwerk) const
{
    const std::string name = gross(links(laufwerk, 2));
    if (gleich_ohne_gross(name, wurzel(m_aktuell))) return m_aktuell;
    const auto fund = m_ordner.find(name);
    return fund == m_ordner.end() ? name + '\\' : fund->second;
}

std::string Verzeichnisse::voll(std::string_view name) const
{
    const std::string pfad = ersetzt(std::string(name), '/', '\\');
    if (ist_unc(pfad)) return aufgeloest(pfad);
    if (ist_dos_pfad(pfad)) {
        const bool von_wurzel = pfad.size() > 2 && pfad[2] == '\\';
        return aufgeloest(von_wurzel ? pfad : pfad_verbinden(aktuell_auf(pfad), std::string_view(pfad).substr(2)));
    }
    if (pfad.starts_with('\\')) return aufgeloest(verkettet(wurzel(m_aktuell), pfad));
    return aufgeloest(verkettet(m_aktuell, '\\', pfad));
}

Wechsel Verzeichnisse::laufwerk(const Dateisystem& dateien, std::string_view laufwerk)
{
    if (!dateien.laufwerke().hat_laufwerk(laufwerk)) return Wechsel::kein_laufwerk;
    std::string ziel = aktuell_auf(laufwerk);
    if (!dateien.ist_ordner(ziel)) ziel = gross(links(laufwerk, 2)) + '\\';
    if (!dateien.ist_ordner(ziel)) return Wechsel::kein_laufwerk;
    if (!ist_unc(m_aktuell)) m_ordner[gross(wurzel(m_aktuell))] = m_aktuell;
    m_aktuell = ziel;
    return Wechsel::gut;
}

Wechsel Verzeichnisse::ordner(const Dateisystem& dateien, std::string_view name, bool mit_laufwerk)
{
    const std::string ziel = voll(name);
    if (!dateien.laufwerke().host(ziel)) return Wechsel::kein_laufwerk;
    if (!dateien.ist_ordner(ziel)) return Wechsel::kein_ordner;
    const bool hier = gleich_ohne_gross(wurzel(ziel), wurzel(m_aktuell));
    if (!hier && !mit_laufwerk) {
        m_ordner[gross(wurzel(ziel))] = ziel;
        return Wechsel::gut;
    }
    if (!hier && !ist_unc(m_aktuell)) m_ordner[gross(wurzel(m_aktuell))] = m_aktuell;
    m_aktuell = ziel;
    return Wechsel::gut;
}

}  // namespace jorv::dos
