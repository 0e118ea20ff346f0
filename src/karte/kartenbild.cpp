#include "karte/kartenbild.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <unordered_map>

#include "karte/beschriftung.h"
#include "karte/grenzzug.h"
#include "karte/massstab.h"
#include "karte/schriftmass.h"
#include "modell/Gemeinsam.h"
#include "plattform/text.h"

namespace jorv {

namespace {

constexpr double weite_strecke = 3000.0;  // metres; a foreign station farther off is shown red
constexpr Stift umriss = {kartenfarbe::schwarz, 1, Strich::voll};

class Kartenbild {
public:
    Kartenbild(const Global& g, const Ansicht& ansicht, Umfang umfang) : m_g(g), m_ansicht(ansicht), m_umfang(umfang) {}

    Zeichenliste zeichnen()
    {
        const auto massstab = grafik_massstab(m_ansicht);
        hinzu(Ebene::hintergrund,
              Rechteck{{0, 0}, m_ansicht.breite(), m_ansicht.hoehe(), std::nullopt, kartenfarbe::weiss});
        if (massstab) hinzu(Ebene::massstab, massstab->balken);
        if (m_g.Grenzen == "1") grenze_zeichnen(m_g, m_ansicht, m_umfang, m_bild);
        if (zeigt_katalog(m_g)) kreise(Ebene::katalog, orte(m_g.TOREL_Punkt, &m_katalog), kartenfarbe::gruen);
        figuren();
        kreise(Ebene::rover, orte(m_g.R_Punkt), kartenfarbe::rot);
        kreise(Ebene::station, orte(m_g.S_Punkt), kartenfarbe::blau);
        kreise(Ebene::fremde, orte(m_g.V_Punkt, &m_fremde), kartenfarbe::blau);
        ecken();
        if (m_g.PKZ == "1") grafik_pkz(massstab);
        zuordnungen();
        basislinien();
        if (massstab) hinzu(Ebene::massstab, massstab->schrift);
        return std::move(m_bild);
    }

private:
    template <typename Form>
    void hinzu(Ebene ebene, Form form)
    {
        m_bild.push_back({ebene, std::move(form)});
    }

    // The places that the picture shows, and which points they are where that is asked for.
    template <typename T>
    std::vector<Bildort> orte(const Feld<T>& punkte, std::vector<int>* indices = nullptr) const
    {
        std::vector<Bildort> gezeigt;
        sichtbare_punkte(punkte, m_ansicht, m_umfang, [&](const Bildort& ort, int index) {
            gezeigt.push_back(ort);
            if (indices != nullptr) indices->push_back(index);
        });
        return gezeigt;
    }

    void kreise(Ebene ebene, std::vector<Bildort> orte, Farbe fuellung)
    {
        if (!orte.empty()) hinzu(ebene, Kreise{std::move(orte), Ansicht::symbol, umriss, fuellung});
    }

    Bildort ort(double Rechtswert, double Hochwert) const { return m_ansicht.bild({Rechtswert, Hochwert}); }
    Bildort ort(const Punkt& p) const { return ort(p.Rechtswert, p.Hochwert); }
    Bildort ecke(const GEO_Punkt_Satz& figur, int n) const
    {
        const auto i = static_cast<std::size_t>(n - 1);
        return ort(figur.Rechtswert[i], figur.Hochwert[i]);
    }

    void linie(Ebene ebene, Bildort von, Bildort bis, const Stift& stift)
    {
        if (m_umfang == Umfang::alles || beschneiden(m_ansicht, von, bis)) hinzu(ebene, Linie{von, bis, stift});
    }

    void figuren()
    {
        for (const auto& figur : m_g.GEO_Punkt) {
            for (int n = 2; n <= figur.Anzahl; ++n) linie(Ebene::figur, ecke(figur, n - 1), ecke(figur, n), umriss);
            if (figur.Anzahl > 0) linie(Ebene::figur, ecke(figur, figur.Anzahl), ecke(figur, 1), umriss);
        }
    }

    void ecken()
    {
        if (m_g.geo_fertig || m_g.GEO_Punkt.anzahl() == 0) return;
        const auto& figur = m_g.GEO_Punkt[m_g.GEO_Punkt.anzahl()];
        std::vector<Bildort> orte;
        for (int n = 1; n <= figur.Anzahl; ++n) orte.push_back(ecke(figur, n));
        kreise(Ebene::ecke, std::move(orte), kartenfarbe::gelb);
    }

    void grafik_pkz(const std::optional<Massstabbild>& massstab)
    {
        const bool mit_fremden = ist_F(m_g) && !m_fremde.empty();
        if (m_katalog.empty() && !mit_fremden) return;
        Beschriftung beschriftung(m_ansicht, m_umfang);
        for (const auto& schritt : m_bild) {
            if (const auto* l = std::get_if<Linie>(&schritt.form)) beschriftung.linie_freihalten(l->von, l->bis);
            if (const auto* k = std::get_if<Kreise>(&schritt.form)) beschriftung.symbole_freihalten(k->orte);
        }
        if (massstab) {
            const Schrift& schrift = massstab->schrift;
            const double breite = schriftbreite(schrift.text, schrift.groesse), hoehe = schrifthoehe(schrift.groesse);
            beschriftung.freihalten({schrift.ort.x - breite / 2, schrift.ort.y - hoehe}, breite, hoehe);
            beschriftung.freihalten(massstab->balken.ecke, massstab->balken.breite, massstab->balken.hoehe);
        }
        for (const int i : m_katalog) {
            const auto& p = m_g.TOREL_Punkt[i];
            beschriftung.schreiben(ort(p.Rechtswert, p.Hochwert), p.PKZ + " ", m_bild);
        }
        if (!mit_fremden) return;
        for (const int i : m_fremde)
            if (i <= m_g.OBS_V.anzahl())
                beschriftung.schreiben(ort(m_g.V_Punkt[i]), m_g.OBS_V[i].Dateiname + " ", m_bild);
    }

    // The index kept with the link, unless the stations have moved since.
    int fremde_station(const ROVER_VIRT_Satz& satz) const
    {
        const int i = satz.VIRT_Index;
        if (i >= 1 && i <= m_g.OBS_V.anzahl() && m_g.OBS_V[i].Dateiname == satz.VIRT_Dateiname) return i;
        return Index_OBS_V(m_g, satz.VIRT_Dateiname);
    }

    void zuordnungen()
    {
        const int anzahl = std::min(m_g.ROVER_VIRT.anzahl(), m_g.R_Punkt.anzahl());
        for (int i = 1; i <= anzahl; ++i) {
            const auto& satz = m_g.ROVER_VIRT[i];
            if (satz.VIRT_Dateiname == "?") continue;
            const int j = fremde_station(satz);
            if (j < 1 || j > m_g.V_Punkt.anzahl()) continue;
            const Farbe farbe = satz.Strecke > weite_strecke ? kartenfarbe::rot : kartenfarbe::gruen;
            linie(Ebene::zuordnung, ort(m_g.R_Punkt[i]), ort(m_g.V_Punkt[j]), {farbe, 1, Strich::gepunktet});
        }
    }

    void basislinien()
    {
        if (m_g.BASISLINIE.anzahl() == 0) return;
        std::unordered_map<std::string_view, int> stellen;
        const int anzahl = std::min(m_g.OBS_R.anzahl(), m_g.R_Punkt.anzahl());
        for (int i = 1; i <= anzahl; ++i) stellen.try_emplace(m_g.OBS_R[i].Dateiname, i);
        for (const auto& b : m_g.BASISLINIE) {
            const auto von = stellen.find(b.Datei_von), nach = stellen.find(b.Datei_nach);
            if (von == stellen.end() || nach == stellen.end()) continue;
            linie(Ebene::basislinie, ort(m_g.R_Punkt[von->second]), ort(m_g.R_Punkt[nach->second]),
                  {kartenfarbe::blau, 1, Strich::gepunktet});
        }
    }

    const Global& m_g;
    const Ansicht& m_ansicht;
    Umfang m_umfang;
    std::vector<int> m_katalog, m_fremde;  // shown points that have a label
    Zeichenliste m_bild;
};

constexpr double erstes_minimum = 99999999.0, erstes_maximum = 0.0, rand_anteil = 0.05, umkreis = 100.0;

// Grows around points.
class Umfassung {
public:
    template <typename T>
    void hinzu(const Feld<T>& punkte)
    {
        for (const auto& p : punkte) {
            m_bereich.links = std::min(m_bereich.links, p.Rechtswert);
            m_bereich.rechts = std::max(m_bereich.rechts, p.Rechtswert);
            m_bereich.unten = std::min(m_bereich.unten, p.Hochwert);
            m_bereich.oben = std::max(m_bereich.oben, p.Hochwert);
        }
        m_anzahl += punkte.anzahl();
    }
    int anzahl() const { return m_anzahl; }

    // A single place has no length to take a share of.
    Ausschnitt mit_rand() const
    {
        if (m_anzahl == 0) return {};
        if (m_anzahl == 1 || (m_bereich.breite() <= 0 && m_bereich.hoehe() <= 0))
            return {m_bereich.links - umkreis, m_bereich.links + umkreis, m_bereich.unten - umkreis,
                    m_bereich.unten + umkreis};
        const double rand_r = rand_anteil * m_bereich.breite(), rand_h = rand_anteil * m_bereich.hoehe();
        return {m_bereich.links - rand_r, m_bereich.rechts + rand_r, m_bereich.unten - rand_h, m_bereich.oben + rand_h};
    }

private:
    Ausschnitt m_bereich = {erstes_minimum, erstes_maximum, erstes_minimum, erstes_maximum};
    int m_anzahl = 0;
};

}  // namespace

std::string_view name(Ebene ebene)
{
    constexpr std::array<std::string_view, 13> namen = {"hintergrund", "massstab",   "grenze",       "katalog", "figur",
                                                        "rover",       "station",    "fremde",       "ecke",    "pkz",
                                                        "zuordnung",   "basislinie", "ueberlagerung"};
    return namen[static_cast<std::size_t>(ebene)];
}

Zeichenliste karte_zeichnen(const Global& g, const Ansicht& ansicht, Umfang umfang)
{
    return ansicht.skaliert() ? Kartenbild(g, ansicht, umfang).zeichnen() : Zeichenliste{};
}

bool zeigt_katalog(const Global& g)
{
    return g.Verfahrensmodus.empty() || ist_E_oder_S(g);
}

Ausschnitt grafik_grenzen(const Global& g)
{
    Umfassung alle;
    alle.hinzu(g.TOREL_Punkt);
    return alle.mit_rand();
}

Ausschnitt alles_umfassend(const Global& g)
{
    Umfassung alle;
    if (zeigt_katalog(g)) alle.hinzu(g.TOREL_Punkt);
    for (const auto* punkte : {&g.R_Punkt, &g.S_Punkt, &g.V_Punkt}) alle.hinzu(*punkte);
    return alle.anzahl() > 0 ? alle.mit_rand() : grafik_grenzen(g);
}

}  // namespace jorv
