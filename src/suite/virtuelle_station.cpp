#include "suite/virtuelle_station.h"

#include <algorithm>

#include "plattform/text.h"
#include "plattform/zahl.h"
#include "suite/koordinaten.h"
#include "suite/netz.h"
#include "suite/netz_modell.h"
#include "suite/rinex_schreiben.h"
#include "suite/spalten.h"
#include "suite/stationen.h"
#include "suite/verschiebung.h"

namespace jorv::suite {

namespace {

constexpr std::string_view PROGRAMM = "wav2 1.0";
constexpr double WEIT = 50000.0;  // metres; beyond it a displaced station rarely gives a fixed solution

constexpr std::string_view HERKUNFT_ANFANG = "VIRTUELLE STATION AUS ";

constexpr std::string_view HERKUNFT_NETZ = "NETZ";
constexpr double NETZLUECKEN = 0.4;  // share of the observations that a network may cost

struct Statistik {
    std::size_t ohne_bahn = 0, ohne_code = 0, unter_maske = 0, ohne_netz = 0, glonass = 0;
    double groesste = 0.0, kleinste = 0.0;
};

GpsZeit tageszeit(const GpsZeit& tag, int hhmmss)
{
    const int sekunde = hhmmss / 10000 * 3600 + hhmmss / 100 % 100 * 60 + hhmmss % 100;
    return {tag.sekunde / 86400 * 86400 + sekunde, 0.0};
}

double ueberdeckung(const Zeitspanne& a, const Zeitspanne& b)
{
    return std::min(abstand(a.bis, b.von), abstand(b.bis, a.von));
}

// The span to make: the rover's own, or the window of the call on the day on which it meets the rover's epochs.
std::optional<Zeitspanne> spanne_von(const Wav2Aufruf& aufruf, const Zeitspanne& rover)
{
    if (!aufruf.beginn && !aufruf.ende) return rover;
    const int beginn = aufruf.beginn.value_or(0), ende = aufruf.ende.value_or(235959);
    std::optional<Zeitspanne> beste;
    for (const double tag : {0.0, -86400.0, 86400.0}) {
        const GpsZeit basis = verschoben(rover.von, tag);
        Zeitspanne versuch{tageszeit(basis, beginn), tageszeit(basis, ende)};
        if (beginn > ende) versuch.bis = verschoben(versuch.bis, 86400.0);
        if (ueberdeckung(versuch, rover) < 0) continue;
        if (!beste || ueberdeckung(versuch, rover) > ueberdeckung(*beste, rover)) beste = versuch;
    }
    return beste;
}

double code(const Messung& m)
{
    for (const Art art : {Art::C1, Art::P1, Art::P2})
        if (m[art] != 0.0) return m[art];
    return 0.0;
}

/// The shift of an observation with the ionosphere's delay on L1 (metres of a code) and the frequencies of its phases.
struct Bewegt {
    Verschiebung um;
    double frequenz1 = FREQUENZ1, frequenz2 = FREQUENZ2;
    double iono = 0.0;
};

void verschieben(Messung& m, const Bewegt& bewegt)
{
    const double strecke = bewegt.um.strecke;
    const auto dazu = [&](Art art, double betrag) {
        double& wert = m.wert[static_cast<std::size_t>(art)];
        if (wert != 0.0) wert += betrag;
    };
    const auto iono = [&](double frequenz) { return bewegt.iono * FREQUENZ1 * FREQUENZ1 / (frequenz * frequenz); };
    const double iono1 = iono(bewegt.frequenz1), iono2 = iono(bewegt.frequenz2);
    for (const Art art : {Art::C1, Art::P1}) dazu(art, strecke + iono1);
    for (const Art art : {Art::C2, Art::P2}) dazu(art, strecke + iono2);
    dazu(Art::L1, (strecke - iono1) * bewegt.frequenz1 / LICHT);
    dazu(Art::L2, (strecke - iono2) * bewegt.frequenz2 / LICHT);
}

void verbessern(Messung& m, const Korrektur& k)
{
    const auto dazu = [&](Art art, double betrag) {
        double& wert = m.wert[static_cast<std::size_t>(art)];
        if (wert != 0.0) wert += betrag;
    };
    for (const Art art : {Art::C1, Art::P1}) dazu(art, k.code1());
    for (const Art art : {Art::C2, Art::P2}) dazu(art, k.code2());
    dazu(Art::L1, k.l1 * FREQUENZ1 / LICHT);
    dazu(Art::L2, k.l2 * FREQUENZ2 / LICHT);
}

class Lauf {
public:
    Lauf(const Wav2Aufruf& aufruf, const Arbeitsordner& ordner, const Uhr& uhr, Protokoll& protokoll)
        : m_aufruf(aufruf), m_ordner(ordner), m_uhr(uhr), m_protokoll(protokoll)
    {
    }
    bool rechnen();

private:
    bool rover_lesen();
    std::vector<Netzstation> kandidaten();
    void modell_ablegen(const Netz& netz);
    void netz_benutzen(const RinexBeobachtung& daten);
    void gefaelle_setzen(const Netz& netz, bool mit_stationen);
    std::optional<Beobachtungsdatei> master_lesen();
    void glonass_bereitstellen();
    bool navigation_bereitstellen();
    std::optional<Bewegt> bewegt(const Verschieber& verschieber, const Messung& m, const GpsZeit& zeit,
                                 double strecke) const;
    void uebertragen(RinexBeobachtung& daten, const Ort& von, const Ort& nach);
    void kopf_setzen(RinexBeobachtung& daten, const Ort& nach);
    bool ausgeben(const RinexBeobachtung& daten);
    void berichten(const RinexBeobachtung& daten);
    bool abbruch(std::string_view grund)
    {
        m_protokoll.fehler(grund);
        return false;
    }

    const Wav2Aufruf& m_aufruf;
    const Arbeitsordner& m_ordner;
    const Uhr& m_uhr;
    Protokoll& m_protokoll;
    const std::vector<std::string> m_namen = m_ordner.namen();
    Xyz m_virtuell;
    Zeitspanne m_spanne;
    Netzstation m_master;
    std::vector<Netzstation> m_stationen;  // by distance, from the master on
    Navigation m_navigation;
    Bahnen m_bahnen;
    Glonassnavigation m_glonass;
    std::optional<Netz> m_netz;
    Ionosphaerengefaelle m_gefaelle;
    Statistik m_statistik;
};

bool Lauf::rover_lesen()
{
    const auto rover = datei_lesen(m_ordner, m_aufruf.rover, Umfang::epochen, m_protokoll);
    if (!rover) return false;
    const RinexBeobachtung& daten = rover->daten;
    if (daten.epochen.empty()) return abbruch(verkettet("Die Datei ", m_aufruf.rover, u8" enthält keine Epochen!"_w));
    if (!ist_erdort(daten.kopf.ort))
        return abbruch(verkettet("Die Datei ", m_aufruf.rover, u8" enthält keine Näherungskoordinaten!"_w));
    const auto gerundet = [](double wert) { return std::round(wert * 1e4) / 1e4; };
    m_virtuell = {gerundet(daten.kopf.ort.x), gerundet(daten.kopf.ort.y), gerundet(daten.kopf.ort.z)};
    const auto spanne = spanne_von(m_aufruf, {daten.epochen.front().zeit, daten.epochen.back().zeit});
    if (!spanne) return abbruch(u8"Das Zeitfenster enthält keine Epochen des Rovers!"_w);
    m_spanne = *spanne;
    m_protokoll.zeile(verkettet("Rover            ", m_aufruf.rover));
    m_protokoll.zeile(
        verkettet("  Zeitraum       ", zeittext(m_spanne.von), " bis ", zeittext(m_spanne.bis), " (GPS)"));
    m_protokoll.zeile(
        verkettet("  Ort XYZ        ", fest(m_virtuell.x, 4), " ", fest(m_virtuell.y, 4), " ", fest(m_virtuell.z, 4)));
    return true;
}

std::vector<Netzstation> Lauf::kandidaten()
{
    const Koordinaten koordinaten(m_ordner, m_aufruf.koordinatendatei, m_protokoll);
    std::vector<Netzstation> alle;
    for (const std::string& station : m_aufruf.stationen) {
        Netzstation k{station, stationsdateien(m_namen, station, m_aufruf.rover, m_spanne), {}, 0.0};
        if (k.dateien.empty()) {
            m_protokoll.warnung(verkettet("Keine Beobachtungsdatei der Station ", station, u8" für diesen Tag."_w));
            continue;
        }
        const auto kopf = datei_lesen(m_ordner, k.dateien.front(), Umfang::kopf, m_protokoll);
        if (!kopf) continue;
        k.ort = koordinaten.ort(*kopf, m_protokoll);
        if (!ist_erdort(k.ort)) {
            m_protokoll.warnung(verkettet("Die Station ", station, " hat keine Koordinaten."));
            continue;
        }
        k.strecke = laenge(k.ort - m_virtuell);
        alle.push_back(std::move(k));
    }
    std::stable_sort(alle.begin(), alle.end(),
                     [](const Netzstation& a, const Netzstation& b) { return a.strecke < b.strecke; });
    return alle;
}

// The nearest station that has observed in the span.
std::optional<Beobachtungsdatei> Lauf::master_lesen()
{
    m_stationen = kandidaten();
    for (const Netzstation& k : m_stationen)
        m_protokoll.zeile(verkettet("Station          ", k.name, ", ", fest(k.strecke / 1000.0, 3), " km"));
    glonass_bereitstellen();
    const Systeme systeme = m_glonass.saetze.empty() ? Systeme::gps : Systeme::gps_glonass;
    while (!m_stationen.empty()) {
        m_master = m_stationen.front();
        auto daten = station_lesen(m_ordner, m_master.dateien, m_spanne, m_protokoll, systeme);
        if (daten) return daten;
        m_protokoll.warnung(verkettet("Die Station ", m_master.name, " hat im Zeitraum nicht beobachtet."));
        m_stationen.erase(m_stationen.begin());
    }
    m_protokoll.fehler("Keine Referenzstation mit Beobachtungen im Zeitraum!");
    return {};
}

void Lauf::glonass_bereitstellen()
{
    std::vector<std::string> dateien = {m_aufruf.rover};
    for (const Netzstation& k : m_stationen) dateien.insert(dateien.end(), k.dateien.begin(), k.dateien.end());
    m_glonass = glonass_suchen(m_ordner, dateien, m_protokoll);
}

bool Lauf::navigation_bereitstellen()
{
    std::vector<std::string> dateien = m_master.dateien;
    for (const std::string& station : m_aufruf.stationen)
        for (std::string& name : stationsdateien(m_namen, station, m_aufruf.rover, m_spanne))
            if (station != m_master.name) dateien.push_back(std::move(name));
    dateien.push_back(m_aufruf.rover);
    m_navigation = navigation_suchen(m_ordner, dateien, true, m_protokoll);
    if (m_navigation.saetze.empty()) return abbruch("Keine Navigationsdatei gefunden!");
    for (const Ephemeride& eph : m_navigation.saetze) m_bahnen[eph.satellit].push_back(eph);
    return true;
}

// Nothing for a satellite without an orbit.
std::optional<Bewegt> Lauf::bewegt(const Verschieber& verschieber, const Messung& m, const GpsZeit& zeit,
                                   double strecke) const
{
    if (m.satellit > GLONASS) {
        const Glonasssatz* satz = passender_satz(m_glonass.saetze, m.satellit, zeit);
        if (!satz) return {};
        return Bewegt{verschieber.rechnen(*satz, strecke), glonass_frequenz1(satz->kanal),
                      glonass_frequenz2(satz->kanal)};
    }
    const auto saetze = m_bahnen.find(m.satellit);
    const Ephemeride* eph = saetze == m_bahnen.end() ? nullptr : passende_ephemeride(saetze->second, m.satellit, zeit);
    if (!eph) return {};
    return Bewegt{verschieber.rechnen(*eph, strecke)};
}

void Lauf::uebertragen(RinexBeobachtung& daten, const Ort& von, const Ort& nach)
{
    const double maske = m_aufruf.elevation * GRAD;
    std::size_t behalten = 0;  // observations move forward in their own array
    for (Epoche& e : daten.epochen) {
        const Verschieber verschieber(von, nach, m_aufruf.modell, e.zeit);
        const std::size_t erste = behalten;
        for (std::size_t i = 0; i < e.anzahl; ++i) {
            Messung m = daten.messungen[e.erste + i];
            // The network knows GPS alone, and what it doesn't correct would spoil what it does.
            if (m.satellit > GLONASS && m_netz) continue;
            const double strecke = code(m);
            auto neu = strecke == 0.0 ? std::nullopt : bewegt(verschieber, m, e.zeit, strecke);
            m_statistik.ohne_code += strecke == 0.0;
            m_statistik.ohne_bahn += strecke != 0.0 && !neu;
            if (!neu) continue;
            m_statistik.unter_maske += neu->um.elevation < maske;
            if (neu->um.elevation < maske) continue;
            m_statistik.groesste = std::max(m_statistik.groesste, neu->um.strecke);
            m_statistik.kleinste = std::min(m_statistik.kleinste, neu->um.strecke);
            m_statistik.glonass += m.satellit > GLONASS;
            neu->iono = m_gefaelle.bei(neu->um.satellit, e.zeit);
            verschieben(m, *neu);
            if (m_netz) {
                const auto k = korrektur_bei(m_netz->korrekturen, e.zeit, m.satellit);
                m_statistik.ohne_netz += !k;
                if (!k) continue;
                verbessern(m, *k);
            }
            daten.messungen[behalten++] = m;
        }
        e.erste = erste;
        e.anzahl = behalten - erste;
    }
    daten.messungen.resize(behalten);
    std::erase_if(daten.epochen, [](const Epoche& e) { return e.anzahl == 0; });
}

// The model doesn't ask where the rover lies, so it may exist without corrections.
void Lauf::modell_ablegen(const Netz& netz)
{
    const auto zeilen = netzmodell(Ort(m_master.ort), netz.stationen, m_bahnen, m_spanne);
    if (zeilen.empty()) {
        m_protokoll.warnung(verkettet("Die Modelldatei ", m_aufruf.modelldatei,
                                      u8" braucht drei Stationen, die zueinander passen und nicht auf einer Linie "
                                      u8"liegen."_w));
        return;
    }
    std::string kopf = verkettet("Netz ", m_master.name);
    for (const Hilfsstation& h : netz.stationen) kopf.append(" ").append(h.name);
    if (m_ordner.schreiben(m_aufruf.modelldatei, modelltext(kopf, zeilen)))
        m_protokoll.zeile(verkettet("Modelldatei ", m_aufruf.modelldatei, ", ", zeilen.size(), " Zeilen"));
    else
        m_protokoll.fehler(verkettet("Die Datei ", m_aufruf.modelldatei, " konnte nicht geschrieben werden!"));
}

// Whether the network's corrections reach far enough for this master; else the station stays a shifted one.
void Lauf::netz_benutzen(const RinexBeobachtung& daten)
{
    Netz netz =
        netz_rechnen({m_stationen, m_virtuell, m_spanne, m_aufruf.antennendatei}, m_bahnen, m_ordner, m_protokoll);
    if (!m_aufruf.modelldatei.empty()) modell_ablegen(netz);
    gefaelle_setzen(netz, !netz.korrekturen.empty());
    if (netz.korrekturen.empty()) return;
    m_netz = std::move(netz);
    RinexBeobachtung versuch = daten;
    uebertragen(versuch, Ort(m_master.ort), Ort(m_virtuell));
    const auto verloren = static_cast<double>(m_statistik.ohne_netz);
    const double anteil = verloren / std::max(1.0, verloren + static_cast<double>(versuch.messungen.size()));
    m_statistik = {};
    if (anteil <= NETZLUECKEN) return;
    m_protokoll.zeile(
        verkettet("Netz             nicht benutzt: ", fest(100.0 * anteil, 0), " % der Beobachtungen fehlten"));
    gefaelle_setzen(*m_netz, false);
    m_netz.reset();
}

// What the stations' weights don't bring along: the layer at the virtual place less the layer at theirs.
void Lauf::gefaelle_setzen(const Netz& netz, bool mit_stationen)
{
    m_gefaelle = {};
    if (!m_aufruf.ionosphaere) return;
    m_gefaelle.schicht = netz.ionosphaere;
    double rest = 1.0;
    for (std::size_t k = 0; mit_stationen && k < netz.stationen.size(); ++k) {
        m_gefaelle.orte.push_back({Ort(netz.stationen[k].ort), -netz.gewichte[k]});
        rest -= netz.gewichte[k];
    }
    m_gefaelle.orte.push_back({Ort(m_master.ort), -rest});
    m_gefaelle.orte.push_back({Ort(m_virtuell), 1.0});
}

void Lauf::kopf_setzen(RinexBeobachtung& daten, const Ort& nach)
{
    RinexKopf& kopf = daten.kopf;
    const Herkunft herkunft{m_master.name, m_master.strecke, nach.blh.hoehe - Ort(m_master.ort).blh.hoehe,
                            m_netz.has_value()};
    kopf.kommentar_virtuell = herkunft_text(herkunft);
    kopf.marke = verkettet("virt", mitte(m_aufruf.rover, 1, 4));
    kopf.ort = nach.xyz;
}

bool Lauf::ausgeben(const RinexBeobachtung& daten)
{
    const std::string name = m_aufruf.virt + std::string(rechts(m_aufruf.rover, 4));
    const std::string text = beobachtung_text(daten, PROGRAMM, m_uhr.jetzt());
    const std::string nav = mit_art(name, 'n');
    if (!m_ordner.schreiben(nav, navigation_text(m_navigation)))
        return abbruch(verkettet("Die Datei ", nav, " konnte nicht geschrieben werden!"));
    if (!m_ordner.schreiben(name, text))
        return abbruch(verkettet("Die Datei ", name, " konnte nicht geschrieben werden!"));
    const std::string gnav = mit_art(name, 'g');
    if (m_statistik.glonass > 0 && !m_ordner.schreiben(gnav, glonass_text(m_glonass)))
        return abbruch(verkettet("Die Datei ", gnav, " konnte nicht geschrieben werden!"));
    m_protokoll.meldung(verkettet("Virtuelle Station ", name, " aus ", m_master.name, " (",
                                  fest(m_master.strecke / 1000.0, 3), " km)",
                                  m_netz ? verkettet(" im Netz mit ", m_netz->stationen.size(), " Stationen") : "",
                                  ", ", daten.epochen.size(), " Epochen"));
    return true;
}

void Lauf::berichten(const RinexBeobachtung& daten)
{
    m_protokoll.zeile(verkettet("Virtuelle Station, verschoben mit ", m_aufruf.modell == Troposphaerenmodell::voll
                                                                          ? u8"voller Troposphäre"_w
                                                                          : u8"vereinfachter Troposphäre"_w));
    if (m_netz) {
        std::string namen;
        for (const Hilfsstation& h : m_netz->stationen) namen += verkettet(" ", h.name);
        m_protokoll.zeile(
            verkettet("  im Netz mit   ", namen, ", ohne Korrektur weggelassen: ", m_statistik.ohne_netz));
    }
    m_protokoll.zeile(verkettet("  Epochen        ", daten.epochen.size()));
    m_protokoll.zeile(verkettet("  Beobachtungen  ", daten.messungen.size(),
                                m_statistik.glonass > 0 ? verkettet(", davon GLONASS ", m_statistik.glonass) : ""));
    m_protokoll.zeile(verkettet("  unter ", m_aufruf.elevation, " Grad weggelassen: ", m_statistik.unter_maske));
    m_protokoll.zeile(verkettet("  ohne Bahn      ", m_statistik.ohne_bahn, ", ohne Code ", m_statistik.ohne_code));
    m_protokoll.zeile(
        verkettet("  Verschiebung   ", fest(m_statistik.kleinste, 3), " bis ", fest(m_statistik.groesste, 3), " m"));
    if (m_master.strecke > WEIT)
        m_protokoll.warnung(
            verkettet("Die Station ", m_master.name, " ist ", fest(m_master.strecke / 1000.0, 1), " km entfernt."));
}

bool Lauf::rechnen()
{
    if (!rover_lesen()) return false;
    auto daten = master_lesen();
    if (!daten || !navigation_bereitstellen()) return false;
    const Ort von(m_master.ort), nach(m_virtuell);
    netz_benutzen(daten->daten);
    uebertragen(daten->daten, von, nach);
    if (daten->daten.epochen.empty()) return abbruch("Kein Satellit mit Beobachtungen und Bahn im Zeitraum!");
    kopf_setzen(daten->daten, nach);
    berichten(daten->daten);
    return ausgeben(daten->daten);
}

}  // namespace

std::string herkunft_text(const Herkunft& herkunft)
{
    std::string text(HERKUNFT_ANFANG);
    anhaengen_links(text, herkunft.station, 4);
    anhaengen_fest(text, herkunft.strecke, 11, 1);
    text.append(" m  DH");
    anhaengen_fest(text, herkunft.hoehenunterschied, 9, 1);
    text.append(" m");
    if (herkunft.netz) text.append(" ").append(HERKUNFT_NETZ);
    return text;
}

std::optional<Herkunft> herkunft_lesen(std::string_view kommentar)
{
    if (!kommentar.starts_with(HERKUNFT_ANFANG)) return {};
    const std::string_view rest = kommentar.substr(HERKUNFT_ANFANG.size());
    const auto strecke = spaltenzahl(spalten(rest, 4, 11)), hoehe = spaltenzahl(spalten(rest, 21, 9));
    if (!strecke || !hoehe) return {};
    return Herkunft{std::string(rest.substr(0, 4)), *strecke, *hoehe, spalten(rest, 33, 4) == HERKUNFT_NETZ};
}

int wav2(const Wav2Aufruf& aufruf, const Arbeitsordner& ordner, const Uhr& uhr, Protokoll& protokoll)
{
    protokoll.zeile(verkettet(PROGRAMM, "  Virtuelle Referenzstation  ", datum_text(uhr.jetzt())));
    protokoll.zeile();
    bool gut = true;
    for (const char art : {'o', 'n', 'g'}) {
        const std::string alt = mit_art(verkettet(aufruf.virt, rechts(aufruf.rover, 4)), art);
        gut = gut && ordner.loeschen(alt);
    }
    if (!aufruf.modelldatei.empty()) gut = ordner.loeschen(aufruf.modelldatei) && gut;
    if (!gut) protokoll.fehler(u8"Eine ältere virtuelle Station konnte nicht gelöscht werden!"_w);
    gut = gut && Lauf(aufruf, ordner, uhr, protokoll).rechnen();
    if (!ordner.schreiben(aufruf.protokoll_datei, protokoll.text())) {
        protokoll.fehler(verkettet("Die Datei ", aufruf.protokoll_datei, " konnte nicht geschrieben werden!"));
        gut = false;
    }
    return gut ? 0 : 1;
}

}  // namespace jorv::suite
