#include "konsole/programm.h"

#include "konsole/Befehle.h"
#include "konsole/Lage.h"

namespace jorv {

int programm(const Konsole& konsole, std::span<const std::string> worte)
{
    const auto [aufruf, fehler] = aufruf_lesen(worte, alle_befehle());
    if (!fehler.empty()) {
        konsole.err << fehler << '\n';
        if (aufruf.befehl)
            konsole.err << "Aufruf: " << befehl_zeile(*aufruf.befehl) << '\n';
        else
            konsole.err << hilfe_uebersicht();
        return static_cast<int>(Ausgang::falscher_aufruf);
    }
    Konsolenschirm schirm(konsole.aus, konsole.err, {aufruf.antwort, konsole.terminal}, konsole.abbruch);
    const Systemuhr uhr;
    Global g(schirm, uhr, Dateisystem());
    Lage lage{aufruf, schirm, g, konsole.aus, konsole.err};
    return static_cast<int>(aufruf.befehl->ausfuehren(lage));
}

}  // namespace jorv
