#include "karte/beschriftung.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "karte/grenzzug.h"
#include "karte/schriftmass.h"

namespace jorv {

namespace {

constexpr double zelle = 2, abstand = Ansicht::symbol + 3, hoehenabstand = abstand + 1;
constexpr std::uint8_t leer = 0, linie = 1, symbol = 2, text_da = 3;

// Places around a point in the order of liking.
struct Platz {
    double dx, dy;
    Anker anker;
};
constexpr std::array<Platz, 8> plaetze = {{{abstand, 0, Anker::links_mitte},
                                           {-abstand, 0, Anker::rechts_mitte},
                                           {0, -hoehenabstand, Anker::mitte_unten},
                                           {0, hoehenabstand, Anker::mitte_oben},
                                           {abstand - 1, -abstand - 1, Anker::links_mitte},
                                           {abstand - 1, abstand + 1, Anker::links_mitte},
                                           {-abstand + 1, -abstand - 1, Anker::rechts_mitte},
                                           {-abstand + 1, abstand + 1, Anker::rechts_mitte}}};

}  // namespace

Beschriftung::Beschriftung(const Ansicht& ansicht, Umfang umfang)
    : m_ansicht(ansicht),
      m_umfang(umfang),
      m_spalten(static_cast<int>(ansicht.breite() / zelle)),
      m_zeilen(static_cast<int>(ansicht.hoehe() / zelle)),
      m_raster(static_cast<std::size_t>(m_spalten) * static_cast<std::size_t>(m_zeilen))
{
}

template <typename Tun>
void Beschriftung::zellen(const Kasten& kasten, Tun tun) const
{
    const auto stelle = [](double wert, int ende) {
        return static_cast<int>(std::clamp(std::floor(wert / zelle), 0.0, static_cast<double>(ende - 1)));
    };
    constexpr double knapp = 1e-3;  // boxes that touch do not overlap
    if (m_raster.empty()) return;
    const int links = stelle(kasten.links, m_spalten), rechts = stelle(kasten.rechts - knapp, m_spalten);
    for (int z = stelle(kasten.oben, m_zeilen); z <= stelle(kasten.unten - knapp, m_zeilen); ++z)
        for (int s = links; s <= rechts; ++s)
            if (!tun(static_cast<std::size_t>(z) * static_cast<std::size_t>(m_spalten) + static_cast<std::size_t>(s)))
                return;
}

bool Beschriftung::frei(const Kasten& kasten, std::uint8_t hoechstens) const
{
    // A label that would be cut off by the picture's edge has no place there.
    if (!(kasten.links >= 0 && kasten.oben >= 0 && kasten.rechts < m_spalten * zelle &&
          kasten.unten < m_zeilen * zelle))
        return false;
    bool gut = true;
    zellen(kasten, [&](std::size_t i) { return gut = m_raster[i] <= hoechstens; });
    return gut;
}

void Beschriftung::belegen(const Kasten& kasten, std::uint8_t womit)
{
    zellen(kasten, [&](std::size_t i) {
        m_raster[i] = std::max(m_raster[i], womit);
        return true;
    });
}

void Beschriftung::symbole_freihalten(const std::vector<Bildort>& orte)
{
    if (orte.size() > ausduennen_ab) return;
    constexpr double kern = Ansicht::symbol - 1;  // so that a symbol doesn't take cells that it only touches
    for (const auto& ort : orte)
        if (ort.x >= 0 && ort.y >= 0 && ort.x < m_spalten * zelle && ort.y < m_zeilen * zelle)
            belegen({ort.x - kern, ort.y - kern, ort.x + kern, ort.y + kern}, symbol);
}

void Beschriftung::linie_freihalten(Bildort von, Bildort bis)
{
    if (!beschneiden(m_ansicht, von, bis)) return;
    const double dx = bis.x - von.x, dy = bis.y - von.y;
    const int schritte = static_cast<int>(std::hypot(dx, dy) / (zelle / 2)) + 1;
    for (int i = 0; i <= schritte; ++i) {
        const double x = von.x + dx * i / schritte, y = von.y + dy * i / schritte;
        if (x >= 0 && y >= 0 && x < m_spalten * zelle && y < m_zeilen * zelle) belegen({x, y, x, y}, linie);
    }
}

void Beschriftung::freihalten(const Bildort& ecke, double breite, double hoehe)
{
    belegen({ecke.x, ecke.y, ecke.x + breite, ecke.y + hoehe}, text_da);
}

void Beschriftung::schreiben(const Bildort& ort, const std::string& text, Zeichenliste& bild)
{
    const double breite = schriftbreite(text, schrift_pkz), hoehe = schrifthoehe(schrift_pkz);
    const auto kasten = [&](const Platz& p) {
        const double x = ort.x + p.dx, y = ort.y + p.dy;
        const double links = p.anker == Anker::links_mitte    ? x
                             : p.anker == Anker::rechts_mitte ? x - breite
                                                              : x - breite / 2;
        const double oben = p.anker == Anker::mitte_unten  ? y - hoehe
                            : p.anker == Anker::mitte_oben ? y
                                                           : y - hoehe / 2;
        return Kasten{links, oben, links + breite, oben + hoehe};
    };
    const Platz* gewaehlt = nullptr;
    for (const std::uint8_t hoechstens : {leer, linie})
        for (const Platz& platz : plaetze)
            if (gewaehlt == nullptr && frei(kasten(platz), hoechstens)) gewaehlt = &platz;
    if (gewaehlt == nullptr && m_umfang == Umfang::sichtbar) return;
    if (gewaehlt == nullptr)
        gewaehlt = plaetze.data();
    else
        belegen(kasten(*gewaehlt), text_da);
    Schrift schrift;
    schrift.ort = ort;
    schrift.abstand = {gewaehlt->dx, gewaehlt->dy};
    schrift.text = text;
    schrift.anker = gewaehlt->anker;
    schrift.groesse = schrift_pkz;
    schrift.hof = true;
    bild.push_back({Ebene::pkz, std::move(schrift)});
}

}  // namespace jorv
