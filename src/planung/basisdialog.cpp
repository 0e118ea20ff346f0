#include "planung/basisdialog.h"

#include <algorithm>

#include "modell/Baum.h"
#include "planung/basislinien.h"

namespace jorv {

namespace {

constexpr Basispaarung aus_dialog = {87, "cmd_definieren_Click", false};

const std::string& punkt(const Basisdialog& d, int eintrag)
{
    return d.Punkte[static_cast<std::size_t>(eintrag)];
}

void zeichen_erneuern(const Global& g, Basisdialog& d)
{
    if (d.von == d.nach) {
        d.zeichen = d.von < 0 ? Basiszeichen::keines : Basiszeichen::gleich;
        return;
    }
    const bool verbunden = punkte_verbunden(g, punkt(d, d.von), punkt(d, d.nach));
    d.zeichen = verbunden ? Basiszeichen::verbunden : Basiszeichen::unverbunden;
    d.cmd_definieren_frei = !verbunden;
}

}  // namespace

Basisdialog basisdialog_oeffnen(const Global& g)
{
    Basisdialog d;
    for (const OBS& obs : g.OBS_R)
        if (std::find(d.Punkte.begin(), d.Punkte.end(), obs.Punktkennzeichen) == d.Punkte.end())
            d.Punkte.push_back(obs.Punktkennzeichen);
    if (!d.Punkte.empty()) d.von = d.nach = 0;
    zeichen_erneuern(g, d);
    return d;
}

void basisdialog_waehlen(const Global& g, Basisdialog& d, int von, int nach)
{
    const int anzahl = static_cast<int>(d.Punkte.size());
    if (std::min(von, nach) < 0 || std::max(von, nach) >= anzahl) return;
    d.von = von;
    d.nach = nach;
    zeichen_erneuern(g, d);
}

Fehler cmd_definieren(Global& g, Basisdialog& d)
{
    if (!d.cmd_definieren_frei) return Fehler::keiner;
    const Fehler fehler = basislinien_bilden(g, aus_dialog, punkt(d, d.von), punkt(d, d.nach));
    zeichen_erneuern(g, d);
    baum_aufbauen(g);
    g.oberflaeche->karte_zeichnen(false);
    return fehler;
}

}  // namespace jorv
