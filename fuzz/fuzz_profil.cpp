// The image of an INI file: what is set is got back, and nothing else changes.
#include <algorithm>

#include "plattform/profil.h"
#include "plattform/text.h"
#include "ziel.h"

using namespace jorv;

namespace {

using Zeilen = std::vector<std::string_view>;

Zeilen zeilen_von(std::string_view text)
{
    Zeilen zeilen;
    Zeilenleser leser(text);
    while (const auto zeile = leser.naechste()) zeilen.push_back(*zeile);
    return zeilen;
}

// How many lines of `alt` lie between what begins and what ends both texts.
std::size_t geaenderte(const Zeilen& alt, const Zeilen& neu)
{
    const std::size_t kuerzer = std::min(alt.size(), neu.size());
    std::size_t vorn = 0, hinten = 0;
    while (vorn < kuerzer && alt[vorn] == neu[vorn]) ++vorn;
    while (hinten < kuerzer - vorn && alt[alt.size() - 1 - hinten] == neu[neu.size() - 1 - hinten]) ++hinten;
    return alt.size() - vorn - hinten;
}

// A section's name as its line writes it; nothing for other lines.
std::string_view sektion_von(std::string_view zeile)
{
    const auto knapp = trimmen(zeile);
    return knapp.starts_with('[') ? trimmen(mitte(knapp, 2, knapp.find(']') - 1)) : std::string_view();
}

void setzen_pruefen(const Profil& profil, const Zeilen& zeilen, std::string_view sektion, std::string_view schluessel)
{
    constexpr std::string_view wert = "neuer Wert";
    Profil neu = profil;
    neu.setzen(sektion, schluessel, wert);
    fuzz::soll(neu.wert(sektion, schluessel) == wert, "what is set is got");
    const std::string text = neu.text();
    fuzz::soll(Profil(text).wert(sektion, schluessel) == wert, "also out of the written text");
    const std::size_t weg = geaenderte(zeilen, zeilen_von(text));
    fuzz::soll(weg <= (profil.hat(sektion, schluessel) ? 1 : 0), "all other lines survive");
    neu.entfernen(sektion, schluessel);
    fuzz::soll(!neu.hat(sektion, schluessel), "what is removed is gone");
}

}  // namespace

JORV_ZIEL(profil)
{
    const Profil profil{std::string(bytes)};
    const std::string text = profil.text();
    fuzz::soll(Profil(text).text() == text, "written and read is equal");
    const Zeilen zeilen = zeilen_von(text);
    setzen_pruefen(profil, zeilen, "VERFAHREN", "1");
    for (const auto zeile : zeilen) {
        const auto sektion = sektion_von(zeile);
        if (sektion.empty()) continue;
        fuzz::soll(profil.hat_sektion(sektion), "a section that stands there is found");
        const auto schluessel = profil.schluessel(sektion);
        if (!schluessel.empty()) setzen_pruefen(profil, zeilen, sektion, schluessel.front());
        const auto reihen = profil.reihen(sektion);
        for (int n = 1; n <= reihen.anzahl; ++n)
            fuzz::soll(profil.reihe(reihen, n) == profil.wert_ganz(sektion, verkettet(n)), "rows are keys");
        break;
    }
}
