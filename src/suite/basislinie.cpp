#include "suite/basislinie.h"

#include <algorithm>
#include <cmath>

#include "plattform/text.h"
#include "plattform/zahl.h"
#include "suite/ergebnistext.h"
#include "suite/felder.h"
#include "suite/herkunft.h"
#include "suite/koordinaten.h"
#include "suite/spalten.h"
#include "suite/stationen.h"
#include "suite/versuche.h"

namespace jorv::suite {

namespace {

constexpr std::string_view PROGRAMM = "wa2 1.0";
constexpr double GLEICHZEITIG = 0.1;      // s between the tags of a common epoch
constexpr double ZENIT_LAENGE = 10000.0;  // metres
constexpr double ZENIT_HOEHE = 100.0;     // metres
// What a network leaves of the zenith delay: freely estimated it would cost an hour's height two centimetres.
constexpr double ZENIT_NETZ = 0.003, ZENIT_GANG_NETZ = 2e-5;  // metres, metres per root of a second
constexpr int ZONE_WEIT = 6;                                  // degrees from the central meridian
constexpr double SEKUNDEN_JE_EPOCHE = 0.05;                   // time limit of the solver, far above what it needs
constexpr int SEKUNDEN_GRUND = 120;

class Lauf {
public:
    Lauf(const Wa2Aufruf& aufruf, const Arbeitsordner& ordner, const Loeserumgebung& umgebung, Protokoll& protokoll)
        : m_aufruf(aufruf), m_ordner(ordner), m_umgebung(umgebung), m_protokoll(protokoll)
    {
    }
    std::optional<Ergebnis> rechnen();

private:
    bool dateien_lesen();
    bool orte_pruefen();
    bool zeitraum_setzen();
    double takt_waehlen();
    std::size_t gemeinsame(double takt) const;
    bool antennen_suchen();
    std::optional<Antennenblock> antenne(std::string_view antex, const Beobachtungsdatei& datei, std::string& herkunft);
    bool kalibriert() const;
    bool auftrag_fuellen();
    std::optional<Ergebnis> loesen(const Loeser& loeser);
    Ergebnis ergebnis(const Fund& fund) const;
    bool abbruch(std::string_view grund)
    {
        m_protokoll.fehler(grund);
        return false;
    }

    const Wa2Aufruf& m_aufruf;
    const Arbeitsordner& m_ordner;
    Loeserumgebung m_umgebung;
    Protokoll& m_protokoll;
    Beobachtungsdatei m_basis, m_rover;
    double m_laenge = 0.0, m_hoehenunterschied = 0.0;  // of the real baseline
    bool m_netz = false;                               // the base is a virtual station that a network has corrected
    Loeserauftrag m_auftrag;
    std::string m_basis_kalibrierung = "keine", m_rover_kalibrierung = "keine";
};

bool Lauf::dateien_lesen()
{
    for (const bool basis : {true, false}) {
        const std::string& name = basis ? m_aufruf.basis : m_aufruf.rover;
        auto datei = datei_lesen(m_ordner, name, Umfang::epochen, m_protokoll);
        if (!datei) return false;
        std::string zeile = "Scan of RINEX file       ";
        zeile.append(name.size() < 12 ? 12 - name.size() : 0, ' ').append(name);
        m_protokoll.zeile(zeile);
        m_protokoll.zeile(verkettet("  actual epochs         ", datei->daten.epochen.size()));
        if (datei->daten.epochen.empty()) return abbruch(verkettet("Die Datei ", name, u8" enthält keine Epochen!"_w));
        (basis ? m_basis : m_rover) = std::move(*datei);
    }
    return true;
}

bool Lauf::orte_pruefen()
{
    const Koordinaten koordinaten(m_ordner, m_aufruf.koordinatendatei, m_protokoll);
    m_basis.daten.kopf.ort = koordinaten.ort(m_basis, m_protokoll);
    for (const Beobachtungsdatei* datei : {&m_basis, &m_rover})
        if (!ist_erdort(datei->daten.kopf.ort))
            return abbruch(verkettet("Die Datei ", datei->name, u8" enthält keine Näherungskoordinaten!"_w));
    const Xyz &basis = m_basis.daten.kopf.ort, &rover = m_rover.daten.kopf.ort;
    m_auftrag.solverlaenge = std::max(1.0, laenge(rover - basis));
    m_laenge = m_auftrag.solverlaenge;
    m_hoehenunterschied = geographisch(rover).hoehe - geographisch(basis).hoehe;
    if (const auto herkunft = herkunft_lesen(m_basis.daten.kopf.kommentar_virtuell)) {
        // The errors of the atmosphere are those of the real distance, however near the virtual station stands; a
        // network leaves no more of them than a short baseline has.
        m_laenge = std::max(m_laenge, herkunft->netz ? std::min(herkunft->strecke, KURZ) : herkunft->strecke);
        m_netz = herkunft->netz;
        m_hoehenunterschied += herkunft->hoehenunterschied;
        m_protokoll.zeile(verkettet("Virtuelle Station aus ", herkunft->station, ", ",
                                    fest(herkunft->strecke / 1000.0, 3), " km",
                                    herkunft->netz ? ", im Netz verbessert" : ""));
    }
    m_protokoll.zeile(verkettet(u8"Länge der Basislinie  "_w, fest(m_laenge / 1000.0, 3), u8" km, Höhenunterschied "_w,
                                fest(m_hoehenunterschied, 1), " m"));
    return true;
}

bool Lauf::zeitraum_setzen()
{
    const auto& epochen = m_rover.daten.epochen;
    m_auftrag.von = verschoben(epochen.front().zeit, m_aufruf.ohne_anfang * 60.0);
    m_auftrag.bis = verschoben(epochen.back().zeit, -m_aufruf.ohne_ende * 60.0);
    if (m_auftrag.bis < m_auftrag.von)
        return abbruch(u8"Nach dem Weglassen von Anfang und Ende bleibt vom Rover kein Zeitraum übrig!"_w);
    if (gemeinsame(0.0) == 0) return abbruch("Basis und Rover haben keine gemeinsamen Epochen!");
    m_auftrag.takt = takt_waehlen();
    m_protokoll.zeile(verkettet("Zeitraum des Rovers    ", zeittext(m_auftrag.von), " bis ", zeittext(m_auftrag.bis),
                                " (GPS)",
                                m_auftrag.takt > 0 ? verkettet(", Takt ", fest(m_auftrag.takt, 1), " s") : ""));
    std::string ohne;
    for (const std::string& satellit : m_aufruf.ohne_satelliten) ohne.append(" ").append(satellit);
    m_protokoll.zeile(verkettet("Mindestelevation       ", m_aufruf.elevation, " Grad",
                                ohne.empty() ? "" : ", ohne Satelliten", ohne));
    return true;
}

// Epochs of both files inside the span, on the grid when there is one.
std::size_t Lauf::gemeinsame(double takt) const
{
    const auto& basis = m_basis.daten.epochen;
    std::size_t anzahl = 0, stelle = 0;
    for (const Epoche& e : m_rover.daten.epochen) {
        if (e.zeit < m_auftrag.von || m_auftrag.bis < e.zeit) continue;
        while (stelle < basis.size() && abstand(basis[stelle].zeit, e.zeit) < -GLEICHZEITIG) ++stelle;
        if (stelle == basis.size() || abstand(basis[stelle].zeit, e.zeit) > GLEICHZEITIG) continue;
        const double sekunde = static_cast<double>(e.zeit.sekunde % 604800) + e.zeit.bruch;
        anzahl += takt <= 0 || std::abs(std::remainder(sekunde, takt)) < 0.02;
    }
    return anzahl;
}

// The solver would use a base epoch for several of the rover's when their intervals differ: both are thinned to one
// grid.
double Lauf::takt_waehlen()
{
    const double rover = m_rover.daten.intervall(), basis = m_basis.daten.intervall();
    const double takt = std::max({rover, basis, static_cast<double>(m_aufruf.takt)});
    if (std::abs(takt - rover) < 0.01 && std::abs(takt - basis) < 0.01) return 0.0;
    if (gemeinsame(takt) > 0) return takt;
    m_protokoll.warnung(
        verkettet("Keine Epoche liegt im Takt von ", fest(takt, 1), " s: alle Epochen werden benutzt."));
    return 0.0;
}

std::optional<Antennenblock> Lauf::antenne(std::string_view antex, const Beobachtungsdatei& datei,
                                           std::string& herkunft)
{
    const RinexKopf& kopf = datei.daten.kopf;
    auto block = antenne_suchen(antex, kopf.antennennummer, kopf.antennentyp, datei.daten.epochen.front().zeit);
    const std::string wer =
        verkettet("Antenne \"", kopf.antennennummer, "\" \"", kopf.antennentyp, "\" der Datei ", datei.name);
    if (!block) {
        m_protokoll.warnung(
            verkettet(wer, u8" fehlt in "_w, m_aufruf.antennendatei, ": keine Korrektur an diesem Punkt."));
        return {};
    }
    constexpr std::array<std::string_view, 4> WIE = {"nach der Nummer", "nach dem Typ", "nach dem Typ ohne Haube",
                                                     u8"nach einem anderen Stück"_w};
    herkunft = verkettet(m_aufruf.antennendatei, " Zeile ", block->zeile, ": ", block->name, ", ",
                         WIE[static_cast<std::size_t>(block->fund)]);
    m_protokoll.zeile(verkettet(wer, ": ", herkunft));
    if (block->anderer_typ)
        m_protokoll.warnung(
            verkettet(wer, ": unter dieser Nummer ist ein anderer Typ kalibriert (", block->name, ")."));
    if (block->fund == Antennenfund::ohne_haube)
        m_protokoll.warnung(verkettet(wer, ": nur ohne Haube kalibriert (", block->name, ")."));
    if (block->fund == Antennenfund::anderes_stueck)
        m_protokoll.warnung(verkettet(wer, u8": nur ein anderes Stück des Typs ist kalibriert ("_w, block->name, ")."));
    return block;
}

bool Lauf::antennen_suchen()
{
    if (m_aufruf.antennendatei.empty()) {
        m_protokoll.warnung("Keine Antennendatei angegeben: ohne Antennenkorrektur.");
        return true;
    }
    std::error_code fehler;
    const Abbild antex = m_ordner.lesen(m_aufruf.antennendatei, fehler);
    if (fehler)
        return abbruch(verkettet("Die Antennendatei ", m_aufruf.antennendatei, u8" konnte nicht geöffnet werden!"_w));
    m_auftrag.basis_antenne = antenne(antex.text(), m_basis, m_basis_kalibrierung);
    m_auftrag.rover_antenne = antenne(antex.text(), m_rover, m_rover_kalibrierung);
    return true;
}

// Two antennas of one type without calibrations cancel.
bool Lauf::kalibriert() const
{
    if (m_auftrag.basis_antenne && m_auftrag.rover_antenne) return true;
    const std::string& typ = m_rover.daten.kopf.antennentyp;
    return !m_auftrag.basis_antenne && !m_auftrag.rover_antenne && !typ.empty() &&
           gleich_ohne_gross(typ, m_basis.daten.kopf.antennentyp);
}

bool Lauf::auftrag_fuellen()
{
    std::error_code fehler_basis, fehler_rover;
    m_auftrag.basis_text = m_ordner.lesen(m_basis.name, fehler_basis);
    m_auftrag.rover_text = m_ordner.lesen(m_rover.name, fehler_rover);
    m_auftrag.basis_datei = m_ordner.host(m_basis.name);
    m_auftrag.rover_datei = m_ordner.host(m_rover.name);
    if (fehler_basis || fehler_rover) return abbruch("Die Beobachtungsdateien sind nicht mehr lesbar!");
    // A virtual station's type names no year while a batch works on it; its navigation file has the rover's.
    const std::string basis = verkettet(stamm(m_basis.name), rechts(m_rover.name, 4));
    const Navigation navigation = navigation_suchen(m_ordner, {m_basis.name, basis, m_rover.name}, false, m_protokoll);
    if (navigation.saetze.empty()) return abbruch("Keine Navigationsdatei gefunden!");
    m_auftrag.navigation_text = navigation_text(navigation);
    m_auftrag.basis = m_basis.daten.kopf;
    m_auftrag.rover = m_rover.daten.kopf;
    m_auftrag.elevation = m_aufruf.elevation;
    m_auftrag.ohne_satelliten = m_aufruf.ohne_satelliten;
    m_auftrag.zenit_schaetzen = m_laenge > ZENIT_LAENGE || std::abs(m_hoehenunterschied) > ZENIT_HOEHE;
    if (m_netz) {
        m_auftrag.zenit_sigma = ZENIT_NETZ;
        m_auftrag.zenit_gang = ZENIT_GANG_NETZ;
    }
    const auto epochen = static_cast<double>(m_rover.daten.epochen.size());
    m_umgebung.sekunden =
        std::min(m_umgebung.sekunden, SEKUNDEN_GRUND + static_cast<int>(SEKUNDEN_JE_EPOCHE * epochen));
    return true;
}

Ergebnis Lauf::ergebnis(const Fund& fund) const
{
    const Loeserausgabe& ausgabe = *fund.ausgabe;
    const Urteil& urteil = fund.urteil;
    const Position& p = fund.position;
    Ergebnis e;
    e.basis_datei = m_basis.name;
    e.rover_datei = m_rover.name;
    e.rover_marke = m_rover.daten.kopf.marke;
    e.basis = m_basis.daten.kopf.ort;
    e.rover = p.ort;
    e.zone = m_aufruf.zone;
    e.beginn = ausgabe.positionen.front().zeit;
    e.ende = ausgabe.positionen.back().zeit;
    const double takt = std::max({m_auftrag.takt, m_rover.daten.intervall(), m_basis.daten.intervall()});
    e.minuten = (abstand(e.ende, e.beginn) + takt) / 60.0;
    e.loesungstyp = fund.typ;
    genauigkeit_setzen(e, p);
    e.sigma0 = urteil.masse.s0 * SIGMA_PHASE;
    e.mehrdeutigkeiten = urteil.masse.mehrdeutigkeiten;
    e.satelliten = urteil.masse.satelliten;
    e.pdop_beste = urteil.masse.pdop_beste;
    e.pdop_mittel = urteil.masse.pdop_mittel;
    e.umgewichtet = urteil.masse.umgewichtet;
    e.epochen = ausgabe.positionen.size();
    e.epochen_fest = urteil.fest;
    e.verhaeltnis = p.verhaeltnis;
    e.antennenhoehe = m_rover.daten.kopf.antennenhoehe;
    e.antennentyp = m_rover.daten.kopf.antennentyp;
    e.basis_kalibrierung = m_basis_kalibrierung;
    e.rover_kalibrierung = m_rover_kalibrierung;
    return e;
}

std::optional<Ergebnis> Lauf::loesen(const Loeser& loeser)
{
    const auto hat_l2 = [](const Beobachtungsdatei& d) {
        return d.daten.kopf.arten[static_cast<std::size_t>(Art::L2)];
    };
    const bool zwei_frequenzen = hat_l2(m_basis) && hat_l2(m_rover);
    if (!zwei_frequenzen) m_protokoll.zeile("Nur eine Frequenz");
    if (m_aufruf.art == Loesungsart::l1 && m_laenge > MITTEL)
        m_protokoll.warnung(verkettet(u8"L1 ist für "_w, fest(m_laenge / 1000.0, 1), " km zu lang."));
    Versuchsreihe reihe(loeser, m_protokoll, kalibriert());
    auto fund = reihe.fest_loesen(plan(m_aufruf.art, m_laenge, zwei_frequenzen, m_netz));
    // Where no integers hold from a network's station, it has not caught the ionosphere.
    if (!fund) fund = reihe.offen_loesen(plan_offen(m_netz ? std::max(m_laenge, MITTEL) : m_laenge, zwei_frequenzen));
    if (fund) return ergebnis(*fund);
    m_protokoll.fehler(u8"Keine Lösung!"_w);
    return {};
}

std::optional<Ergebnis> Lauf::rechnen()
{
    if (!dateien_lesen() || !orte_pruefen() || !zeitraum_setzen() || !antennen_suchen() || !auftrag_fuellen())
        return {};
    const Loeser loeser(m_umgebung, m_auftrag);
    if (!loeser.hindernis().empty()) {
        m_protokoll.fehler(loeser.hindernis());
        return {};
    }
    auto ergebnis = loesen(loeser);
    if (!ergebnis) return {};
    const double meridian =
        std::remainder(geographisch(ergebnis->rover).laenge / GRAD - (6.0 * m_aufruf.zone - 183.0), 360.0);
    if (std::abs(meridian) > ZONE_WEIT)
        m_protokoll.warnung(verkettet(u8"Der Punkt liegt weit außerhalb der UTM-Zone "_w, m_aufruf.zone, "."));
    return ergebnis;
}

bool dateien_schreiben(const Wa2Aufruf& aufruf, const Arbeitsordner& ordner, const Ergebnis& ergebnis,
                       Protokoll& protokoll)
{
    const auto schreiben = [&](const std::string& name, const std::string& text) {
        if (ordner.schreiben(name, text)) return true;
        protokoll.fehler(verkettet("Die Datei ", name, " konnte nicht geschrieben werden!"));
        return false;
    };
    if (aufruf.nur_basislinie) return schreiben(aufruf.loesung_datei, basislinientext(ergebnis));
    if (!schreiben(aufruf.loesung_datei, loesungstext(ergebnis))) return false;
    return aufruf.felder.empty() || schreiben(aufruf.ext_datei, feldzeile(aufruf.felder, ergebnis) + "\r\n");
}

}  // namespace

int wa2(const Wa2Aufruf& aufruf, const Arbeitsordner& ordner, const Loeserumgebung& umgebung, const Uhr& uhr,
        Protokoll& protokoll)
{
    protokoll.zeile(
        verkettet(PROGRAMM, "  Basislinie ", aufruf.basis, " - ", aufruf.rover, "  ", datum_text(uhr.jetzt())));
    protokoll.zeile();
    bool gut = true;
    for (const std::string& alt : {aufruf.ext_datei, aufruf.loesung_datei}) {
        if (alt.empty() || ordner.loeschen(alt)) continue;
        protokoll.fehler(verkettet(u8"Die ältere Datei "_w, alt, u8" konnte nicht gelöscht werden!"_w));
        gut = false;
    }
    std::optional<Ergebnis> ergebnis;
    if (gut) ergebnis = Lauf(aufruf, ordner, umgebung, protokoll).rechnen();
    if (ergebnis) {
        protokoll.zeile();
        protokoll.zeile(ergebnistext(*ergebnis));
        protokoll.meldung(kurzmeldung(*ergebnis));
    }
    gut = ergebnis && dateien_schreiben(aufruf, ordner, *ergebnis, protokoll);
    if (!aufruf.protokoll_datei.empty() && !ordner.schreiben(aufruf.protokoll_datei, protokoll.text())) {
        protokoll.fehler(verkettet("Die Datei ", aufruf.protokoll_datei, " konnte nicht geschrieben werden!"));
        gut = false;
    }
    return gut ? 0 : 1;
}

}  // namespace jorv::suite
