#include "planung/basislinien.h"

#include <algorithm>

#include "modell/Meldungen.h"
#include "plattform/text.h"

namespace jorv {

namespace {

Fehler basislinie_anfuegen(Global& g, const Basispaarung& art, const OBS& von, const OBS& nach)
{
    if (g.BASISLINIE.anfuegen({von.Punktkennzeichen, von.Dateiname, nach.Punktkennzeichen, nach.Dateiname}))
        return Fehler::keiner;
    stop_melden(g, dimensionierung_meldung(art.nummer, art.routine,
                                           verkettet("                                ReDim Preserve BASISLINIE(",
                                                     g.BASISLINIE.anzahl() + 1, ")")));
    return Fehler::gesetzt;
}

}  // namespace

bool bilden_basislinie(const OBS& a, const OBS& b)
{
    return std::max(a.Startzeit(), b.Startzeit()) < std::min(a.Endzeit(), b.Endzeit());
}

bool dateien_verbunden(const Global& g, std::string_view datei_a, std::string_view datei_b)
{
    return std::any_of(g.BASISLINIE.begin(), g.BASISLINIE.end(), [&](const BASISLINIE_Satz& b) {
        return (b.Datei_von == datei_a && b.Datei_nach == datei_b) ||
               (b.Datei_von == datei_b && b.Datei_nach == datei_a);
    });
}

bool punkte_verbunden(const Global& g, std::string_view punkt_a, std::string_view punkt_b)
{
    return std::any_of(g.BASISLINIE.begin(), g.BASISLINIE.end(), [&](const BASISLINIE_Satz& b) {
        return (b.PKK_von == punkt_a && b.PKK_nach == punkt_b) || (b.PKK_von == punkt_b && b.PKK_nach == punkt_a);
    });
}

Fehler basislinien_bilden(Global& g, const Basispaarung& art, std::string_view von, std::string_view nach)
{
    for (const OBS& a : g.OBS_R) {
        if (a.Punktkennzeichen != von) continue;
        for (const OBS& b : g.OBS_R) {
            if (b.Punktkennzeichen != nach || !bilden_basislinie(a, b)) continue;
            if (art.nur_neue && dateien_verbunden(g, a.Dateiname, b.Dateiname)) continue;
            if (ist_fehler(basislinie_anfuegen(g, art, a, b))) return Fehler::gesetzt;
        }
    }
    return Fehler::keiner;
}

std::string basislinie_name(const BASISLINIE_Satz& basislinie)
{
    return verkettet(basislinie.Datei_von, "-", basislinie.Datei_nach);
}

int Index_BASISLINIE(const Global& g, std::string_view name)
{
    for (int i = 1; i <= g.BASISLINIE.anzahl(); ++i)
        if (basislinie_name(g.BASISLINIE[i]) == name) return i;
    return 0;
}

}  // namespace jorv
