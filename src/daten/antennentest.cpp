#include "daten/antennentest.h"

#include <algorithm>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "daten/antennen_text.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"

namespace jorv {

namespace {

// The state of one test.
class Test {
public:
    Test(Global& g, int listengrenze)
        : m_g(&g),
          m_atx(Antennenformat(g) != "APC"),
          m_antennenpfad(Verfahrens_Datei(g, "." + Antennenformat(g))),
          m_koordinatenpfad(Verfahrens_Datei(g, ".COO")),
          m_protokollpfad(Verfahrens_Datei(g, ".KRZ"))
    {
        m_liste.grenze_setzen(listengrenze);
    }
    bool laufen();

private:
    bool melden(std::string_view text)
    {
        stop_melden(*m_g, text);
        return false;
    }
    bool dateien_lesen();
    std::optional<std::string> oeffnen(std::string_view kopf, const std::string& pfad);
    bool koordinaten_pruefen();
    void rover_pruefen_einer(int i);
    bool gefunden(const OBS& rover) const;
    bool protokoll_schreiben();
    bool liste_sammeln();
    bool in_liste(const std::string& antenne, int nummer);
    void protokollieren(std::string_view zeile);
    std::vector<int> rover_im_baum() const;

    Global* m_g;
    bool m_atx;
    std::string m_antennenpfad, m_koordinatenpfad, m_protokollpfad;
    std::vector<std::string> m_koordinaten;  // names of the coordinate file
    std::vector<Antennenname> m_antennen;
    std::unordered_set<std::string> m_nummern, m_typmittel;  // trimmed
    std::string m_protokoll;
    Feld<std::string> m_liste;
};

std::optional<std::string> Test::oeffnen(std::string_view kopf, const std::string& pfad)
{
    Gelesen datei = m_g->dateien.lesen_stufenweise(pfad);
    if (datei.gut()) return std::move(datei.text);
    melden(datei_meldung(kopf, pfad,
                         !m_g->dateien.vorhanden(pfad)           ? "konnte nicht gefunden werden!"
                         : datei.stufe == Dateistufe::schliessen ? "konnte nicht richtig geschlossen werden!"
                                                                 : "konnte nicht richtig gelesen werden!"));
    return std::nullopt;
}

bool Test::dateien_lesen()
{
    if (!m_atx) {
        const auto inhalt = oeffnen("Die Koordinatendatei:", m_koordinatenpfad);
        if (!inhalt) return false;
        Zeilenleser zeilen(*inhalt);
        while (const auto zeile = zeilen.naechste()) m_koordinaten.emplace_back(mitte(*zeile, 42, 20));
    }
    const auto inhalt = oeffnen("Die Antennendatei:", m_antennenpfad);
    if (!inhalt) return false;
    m_antennen = m_atx ? antennennamen_atx(*inhalt) : antennennamen_apc(*inhalt);
    const auto leer = [this](std::string_view kopf, const std::string& pfad) {
        return melden(datei_meldung(kopf, pfad, u8"enthält nicht eine einzige Antennenbezeichnung!"_w));
    };
    if (!m_atx && m_koordinaten.empty()) return leer("Die Koordinatendatei:", m_koordinatenpfad);
    if (m_antennen.empty()) return leer("Die Antennendateidatei:", m_antennenpfad);
    for (const auto& antenne : m_antennen) {
        const std::string nummer(trimmen(antenne.Nummer));
        m_nummern.insert(nummer);
        if (m_atx && nummer.empty()) m_typmittel.emplace(trimmen(antenne.Typ));
    }
    return true;
}

void Test::protokollieren(std::string_view zeile)
{
    if (m_protokoll.empty())
        m_protokoll =
            verkettet("Fehler beim Abgleich der Antennen-Daten zwischen:\r\n",
                      "-------------------------------------------------\r\n\r\nKoordinatendatei: ", m_koordinatenpfad,
                      "\r\nund\r\nAntennendatei:    ", m_antennenpfad, "\r\n\r\n");
    m_protokoll += zeile;
    m_protokoll += "\r\n";
}

// Every antenna of the coordinate file once and only once; the protocol tells the others.
bool Test::koordinaten_pruefen()
{
    std::size_t gesamt = 0;
    std::vector<int> treffer;
    for (const auto& name : m_koordinaten) {
        const auto zahl = std::count_if(m_antennen.begin(), m_antennen.end(),
                                        [&name](const Antennenname& antenne) { return antenne.Nummer == name; });
        treffer.push_back(static_cast<int>(zahl));
        gesamt += static_cast<std::size_t>(zahl);
    }
    if (gesamt == m_koordinaten.size()) return true;
    for (std::size_t i = 0; i < treffer.size(); ++i) {
        const std::string kopf = verkettet("Die Antennenbezeichnung: \"", m_koordinaten[i], "\" ist ");
        if (treffer[i] == 0) protokollieren(kopf + "nicht in der Antennendatei vorhanden!");
        if (treffer[i] > 1)
            protokollieren(verkettet(kopf, "mehrfach(", treffer[i], "x) in der Antennendatei vorhanden!"));
    }
    return protokoll_schreiben() && false;
}

// The rovers of the tree, in its order.
std::vector<int> Test::rover_im_baum() const
{
    std::vector<int> indizes;
    const Hauptknoten* knoten = m_g->baum.finden("R_Datei");
    if (!knoten) return indizes;
    for (const auto& kind : knoten->Kinder)
        if (const int i = Index_OBS_R(*m_g, kind.Text); i != 0 && rover_zaehlt(*m_g, i)) indizes.push_back(i);
    return indizes;
}

bool Test::gefunden(const OBS& rover) const
{
    const std::string gesucht(trimmen(m_atx ? links(rover.Antenne, 20) : rechts(rover.Antenne, 20)));
    if (m_nummern.contains(gesucht)) return true;
    return m_atx && m_g->Typkalibrierung == "J" &&
           m_typmittel.contains(std::string(trimmen(rechts(rover.Antenne, 20))));
}

void Test::rover_pruefen_einer(int i)
{
    const OBS& rover = m_g->OBS_R[i];
    if (gefunden(rover)) return;
    const auto gesucht = trimmen(m_atx ? links(rover.Antenne, 20) : rechts(rover.Antenne, 20));
    protokollieren(verkettet("Die Antennennummer: \"", gesucht, "\" der ROVER-Datei: \"", rover.Dateiname,
                             "\" ist nicht in der Antennendatei vorhanden!"));
}

// Puts the protocol on the disk and shows the closing message.
bool Test::protokoll_schreiben()
{
    const auto gescheitert = [this](std::string_view kopf, std::string_view ende) {
        return melden(datei_meldung(kopf, m_protokollpfad, ende));
    };
    switch (m_g->dateien.schreiben_stufenweise(m_protokollpfad, m_protokoll)) {
        case Dateistufe::gut:
            break;
        case Dateistufe::oeffnen:
            return gescheitert("Die Kurzprotokolldatei:", u8"konnte nicht geöffnet werden!"_w);
        case Dateistufe::schliessen:
            return gescheitert("Die Kurzprotokolldatei:", "konnte nicht richtig geschlossen werden!");
        default:
            return gescheitert("In die Kurzprotokolldateidatei:", "konnte nicht richtig geschrieben werden!");
    }
    melden("Fehler beim Abgleich der Antennendaten!\n(siehe Kurzprotokolldatei)");
    return true;
}

bool Test::in_liste(const std::string& antenne, int nummer)
{
    if (std::find(m_liste.begin(), m_liste.end(), antenne) != m_liste.end() || m_liste.anfuegen(antenne)) return true;
    return melden(dimensionierung_meldung(nummer, "antennendatentest",
                                          verkettet("    ReDim Preserve antennenliste(", m_liste.anzahl(), ")")));
}

bool Test::liste_sammeln()
{
    if (!m_liste.groesse_setzen(0))
        return melden(dimensionierung_meldung(82, "antennendatentest", "    ReDim antennenliste(0)"));
    for (const int i : rover_im_baum()) {
        const OBS& rover = m_g->OBS_R[i];
        if (!in_liste(rover.Antenne, 83)) return false;
        if (ist_F(*m_g)) {
            const int v = Index_OBS_V(*m_g, m_g->ROVER_VIRT[i].VIRT_Dateiname);
            if (v != 0 && !in_liste(m_g->OBS_V[v].Antenne, 84)) return false;
            continue;
        }
        const auto& zuordnung = m_g->ROVER_TOREL[i];
        for (int n = 0; n < zuordnung.Anzahl_Namen(); ++n) {
            const int s = Index_OBS_S(*m_g, zuordnung.TOREL_Dateiname[static_cast<std::size_t>(n)]);
            if (s != 0 && !in_liste(m_g->OBS_S[s].Antenne, 84)) return false;
        }
    }
    m_g->antennenliste.assign(m_liste.begin(), m_liste.end());
    return true;
}

bool Test::laufen()
{
    m_g->antennenliste.clear();
    if (!dateien_lesen()) return false;
    if (!m_atx && !koordinaten_pruefen()) return false;
    for (const int i : rover_im_baum()) rover_pruefen_einer(i);
    const bool fehlt_etwas = !m_protokoll.empty();
    if (fehlt_etwas && !protokoll_schreiben()) return false;
    return liste_sammeln() && !fehlt_etwas;
}

}  // namespace

Fehler antennendatentest(Global& g, int listengrenze)
{
    return Test(g, listengrenze).laufen() ? Fehler::keiner : Fehler::gesetzt;
}

}  // namespace jorv
