#include "suite/netz.h"

#include <algorithm>
#include <cmath>

#include "plattform/text.h"
#include "plattform/zahl.h"
#include "suite/stationen.h"

namespace jorv::suite {

namespace {

constexpr double RAND = 3600.0;         // s by which the stations are read beyond the span: longer arcs fix better
constexpr double HOECHSTGEWICHT = 1.5;  // sum of the weights' amounts; beyond it the plane is drawn out too far
constexpr double AUSSERHALB = 15000.0;  // metres from the network; farther out what it says is a guess

struct Gelesen {
    RinexBeobachtung daten;
    Ort ort;
    std::optional<Antennenblock> antenne;

    std::array<std::vector<Restepoche>, 2> gerechnet;  // with and without the calibration

    const std::vector<Restepoche>& reste(const Bahnen& bahnen, bool kalibriert)
    {
        auto& ziel = gerechnet[kalibriert ? 0 : 1];
        if (ziel.empty())
            ziel = stationsreste(daten, ort, Phasenzentrum(daten.kopf, kalibriert ? antenne : std::nullopt), bahnen);
        return ziel;
    }
};

class Netzlauf {
public:
    Netzlauf(const Netzauftrag& auftrag, const Bahnen& bahnen, const Arbeitsordner& ordner, Protokoll& protokoll)
        : m_auftrag(auftrag), m_bahnen(bahnen), m_ordner(ordner), m_protokoll(protokoll)
    {
        if (auftrag.antennendatei.empty()) return;
        std::error_code fehler;
        m_antex = ordner.lesen(auftrag.antennendatei, fehler);
    }
    Netz rechnen();

private:
    std::optional<Gelesen> lesen(const Netzstation& station);
    void paar(const Netzstation& station, Gelesen& master);
    void ablehnen(std::string_view grund) { m_protokoll.zeile(verkettet("Netz             nicht benutzt: ", grund)); }

    const Netzauftrag& m_auftrag;
    const Bahnen& m_bahnen;
    const Arbeitsordner& m_ordner;
    Protokoll& m_protokoll;
    Abbild m_antex;
    Netz m_netz;
};

std::optional<Gelesen> Netzlauf::lesen(const Netzstation& station)
{
    const Zeitspanne weit{verschoben(m_auftrag.spanne.von, -RAND), verschoben(m_auftrag.spanne.bis, RAND)};
    auto datei = station_lesen(m_ordner, station.dateien, weit, m_protokoll);
    if (!datei) return {};
    const RinexKopf& kopf = datei->daten.kopf;
    auto block =
        antenne_suchen(m_antex.text(), kopf.antennennummer, kopf.antennentyp, datei->daten.epochen.front().zeit);
    return Gelesen{std::move(datei->daten), Ort(station.ort), std::move(block), {}};
}

void Netzlauf::paar(const Netzstation& station, Gelesen& master)
{
    auto gelesen = lesen(station);
    if (!gelesen) {
        m_protokoll.warnung(verkettet("Die Station ", station.name, " hat im Zeitraum nicht beobachtet."));
        return;
    }
    // Without both calibrations only antennas of one type cancel; another one would look like a wrong height.
    const bool kalibriert = master.antenne && gelesen->antenne;
    if (!kalibriert && !gleich_ohne_gross(master.daten.kopf.antennentyp, gelesen->daten.kopf.antennentyp)) {
        m_protokoll.warnung(verkettet("Die Antenne von ", m_auftrag.stationen.front().name, " oder ", station.name,
                                      u8" ist nicht kalibriert: "_w, station.name, " ist nicht im Netz."));
        return;
    }
    Paar paar = paar_loesen(master.reste(m_bahnen, kalibriert), gelesen->reste(m_bahnen, kalibriert),
                            std::max(master.daten.intervall(), gelesen->daten.intervall()));
    const std::string wer = verkettet(m_auftrag.stationen.front().name, " - ", station.name);
    m_protokoll.zeile(
        verkettet("  ", wer, ", ", fest(laenge(station.ort - m_auftrag.stationen.front().ort) / 1000.0, 1),
                  " km: ", paar.fest, " von ", paar.boegen, u8" Mehrdeutigkeiten fest, Rest "_w, fest(paar.bruch, 3),
                  " Zyklen, Zenitunterschied ", fest(paar.zenit * 1000.0, 0), " mm, Ort um ",
                  fest(std::hypot(paar.versatz.e, paar.versatz.n) * 1000.0, 0), u8" mm, Höhe um "_w,
                  fest(paar.versatz.u * 1000.0, 0), " mm daneben: ", paar.brauchbar() ? "benutzt" : "abgelehnt"));
    if (!paar.brauchbar()) {
        m_protokoll.warnung(verkettet("Die Station ", station.name, " passt nicht zu ",
                                      m_auftrag.stationen.front().name,
                                      u8" (Koordinaten, Antenne oder Daten prüfen): nicht im Netz."_w));
        return;
    }
    m_netz.stationen.push_back({station.name, station.ort, std::move(paar)});
}

Netz Netzlauf::rechnen()
{
    const auto& stationen = m_auftrag.stationen;
    auto master = lesen(stationen.front());
    if (!master) return {};
    m_netz.ionosphaere = Ionosphaere(master->ort.blh, master->reste(m_bahnen, master->antenne.has_value()));
    m_protokoll.zeile(verkettet(u8"Ionosphäre über "_w, stationen.front().name, "  ",
                                fest(m_netz.ionosphaere.senkrecht(), 2), " m auf L1"));
    if (stationen.size() < 2) {
        ablehnen("nur eine Station");
        return std::move(m_netz);
    }
    m_protokoll.zeile("Netz, Festsetzung zwischen den Stationen");
    for (std::size_t i = 1; i < std::min(stationen.size(), NETZSTATIONEN); ++i) paar(stationen[i], *master);
    const auto& hilfen = m_netz.stationen;
    if (hilfen.empty()) {
        ablehnen(u8"keine zweite Station lässt sich festsetzen"_w);
        return std::move(m_netz);
    }
    std::vector<Xyz> orte;
    for (const Hilfsstation& h : hilfen) orte.push_back(h.ort);
    const Ort master_ort(stationen.front().ort);
    const auto gewichte = ebenengewichte(master_ort, m_auftrag.virtuell, orte);
    double summe = 0.0;
    for (std::size_t k = 0; k < gewichte.size(); ++k) {
        summe += std::abs(gewichte[k]);
        m_protokoll.zeile(verkettet("  Gewicht ", hilfen[k].name, " ", fest(gewichte[k], 3)));
    }
    if (summe > HOECHSTGEWICHT || abstand_vom_netz(master_ort, m_auftrag.virtuell, orte) > AUSSERHALB)
        ablehnen(u8"der Rover liegt zu weit außerhalb"_w);
    else
        m_netz.korrekturen = korrekturen(hilfen, gewichte);
    m_netz.gewichte = gewichte;
    return std::move(m_netz);
}

}  // namespace

Netz netz_rechnen(const Netzauftrag& auftrag, const Bahnen& bahnen, const Arbeitsordner& ordner, Protokoll& protokoll)
{
    return Netzlauf(auftrag, bahnen, ordner, protokoll).rechnen();
}

}  // namespace jorv::suite
