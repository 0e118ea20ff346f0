#include "plattform/profil.h"

#include <utility>

#include "plattform/text.h"

namespace jorv {

namespace {

// The number of a key that is written as a row's index, 0 for any other.
std::size_t reihennummer(std::string_view schluessel)
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

// FNV-1a over the lower-cased bytes.
std::size_t Profil::Streuung::operator()(std::string_view name) const
{
    std::uint64_t summe = 0xcbf29ce484222325u;
    for (const char z : name) summe = (summe ^ static_cast<unsigned char>(klein(z))) * 0x100000001b3u;
    return static_cast<std::size_t>(summe);
}

bool Profil::Gleichheit::operator()(std::string_view a, std::string_view b) const
{
    return gleich_ohne_gross(a, b);
}

std::size_t Profil::Stellen::finden(std::string_view schluessel) const
{
    const auto knapp = trimmen(schluessel);
    if (const std::size_t n = reihennummer(knapp); n != 0 && n <= m_reihen.size()) return m_reihen[n - 1];
    if (m_namen.empty()) return keine;
    const auto fund = m_namen.find(knapp);
    return fund == m_namen.end() ? keine : fund->second;
}

std::size_t Profil::Stellen::finden(std::size_t reihe) const
{
    if (reihe != 0 && reihe <= m_reihen.size()) return m_reihen[reihe - 1];
    return m_namen.empty() ? keine : finden(std::string_view(verkettet(reihe)));
}

void Profil::Stellen::eintragen(std::string_view schluessel, std::size_t stelle)
{
    if (finden(schluessel) != keine) return;
    const auto knapp = trimmen(schluessel);
    const std::size_t n = reihennummer(knapp);
    if (n != 0 && n <= m_reihen.size())
        m_reihen[n - 1] = stelle;
    else if (n == m_reihen.size() + 1)
        m_reihen.push_back(stelle);
    else
        m_namen.emplace(knapp, stelle);
}

void Profil::Stellen::entfernen(std::string_view schluessel)
{
    const auto knapp = trimmen(schluessel);
    if (const std::size_t n = reihennummer(knapp); n != 0 && n <= m_reihen.size())
        m_reihen[n - 1] = keine;
    else if (const auto fund = m_namen.find(knapp); fund != m_namen.end())
        m_namen.erase(fund);
}

Profil::Profil(std::string text) : m_quelle(std::make_shared<const std::string>(std::move(text)))
{
    m_sektionen.emplace_back();
    Zeilenleser leser(*m_quelle);
    while (const auto zeile = leser.naechste()) {
        const auto knapp = trimmen(*zeile);
        if (knapp.starts_with('[')) {
            Sektion sektion;
            sektion.kopf = *zeile;
            const auto ende = knapp.find(']');
            m_stellen.try_emplace(
                std::string(trimmen(knapp.substr(1, ende == std::string_view::npos ? ende : ende - 1))),
                m_sektionen.size());
            m_sektionen.push_back(std::move(sektion));
            continue;
        }
        Sektion& sektion = m_sektionen.back();
        Zeile neu{*zeile, 0, false, false};
        const auto gleich = zeile->find('=');
        if (gleich != std::string_view::npos && !knapp.starts_with(';')) {
            neu.ist_wert = true;
            neu.schluessel_laenge = static_cast<std::uint32_t>(gleich);
            sektion.stellen.eintragen(zeile->substr(0, gleich), sektion.zeilen.size());
        }
        sektion.zeilen.push_back(neu);
    }
}

Profil Profil::aus_datei(const Dateisystem& dateien, std::string_view pfad, std::error_code& fehler)
{
    fehler.clear();
    if (!dateien.vorhanden(pfad)) return Profil(std::string{});
    auto text = dateien.lesen(pfad, fehler);
    return Profil(text ? std::move(*text) : std::string{});
}

const Profil::Sektion* Profil::sektion_finden(std::string_view name) const
{
    const auto fund = m_stellen.find(trimmen(name));
    return fund == m_stellen.end() ? nullptr : &m_sektionen[fund->second];
}

Profil::Sektion* Profil::sektion_finden(std::string_view name)
{
    return const_cast<Sektion*>(std::as_const(*this).sektion_finden(name));
}

std::string_view Profil::wert_von(const Zeile& zeile)
{
    return trimmen(zeile.text.substr(zeile.schluessel_laenge + 1u));
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
    return zeile ? wert_von(*zeile) : std::string_view{};
}

std::string_view Profil::wert(std::string_view sektion, std::string_view schluessel) const
{
    return gekuerzt(wert_ganz(sektion, schluessel));
}

std::string_view Profil::gekuerzt(std::string_view wert)
{
    constexpr std::size_t grenze = 254;
    return trimmen(links(wert, grenze));
}

bool Profil::hat(std::string_view sektion, std::string_view schluessel) const
{
    return finden(sektion, schluessel);
}

bool Profil::hat_sektion(std::string_view sektion) const
{
    return sektion_finden(sektion);
}

Profil::Reihen Profil::reihen(std::string_view sektion) const
{
    const Sektion* s = sektion_finden(sektion);
    if (!s) return {Stellen::keine, 0};
    return {static_cast<std::size_t>(s - m_sektionen.data()), s->stellen.reihen()};
}

Profil::Reihen Profil::reihen_anlegen(std::string_view sektion)
{
    sektion_anlegen(sektion);
    return reihen(sektion);
}

std::string_view Profil::reihe(Reihen reihen, int n) const
{
    if (reihen.sektion == Stellen::keine) return {};
    const Sektion& s = m_sektionen[reihen.sektion];
    const std::size_t stelle = s.stellen.finden(static_cast<std::size_t>(n));
    return stelle == Stellen::keine ? std::string_view{} : wert_von(s.zeilen[stelle]);
}

void Profil::reihe_setzen(Reihen reihen, int n, std::string_view wert)
{
    Sektion& s = m_sektionen[reihen.sektion];
    const std::size_t stelle = s.stellen.finden(static_cast<std::size_t>(n));
    if (stelle == Stellen::keine)
        anfuegen(s, verkettet(n), wert);
    else
        wert_ersetzen(s.zeilen[stelle], wert);
}

std::vector<std::string> Profil::schluessel(std::string_view sektion) const
{
    std::vector<std::string> namen;
    if (const Sektion* s = sektion_finden(sektion))
        for (const auto& zeile : s->zeilen)
            if (zeile.ist_wert && !zeile.entfernt)
                namen.emplace_back(trimmen(zeile.text.substr(0, zeile.schluessel_laenge)));
    return namen;
}

std::string_view Profil::ablegen(std::string text)
{
    if (!m_neue) m_neue = std::make_shared<std::deque<std::string>>();
    return m_neue->emplace_back(std::move(text));
}

Profil::Sektion& Profil::sektion_anlegen(std::string_view name)
{
    if (Sektion* s = sektion_finden(name)) return *s;
    if (m_sektionen.empty()) m_sektionen.emplace_back();
    m_stellen.emplace(trimmen(name), m_sektionen.size());
    Sektion& neu = m_sektionen.emplace_back();
    neu.kopf = ablegen(verkettet("[", name, "]"));
    return neu;
}

void Profil::setzen(std::string_view sektion, std::string_view schluessel, std::string_view wert)
{
    Sektion& s = sektion_anlegen(sektion);
    if (const std::size_t vorhanden = s.stellen.finden(schluessel); vorhanden != Stellen::keine)
        wert_ersetzen(s.zeilen[vorhanden], wert);
    else
        anfuegen(s, schluessel, wert);
}

// A value that stays the same costs no new text.
void Profil::wert_ersetzen(Zeile& zeile, std::string_view wert)
{
    const auto schluessel_teil = zeile.text.substr(0, zeile.schluessel_laenge + 1u);
    if (zeile.text.substr(schluessel_teil.size()) != wert) zeile.text = ablegen(verkettet(schluessel_teil, wert));
}

// Behind the last line that isn't blank, so that the space between sections stays.
void Profil::anfuegen(Sektion& sektion, std::string_view schluessel, std::string_view wert)
{
    auto& zeilen = sektion.zeilen;
    std::size_t stelle = zeilen.size();
    while (stelle > 0 && trimmen(zeilen[stelle - 1].text).empty() && !zeilen[stelle - 1].entfernt) --stelle;
    sektion.stellen.eintragen(schluessel, stelle);
    zeilen.insert(
        zeilen.begin() + static_cast<std::ptrdiff_t>(stelle),
        Zeile{ablegen(verkettet(schluessel, "=", wert)), static_cast<std::uint32_t>(schluessel.size()), true, false});
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
