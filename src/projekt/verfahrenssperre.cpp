#include "projekt/verfahrenssperre.h"

#include "modell/Meldungen.h"
#include "plattform/pfad.h"
#include "plattform/text.h"

namespace jorv {

Fehler Verfahren_sperren(Global& g, std::string_view projektdatei, std::shared_ptr<const Sperre>& sperre)
{
    constexpr int wartezeit = 500;  // milliseconds; commands of a script come close behind each other
    sperre.reset();
    if (g.Verfahrenssperre && gleich_ohne_gross(g.Verfahrensdatei, projektdatei)) {
        sperre = g.Verfahrenssperre;
        return Fehler::keiner;
    }
    auto neu = std::make_shared<const Sperre>(g.dateien, projektdatei, wartezeit);
    // The open project's folder may have been moved away, its lock with it.
    if (neu->besetzt() && g.Verfahrenssperre && !g.dateien.vorhanden(g.Verfahrensdatei)) {
        sperre = g.Verfahrenssperre;
        return Fehler::keiner;
    }
    if (neu->besetzt()) {
        stop_melden(g, datei_meldung("Die Verfahrensdatei:", projektdatei,
                                     u8"ist gerade in einem anderen Programm zum Bearbeiten geöffnet!\n"
                                     u8"Das Verfahren dort zuerst schließen."_w));
        return Fehler::gesetzt;
    }
    if (neu->gehalten()) sperre = std::move(neu);
    return Fehler::keiner;
}

void reste_wegraeumen(const Global& g, std::string_view ordner)
{
    constexpr std::string_view endung = ".sperre";
    g.dateien.reste_wegraeumen(ordner);
    for (const auto& eintrag : g.dateien.ordner_lesen(ordner)) {
        const std::string_view name = eintrag.name;
        if (!name.starts_with('.') || !name.ends_with(endung)) continue;
        // Taken and given back it is gone, unless another program holds it.
        const Sperre frei(g.dateien, pfad_verbinden(ordner, mitte(ohne_ende(name, endung.size()), 2)), 0);
    }
}

}  // namespace jorv
