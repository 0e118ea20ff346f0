#include "modell/Baum.h"

#include <array>
#include <unordered_set>

#include "modell/Gemeinsam.h"
#include "plattform/text.h"

namespace jorv {

namespace {

struct Knotenart {
    std::string_view schluessel, text;
    int slot;
    std::string_view modi;  // modes that have it; "0" stands for no project
};

constexpr std::array<Knotenart, 7> knotenarten = {{{"R_Datei", "ROVER-Dateien", 1, "01234"},
                                                   {"S_Datei", "TOREL-Dateien", 2, "12"},
                                                   {"A_Datei", "Antennen-Dateien", 3, "01234"},
                                                   {"E_Datei", "Berechnete ROVER-Dateien", 4, "123"},
                                                   {"V_Datei", "Virtuelle Referenzstationen", 5, "23"},
                                                   {"B_Datei", "Basislinien", 6, "4"},
                                                   {"BB_Datei", "Berechnete Basislinien", 7, "4"}}};

constexpr int bild_berechnet = 11, bild_aus = 9, bild_rot = 3, bild_gruen = 1;

// One listing of a result folder in place of a question for each rover.
class Ergebnisse {
public:
    Ergebnisse(const Global& g, std::string_view ordner)
    {
        for (const auto& eintrag : g.dateien.ordner_lesen(verkettet(g.Arbeitsverzeichnis, "\\jorv_out\\", ordner)))
            if (!eintrag.ordner) m_namen.insert(klein(eintrag.name));
    }
    bool hat(std::string_view name) const { return m_namen.contains(klein(name)); }

private:
    std::unordered_set<std::string> m_namen;
};

Hauptknoten* knoten(Baum& baum, std::string_view schluessel)
{
    for (auto& k : baum.Knoten)
        if (k.Schluessel == schluessel) return &k;
    return nullptr;
}

void kind(Baum& baum, std::string_view schluessel, std::string_view text, int bild = 0)
{
    if (Hauptknoten* eltern = knoten(baum, schluessel)) eltern->Kinder.push_back({std::string(text), bild});
}

void rover_eintragen(Global& g)
{
    const bool mit_ergebnis = knoten(g.baum, "E_Datei") != nullptr;
    const Ergebnisse ergebnisse(g, "dat_rov");
    for (int i = 1; i <= g.OBS_R.anzahl(); ++i) {
        const std::string& name = g.OBS_R[i].Dateiname;
        const int bild = rover_bild(g, i);
        if (mit_ergebnis && ergebnisse.hat(verkettet(name, ".UTM"))) {
            kind(g.baum, "E_Datei", name, bild_berechnet);
            continue;
        }
        kind(g.baum, "R_Datei", name, bild);
        if (bild == bild_gruen) ++g.berechnete_ROVER;
    }
}

void basislinien_eintragen(Global& g)
{
    const Ergebnisse protokolle(g, "prot_bas");
    for (const auto& b : g.BASISLINIE) {
        const std::string protokoll = verkettet(ohne_ende(b.Datei_von, 4), "-", ohne_ende(b.Datei_nach, 4), ".prt");
        kind(g.baum, protokolle.hat(protokoll) ? "BB_Datei" : "B_Datei", verkettet(b.Datei_von, "-", b.Datei_nach));
    }
}

}  // namespace

int rover_bild(const Global& g, int i)
{
    const bool aus = i <= g.ROVER_Settings.anzahl() && g.ROVER_Settings[i].Ein_Ausschalterkennung != 1;
    const bool ohne_kennzeichen = g.OBS_R[i].Punktkennzeichen.empty();
    if (ist_F(g)) {
        if (g.OBS_R.anzahl() != g.ROVER_VIRT.anzahl() || aus || ohne_kennzeichen) return bild_aus;
        return g.ROVER_VIRT[i].VIRT_Dateiname == "?" ? bild_rot : bild_gruen;
    }
    if (!ist_E_oder_S(g) || i > g.ROVER_TOREL.anzahl()) return bild_rot;
    if (aus || ohne_kennzeichen) return bild_aus;
    const int status = g.ROVER_TOREL[i].Status;
    return status >= 1 && status <= 3 ? status : bild_rot;
}

void rover_bild_setzen(Global& g, std::string_view rover, int bild)
{
    Hauptknoten* gruppe = knoten(g.baum, "R_Datei");
    if (!gruppe) return;
    for (auto& k : gruppe->Kinder) {
        if (k.Text != rover) continue;
        g.berechnete_ROVER += (bild == bild_gruen ? 1 : 0) - (k.Bild == bild_gruen ? 1 : 0);
        k.Bild = bild;
    }
    g.oberflaeche->baum_erneuern();
}

void knoten_oeffnen(Global& g, std::string_view schluessel, bool offen)
{
    Hauptknoten* gruppe = knoten(g.baum, schluessel);
    if (!gruppe) return;
    gruppe->offen = offen;
    g.KNOTEN[static_cast<std::size_t>(gruppe->KNOTEN)] = offen ? '1' : '0';
}

void baum_aufbauen(Global& g)
{
    g.baum.Knoten.clear();
    g.berechnete_ROVER = 0;
    const std::string modus = g.Verfahrensmodus.empty() ? "0" : g.Verfahrensmodus;
    for (const auto& art : knotenarten)
        if (art.modi.find(modus) != std::string_view::npos)
            g.baum.Knoten.push_back({std::string(art.schluessel),
                                     std::string(art.text),
                                     art.slot,
                                     g.KNOTEN[static_cast<std::size_t>(art.slot)] != "0",
                                     {}});
    if (g.OBS_R.anzahl() > 0) rover_eintragen(g);
    if (modus == "1")
        for (const auto& station : g.OBS_S) kind(g.baum, "S_Datei", station.Dateiname);
    if (modus == "3")
        for (const auto& station : g.OBS_V) kind(g.baum, "V_Datei", station.Dateiname);
    if (modus == "4") basislinien_eintragen(g);
    for (const auto& antenne : g.Antennen_Dateien) kind(g.baum, "A_Datei", antenne);
    g.oberflaeche->baum_erneuern();
}

}  // namespace jorv
