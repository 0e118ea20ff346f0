#include "suite/arbeitsordner.h"

#include <algorithm>
#include <iterator>

#include "plattform/pfad.h"
#include "plattform/text.h"

namespace jorv::suite {

namespace {

bool passt(std::string_view name, std::string_view muster)
{
    if (muster.empty()) return name.empty();
    if (muster.front() == '*') return passt(name, muster.substr(1)) || (!name.empty() && passt(name.substr(1), muster));
    if (name.empty() || (muster.front() != '?' && klein(muster.front()) != klein(name.front()))) return false;
    return passt(name.substr(1), muster.substr(1));
}

}  // namespace

std::string Arbeitsordner::pfad(std::string_view name) const
{
    return m_pfad.empty() ? std::string(name) : pfad_verbinden(m_pfad, name);
}

std::vector<std::string> Arbeitsordner::namen() const
{
    std::vector<std::string> namen;
    for (Ordnereintrag& eintrag : m_dateien.ordner_lesen(m_pfad.empty() ? "." : m_pfad))
        if (!eintrag.ordner) namen.push_back(std::move(eintrag.name));
    return namen;
}

Abbild Arbeitsordner::lesen(std::string_view name, std::error_code& fehler) const
{
    return m_dateien.abbilden(pfad(name), fehler);
}

Dateistrom Arbeitsordner::stroemen(std::string_view name, std::error_code& fehler) const
{
    return m_dateien.stroemen(pfad(name), fehler);
}

std::uint64_t Arbeitsordner::groesse(std::string_view name) const
{
    return m_dateien.groesse(pfad(name)).value_or(0);
}

bool Arbeitsordner::schreiben(std::string_view name, std::string_view bytes) const
{
    return !m_dateien.schreiben(pfad(name), bytes, Dauer::fluechtig);
}

bool Arbeitsordner::loeschen(std::string_view name) const
{
    return !m_dateien.vorhanden(pfad(name)) || !m_dateien.loeschen(pfad(name));
}

std::vector<std::string> passende(const std::vector<std::string>& namen, std::string_view muster)
{
    std::vector<std::string> gefunden;
    std::copy_if(namen.begin(), namen.end(), std::back_inserter(gefunden),
                 [&](const std::string& name) { return passt(name, muster); });
    return gefunden;
}

std::string_view stamm(std::string_view dateiname)
{
    return dateiname.substr(0, dateiname.rfind('.'));
}

}  // namespace jorv::suite
