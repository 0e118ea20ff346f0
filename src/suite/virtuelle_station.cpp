#include "suite/virtuelle_station.h"

#include <algorithm>

#include "plattform/text.h"
#include "plattform/zahl.h"
#include "suite/herkunft.h"
#include "suite/koordinaten.h"
#include "suite/netz.h"
#include "suite/netz_abgleich.h"
#include "suite/netz_modell.h"
#include "suite/rinex_schreiben.h"
#include "suite/spalten.h"
#include "suite/stationen.h"
#include "suite/uebertragung.h"

namespace jorv::suite {

namespace {

constexpr std::string_view PROGRAMM = "wav2 1.0";
constexpr double WEIT = 50000.0;  // metres; beyond it a displaced station rarely gives a fixed solution

constexpr double NETZLUECKEN = 0.4;  // share of the observations that a network may cost

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
    void uebertragen(RinexBeobachtung& daten);
    void abgleichen(const RinexBeobachtung& daten, Netz& netz, RinexBeobachtung& versuch);
    std::optional<Beobachtungsdatei> master_lesen();
    void glonass_bereitstellen();
    bool navigation_bereitstellen();
    Uebertragungsauftrag auftrag(const Netz& netz, std::optional<double> anteil) const;
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
    Uebertragungsbericht m_bericht;
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

// Without a share of the network's ionosphere there are no corrections at all.
Uebertragungsauftrag Lauf::auftrag(const Netz& netz, std::optional<double> anteil) const
{
    Uebertragungsauftrag u{Ort(m_master.ort),
                           Ort(m_virtuell),
                           m_aufruf.modell,
                           m_aufruf.elevation * GRAD,
                           m_bahnen,
                           m_glonass.saetze,
                           {},
                           nullptr};
    if (anteil) u.korrekturen = &netz.korrekturen;
    if (m_aufruf.ionosphaere) u.gefaelle = gefaelle(netz, u.von, u.nach, anteil.value_or(0.0));
    return u;
}

// A few stations don't see every wave, two none across their line: the rover tells how much of theirs serves it.
void Lauf::abgleichen(const RinexBeobachtung& daten, Netz& netz, RinexBeobachtung& versuch)
{
    Protokoll schon_gesagt;  // what the file's remarks are
    const auto rover = datei_lesen(m_ordner, m_aufruf.rover, Umfang::alles, schon_gesagt, m_spanne);
    if (!rover) return;
    RinexBeobachtung verschoben = daten;
    jorv::suite::uebertragen(verschoben, auftrag(netz, {}));
    const double anteil = netzanteil(rover->daten, verschoben, versuch);
    m_protokoll.zeile(verkettet(u8"  Anteil der Ionosphäre des Netzes  "_w, fest(anteil, 2)));
    for (Korrekturepoche& e : netz.korrekturen)
        for (Korrektur& k : e.werte) k = k.mit_anteil(anteil);
    versuch = daten;
    m_bericht = jorv::suite::uebertragen(versuch, auftrag(netz, anteil));
}

// With the network's corrections where they reach far enough for this master; else the station is a shifted one.
void Lauf::uebertragen(RinexBeobachtung& daten)
{
    Netz netz =
        netz_rechnen({m_stationen, m_virtuell, m_spanne, m_aufruf.antennendatei}, m_bahnen, m_ordner, m_protokoll);
    if (!m_aufruf.modelldatei.empty()) modell_ablegen(netz);
    if (!netz.korrekturen.empty()) {
        RinexBeobachtung versuch = daten;
        m_bericht = jorv::suite::uebertragen(versuch, auftrag(netz, 1.0));
        const auto verloren = static_cast<double>(m_bericht.ohne_netz);
        const double anteil = verloren / std::max(1.0, verloren + static_cast<double>(versuch.messungen.size()));
        if (anteil <= NETZLUECKEN) {
            abgleichen(daten, netz, versuch);
            daten = std::move(versuch);
            m_netz = std::move(netz);
            return;
        }
        m_protokoll.zeile(
            verkettet("Netz             nicht benutzt: ", fest(100.0 * anteil, 0), " % der Beobachtungen fehlten"));
    }
    m_bericht = jorv::suite::uebertragen(daten, auftrag(netz, {}));
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
    if (m_bericht.glonass > 0 && !m_ordner.schreiben(gnav, glonass_text(m_glonass)))
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
        m_protokoll.zeile(verkettet("  im Netz mit   ", namen, ", ohne Korrektur weggelassen: ", m_bericht.ohne_netz));
    }
    m_protokoll.zeile(verkettet("  Epochen        ", daten.epochen.size()));
    m_protokoll.zeile(verkettet("  Beobachtungen  ", daten.messungen.size(),
                                m_bericht.glonass > 0 ? verkettet(", davon GLONASS ", m_bericht.glonass) : ""));
    m_protokoll.zeile(verkettet("  unter ", m_aufruf.elevation, " Grad weggelassen: ", m_bericht.unter_maske));
    m_protokoll.zeile(verkettet("  ohne Bahn      ", m_bericht.ohne_bahn, ", ohne Code ", m_bericht.ohne_code));
    m_protokoll.zeile(
        verkettet("  Verschiebung   ", fest(m_bericht.kleinste, 3), " bis ", fest(m_bericht.groesste, 3), " m"));
    if (m_master.strecke > WEIT)
        m_protokoll.warnung(
            verkettet("Die Station ", m_master.name, " ist ", fest(m_master.strecke / 1000.0, 1), " km entfernt."));
}

bool Lauf::rechnen()
{
    if (!rover_lesen()) return false;
    auto daten = master_lesen();
    if (!daten || !navigation_bereitstellen()) return false;
    uebertragen(daten->daten);
    if (daten->daten.epochen.empty()) return abbruch("Kein Satellit mit Beobachtungen und Bahn im Zeitraum!");
    kopf_setzen(daten->daten, Ort(m_virtuell));
    berichten(daten->daten);
    return ausgeben(daten->daten);
}

}  // namespace

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
