#include "dos/platzhalter.h"

#include <algorithm>

#include "plattform/hostpfad.h"
#include "plattform/pfad.h"
#include "plattform/text.h"

namespace jorv::dos {

bool hat_platzhalter(std::string_view name)
{
    return name.find_first_of("*?") != std::string_view::npos;
}

namespace {

// A quick no for most names of a folder: the first or the last character is a plain one and differs.
bool kann_passen(std::string_view muster, std::string_view name)
{
    if (muster.empty() || name.empty()) return true;
    const auto gleich = [](char m, char n) { return m == '*' || m == '?' || m == '.' || klein(m) == klein(n); };
    return gleich(muster.front(), name.front()) && gleich(muster.back(), name.back());
}

}  // namespace

bool passt(std::string_view muster, std::string_view name)
{
    if (!kann_passen(muster, name)) return false;
    // rest[k]: the pattern behind the place looked at fits the name from k on. Walked from the pattern's end, so
    // that the time stays the product of both lengths whatever stands in them.
    std::vector<char> rest(name.size() + 1, 0), neu(name.size() + 1, 0);
    rest[name.size()] = 1;
    for (std::size_t m = muster.size(); m-- > 0;) {
        const char zeichen = muster[m];
        const bool lockerer_punkt = zeichen == '.' && m + 1 < muster.size() && hat_platzhalter(muster.substr(m + 1, 1));
        for (std::size_t k = name.size() + 1; k-- > 0;) {
            const bool ende = k == name.size();
            bool gut = false;
            if (zeichen == '*')
                gut = rest[k] || (!ende && neu[k + 1]);
            else if (zeichen == '?')
                gut = ende || name[k] == '.' ? rest[k] : rest[k + 1];
            else if (ende)
                gut = lockerer_punkt && rest[k];
            else
                gut = klein(zeichen) == klein(name[k]) && rest[k + 1];
            neu[k] = gut;
        }
        rest.swap(neu);
    }
    return rest[0] != 0;
}

std::vector<Fund> dateien_finden(const Dateisystem& dateien, std::string_view pfad)
{
    std::vector<Fund> funde;
    const std::string_view muster = pfad_name(pfad);
    if (!hat_platzhalter(muster)) {
        if (!dateien.ist_datei(pfad)) return funde;
        const auto name = text_aus_utf8(utf8(dateien.host(pfad).filename()));
        funde.push_back({std::string(pfad), name.value_or(std::string(muster))});
        return funde;
    }
    const std::string_view ordner = pfad_ordner(pfad);
    for (const auto& eintrag : dateien.ordner_lesen(ordner)) {
        if (eintrag.ordner || eintrag.name.starts_with('.') || !passt(muster, eintrag.name)) continue;
        std::string voll = pfad_verbinden(ordner, eintrag.name);
        if (dateien.ist_datei(voll)) funde.push_back({std::move(voll), eintrag.name});
    }
    std::stable_sort(funde.begin(), funde.end(),
                     [](const Fund& a, const Fund& b) { return gross(a.name) < gross(b.name); });
    return funde;
}

bool etwas_da(const Dateisystem& dateien, std::string_view pfad)
{
    const std::string_view muster = pfad_name(pfad);
    if (!hat_platzhalter(muster)) return dateien.vorhanden(pfad);
    const auto eintraege = dateien.ordner_lesen(pfad_ordner(pfad));
    return std::any_of(eintraege.begin(), eintraege.end(),
                       [&](const Ordnereintrag& eintrag) { return passt(muster, eintrag.name); });
}

}  // namespace jorv::dos
