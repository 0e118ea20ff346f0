#include "projekt/projektdatei_schreiben.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "modell/Version.h"
#include "plattform/profil.h"
#include "plattform/text.h"
#include "plattform/zahl.h"
#include "projekt/reihe.h"

namespace jorv {

namespace {

// Metres with up to three decimals and a decimal comma.
std::string meter(double wert)
{
    return format_bild(wert, "#######.###");
}

// Words joined by one blank each.
class Wortreihe {
public:
    Wortreihe& wort(std::string_view text)
    {
        if (!m_leer) m_zeile += ' ';
        m_leer = false;
        m_zeile += text;
        return *this;
    }
    Wortreihe& name(std::string_view text) { return hat_trenner(text) ? wort(als_wort(text)) : wort(text); }
    // Always in quotes; one inside would end the word.
    Wortreihe& zitat(std::string_view text)
    {
        return wort(verkettet("\"", ersetzt(std::string(text), '"', '\''), "\""));
    }
    Wortreihe& ganz(std::int32_t wert)
    {
        std::array<char, 12> ziffern;
        const auto ende = std::to_chars(ziffern.data(), ziffern.data() + ziffern.size(), wert).ptr;
        return wort({ziffern.data(), static_cast<std::size_t>(ende - ziffern.data())});
    }
    std::string fertig() { return std::move(m_zeile); }

private:
    std::string m_zeile;
    bool m_leer = true;
};

std::string zeile(const GEO_Punkt_Satz& figur)
{
    Wortreihe reihe;
    const int anzahl = std::clamp(figur.Anzahl, 0, static_cast<int>(figur.Punkt.size()));
    // The count is looked for behind the row's first "=": where a name holds one, another goes before it.
    const bool gleich = std::any_of(figur.Punkt.begin(), figur.Punkt.begin() + anzahl,
                                    [](const std::string& name) { return name.find('=') != std::string::npos; });
    reihe.wort(verkettet(gleich ? "=" : "", anzahl));
    for (std::size_t i = 0; i < static_cast<std::size_t>(anzahl); ++i)
        reihe.name(figur.Punkt[i]).wort(meter(figur.Rechtswert[i])).wort(meter(figur.Hochwert[i]));
    return reihe.fertig();
}

std::string zeile(const OBS& o)
{
    Wortreihe reihe;
    reihe.name(o.Dateiname).name(o.Punktkennzeichen).ganz(o.Tag).zitat(o.Antenne);
    for (const auto& z : {o.Startzeit(), o.Endzeit()})
        reihe.ganz(z.jahr).ganz(z.monat).ganz(z.tag).ganz(z.stunde).ganz(z.minute).ganz(z.sekunde);
    return reihe.ganz(o.Startzeit_GPS_Sekunde).ganz(o.Endzeit_GPS_Sekunde).fertig();
}

std::string zeile(const Punkt& p)
{
    Wortreihe reihe;
    reihe.name(p.Punktkennzeichen);
    for (const double wert : {p.Rechtswert, p.Hochwert, p.X, p.Y, p.Z}) reihe.wort(meter(wert));
    return reihe.fertig();
}

std::string zeile(const ROVER_TOREL_Satz& r)
{
    Wortreihe reihe;
    reihe.name(r.ROVER_Dateiname).ganz(r.Anzahl_Namen());
    for (int i = 0; i < r.Anzahl_Namen(); ++i) reihe.name(r.TOREL_Dateiname[static_cast<std::size_t>(i)]);
    reihe.ganz(r.Status).wort(r.Schutz ? "1" : "0");
    return reihe.wort(r.Zeitfenster_Startzeit).wort(r.Zeitfenster_Endzeit).ganz(r.Grund).fertig();
}

std::string zeile(const std::string& dateiname)
{
    return als_wort(dateiname);
}

std::string zeile(const BASISLINIE_Satz& b)
{
    return Wortreihe().name(b.PKK_von).name(b.PKK_nach).name(b.Datei_von).name(b.Datei_nach).fertig();
}

std::string zeile(const ROVER_Settings_Satz& s)
{
    Wortreihe reihe;
    const int anzahl = std::clamp(s.AnzahlDelSatellite, 0, ROVER_Settings_Satz::max_satelliten);
    reihe.name(s.ROVER_Dateiname).ganz(s.Ein_Ausschalterkennung).ganz(anzahl);
    for (std::size_t i = 1; i <= static_cast<std::size_t>(anzahl); ++i)
        reihe.name(s.DelSatelliteName[i]).ganz(s.DelSatellite[i]);
    return reihe.ganz(s.DelFirstMinutes)
        .ganz(s.DelLastMinutes)
        .ganz(s.Elevation)
        .ganz(s.StartTime)
        .ganz(s.EpochRate)
        .ganz(s.Solution)
        .ganz(s.EndTime)
        .fertig();
}

std::string zeile(const ROVER_VIRT_Satz& v)
{
    return Wortreihe()
        .name(v.ROVER_Dateiname)
        .name(v.VIRT_Dateiname)
        .ganz(v.VIRT_Index)
        .wort(zahl_text(v.Strecke))
        .fertig();
}

// Takes sections into the image, those apart that the project has not read.
class Sektionsschreiber {
public:
    Sektionsschreiber(const Global& g, Profil& profil) : m_g(g), m_profil(profil) {}

    template <typename T>
    Sektionsschreiber& reihen(std::string_view sektion, const Feld<T>& feld)
    {
        if (bleibt(sektion)) return *this;
        int n = 1;
        const auto reihen = feld.anzahl() > 0 ? m_profil.reihen_anlegen(sektion) : m_profil.reihen(sektion);
        for (const auto& satz : feld) m_profil.reihe_setzen(reihen, n++, zeile(satz));
        for (; !m_profil.reihe(reihen, n).empty(); ++n) m_profil.reihe_setzen(reihen, n, "");
        return *this;
    }

    Sektionsschreiber& wert(std::string_view sektion, std::string_view schluessel, std::string_view wert)
    {
        if (!bleibt(sektion)) m_profil.setzen(sektion, schluessel, wert);
        return *this;
    }

private:
    bool bleibt(std::string_view sektion) const
    {
        return std::any_of(m_g.ungelesene_Sektionen.begin(), m_g.ungelesene_Sektionen.end(),
                           [&](const auto& name) { return gleich_ohne_gross(name, sektion); });
    }

    const Global& m_g;
    Profil& m_profil;
};

void kopf_schreiben(const Global& g, Sektionsschreiber& ziel)
{
    ziel.wert("VERFAHREN", "Versionsnummer", programm_version).wert("VERFAHREN", "Versionsdatum", programm_datum);
    ziel.wert("VERFAHREN", "Modus", g.Verfahrensmodus);
    if (const Verfahren_Satz* eintrag = aktuelles_Verfahren(g))
        ziel.wert("VERFAHREN", "ErstDatum", eintrag->ErstDatum)
            .wert("VERFAHREN", "LetztDatum", eintrag->LetztDatum)
            .wert("VERFAHREN", "Antenne", eintrag->Antenne);
    ziel.wert("GRUNDEINSTELLUNGEN", "Zeitfenster 1h", g.Zeitfenster_1h)
        .wert("GRUNDEINSTELLUNGEN", "Auswertemodus", g.Auswertemodus);
}

void alles_eintragen(const Global& g, Sektionsschreiber& ziel)
{
    kopf_schreiben(g, ziel);
    ziel.reihen("GEO", g.GEO_Punkt)
        .reihen("TOREL-OBS", g.OBS_S)
        .reihen("ROVER-OBS", g.OBS_R)
        .reihen("GRAPHIK-TOREL", g.S_Punkt)
        .reihen("GRAPHIK-ROVER", g.R_Punkt)
        .reihen("ROVER-TOREL", g.ROVER_TOREL)
        .reihen("RINEX-DATEIEN", g.RINEX_Dateien)
        .reihen("ANTENNEN-DATEIEN", g.Antennen_Dateien)
        .reihen("BASISLINIE", g.BASISLINIE);
    ziel.wert("GRAFIK-FENSTER", "Y-min", zahl_text(g.Y_min))
        .wert("GRAFIK-FENSTER", "Y-max", zahl_text(g.Y_max))
        .wert("GRAFIK-FENSTER", "X-min", zahl_text(g.X_min))
        .wert("GRAFIK-FENSTER", "X-max", zahl_text(g.X_max))
        .wert("GRAFIK-FENSTER", "Faktor", zahl_text(g.Faktor));
    ziel.reihen("ROVER-SETTINGS", g.ROVER_Settings);
    for (std::size_t i = 1; i < g.KNOTEN.size(); ++i) ziel.wert("KNOTEN", verkettet(i), g.KNOTEN[i]);
    ziel.reihen("FREMD-VIRT-OBS", g.OBS_V).reihen("GRAPHIK-FREMD-VIRT", g.V_Punkt).reihen("ROVER-VIRT", g.ROVER_VIRT);
}

}  // namespace

void Verfahren_eintragen(const Global& g, Profil& profil)
{
    Sektionsschreiber ziel(g, profil);
    alles_eintragen(g, ziel);
}

Fehler Verfahren_sichern(Global& g)
{
    if (trimmen(g.Verfahrensname).empty()) {
        stop_melden(g, "Fehler beim sichern der aktuellen Verfahrensdaten (kein Verfahrensname)!");
        return Fehler::gesetzt;
    }
    g.geo_fertig = true;
    if (!g.vollstaendig_gelesen) return Fehler::gesetzt;
    std::error_code fehler;
    Profil profil = Profil::aus_datei(g.dateien, g.Verfahrensdatei, fehler);
    if (!fehler) {
        Verfahren_eintragen(g, profil);
        fehler = profil.schreiben(g.dateien, g.Verfahrensdatei);
    }
    if (!fehler) return Fehler::keiner;
    stop_melden(
        g, datei_meldung("In die Verfahrensdatei: ", g.Verfahrensdatei, "konnt nicht fehlerfrei geschrieben werden!"));
    return Fehler::gesetzt;
}

}  // namespace jorv
