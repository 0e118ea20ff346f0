#include "plattform/profil.h"

#include <utility>

#include "plattform/text.h"

namespace jorv {

namespace {

// The number of a key that is written as a row's index, 0 for any other.
std::size_t reihe(std::string_view schluessel)
{
    if (schluessel.empty() || schluessel.size() > 9 || schluessel.front() == '0') return 0;
    std::size_t n = 0;
    for (const char z : schluessel) {
        if (z < '0' || z > '9') return 0;
        n = n * 10 + static_cast<std::size_t>(z - '0');
    }
    return n;
}

}  // namespace

std::size_t Profil::Stellen::finden(std::string_view schluessel) const
{
    const auto knapp = trimmen(schluessel);
    if (const std::size_t n = reihe(knapp); n != 0 && n <= m_reihen.size()) return m_reihen[n - 1];
    if (m_namen.empty()) return keine;
    const auto fund = m_namen.find(klein(knapp));
    return fund == m_namen.end() ? keine : fund->second;
}

void Profil::Stellen::eintragen(std::string_view schluessel, std::size_t stelle)
{
    if (finden(schluessel) != keine) return;
    const auto knapp = trimmen(schluessel);
    const std::size_t n = reihe(knapp);
    if (n != 0 && n <= m_reihen.size())
        m_reihen[n - 1] = stelle;
    else if (n == m_reihen.size() + 1)
        m_reihen.push_back(stelle);
    else
        m_namen.emplace(klein(knapp), stelle);
}

void Profil::Stellen::entfernen(std::string_view schluessel)
{
    const auto knapp = trimmen(schluessel);
    if (const std::size_t n = reihe(knapp); n != 0 && n <= m_reihen.size())
        m_reihen[n - 1] = keine;
    else
        m_namen.erase(klein(knapp));
}

Profil::Profil(std::string_view text)
{
    m_sektionen.emplace_back();
    Zeilenleser leser(text);
    while (const auto zeile = leser.naechste()) {
        const auto knapp = trimmen(*zeile);
        if (knapp.starts_with('[')) {
            Sektion sektion;
            sektion.kopf = *zeile;
            const auto ende = knapp.find(']');
            m_stellen.try_emplace(klein(trimmen(knapp.substr(1, ende == std::string_view::npos ? ende : ende - 1))),
                                  m_sektionen.size());
            m_sektionen.push_back(std::move(sektion));
            continue;
        }
        Sektion& sektion = m_sektionen.back();
        Zeile neu{std::string(*zeile), 0, false, false};
        const auto gleich = zeile->find('=');
        if (gleich != std::string_view::npos && !knapp.starts_with(';')) {
            neu.ist_wert = true;
            neu.schluessel_laenge = gleich;
            sektion.stellen.eintragen(zeile->substr(0, gleich), sektion.zeilen.size());
        }
        sektion.zeilen.push_back(std::move(neu));
    }
}

Profil Profil::aus_datei(const Dateisystem& dateien, std::string_view pfad, std::error_code& fehler)
{
    fehler.clear();
    if (!dateien.vorhanden(pfad)) return Profil(std::string_view{});
    const auto text = dateien.lesen(pfad, fehler);
    return Profil(text ? std::string_view(*text) : std::string_view{});
}

const Profil::Sektion* Profil::sektion_finden(std::string_view name) const
{
    const auto fund = m_stellen.find(klein(trimmen(name)));
    return fund == m_stellen.end() ? nullptr : &m_sektionen[fund->second];
}

Profil::Sektion* Profil::sektion_finden(std::string_view name)
{
    return const_cast<Sektion*>(std::as_const(*this).sektion_finden(name));
}

const Profil::Zeile* Profil::finden(std::string_view sektion, std::string_view schluessel) const
{
    const Sektion* s = sektion_finden(sektion);
    if (!s) return nullptr;
    const std::size_t stelle = s->stellen.finden(schluessel);
    return stelle == Stellen::keine ? nullptr : &s->zeilen[stelle];
}

std::string_view Profil::wert_ganz(std::string_view sektion, std::string_view schluessel) const
{
    const Zeile* zeile = finden(sektion, schluessel);
    return zeile ? trimmen(std::string_view(zeile->text).substr(zeile->schluessel_laenge + 1)) : std::string_view{};
}

std::string_view Profil::wert(std::string_view sektion, std::string_view schluessel) const
{
    constexpr std::size_t grenze = 254;
    return trimmen(links(wert_ganz(sektion, schluessel), grenze));
}

bool Profil::hat(std::string_view sektion, std::string_view schluessel) const
{
    return finden(sektion, schluessel);
}

bool Profil::hat_sektion(std::string_view sektion) const
{
    return sektion_finden(sektion);
}

std::vector<std::string> Profil::schluessel(std::string_view sektion) const
{
    std::vector<std::string> namen;
    if (const Sektion* s = sektion_finden(sektion))
        for (const auto& zeile : s->zeilen)
            if (zeile.ist_wert && !zeile.entfernt)
                namen.emplace_back(trimmen(std::string_view(zeile.text).substr(0, zeile.schluessel_laenge)));
    return namen;
}

void Profil::setzen(std::string_view sektion, std::string_view schluessel, std::string_view wert)
{
    if (m_sektionen.empty()) m_sektionen.emplace_back();
    Sektion* s = sektion_finden(sektion);
    if (!s) {
        m_stellen.emplace(klein(trimmen(sektion)), m_sektionen.size());
        s = &m_sektionen.emplace_back();
        s->kopf = verkettet("[", sektion, "]");
    }
    if (const std::size_t vorhanden = s->stellen.finden(schluessel); vorhanden != Stellen::keine) {
        Zeile& zeile = s->zeilen[vorhanden];
        zeile.text.replace(zeile.schluessel_laenge + 1, std::string::npos, wert);
        return;
    }
    // Behind the last line that isn't blank, so that the space between sections stays.
    std::size_t stelle = s->zeilen.size();
    while (stelle > 0 && trimmen(s->zeilen[stelle - 1].text).empty() && !s->zeilen[stelle - 1].entfernt) --stelle;
    s->stellen.eintragen(schluessel, stelle);
    s->zeilen.insert(s->zeilen.begin() + static_cast<std::ptrdiff_t>(stelle),
                     Zeile{verkettet(schluessel, "=", wert), schluessel.size(), true, false});
}

void Profil::entfernen(std::string_view sektion, std::string_view schluessel)
{
    Sektion* s = sektion_finden(sektion);
    if (!s) return;
    const std::size_t stelle = s->stellen.finden(schluessel);
    if (stelle == Stellen::keine) return;
    // The line keeps its place, so that the index of the others stays right.
    s->zeilen[stelle] = Zeile{"", 0, false, true};
    s->stellen.entfernen(schluessel);
}

std::string Profil::text() const
{
    std::size_t laenge = 0;
    for (const auto& s : m_sektionen) {
        laenge += s.kopf.size() + 2;
        for (const auto& zeile : s.zeilen) laenge += zeile.text.size() + 2;
    }
    std::string text;
    text.reserve(laenge);
    for (const auto& s : m_sektionen) {
        if (!s.kopf.empty()) text.append(s.kopf).append("\r\n");
        for (const auto& zeile : s.zeilen)
            if (!zeile.entfernt) text.append(zeile.text).append("\r\n");
    }
    return text;
}

std::error_code Profil::schreiben(const Dateisystem& dateien, std::string_view pfad) const
{
    return dateien.schreiben(pfad, text());
}

}  // namespace jorv
