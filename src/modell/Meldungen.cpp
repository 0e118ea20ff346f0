#include "modell/Meldungen.h"

#include "plattform/text.h"

namespace jorv {

void stop_melden(Global& g, std::string_view text)
{
    g.oberflaeche->meldung(Symbol::stop, text);
}

std::string wort_meldung(const Wertname& wert, Wortfehler fehler, std::string_view datei, int zeile)
{
    const std::string kopf = fehler == Wortfehler::konvertierung ? verkettet(wert.konvertierung, " in der Datei:")
                             : fehler == Wortfehler::fehlt       ? verkettet(wert.fehlt, " fehlt in der Datei:")
                                                           : verkettet(wert.fehlerhaft, " fehlerhaft in der Datei:");
    return verkettet(kopf, "\n", datei, "\nin Zeile: ", zeile, "\n\n", u8"Datei überprüfen und ggf. neu versuchen!"_w);
}

std::string dimensionierung_meldung(int nummer, std::string_view routine, std::string_view anweisung,
                                    std::string_view luecke, std::string_view schluss)
{
    return verkettet("Dimensionierungsfehler!", luecke, "(", nummer, " in ", routine, ")\n", anweisung,
                     "\nevtl. Speicherplatzprobleme", schluss, "\n\n",
                     u8"Offene Anwendungen schließen und erneut versuchen!"_w);
}

std::string datei_meldung(std::string_view kopf, std::string_view pfad, std::string_view ende)
{
    return verkettet(kopf, "\n", pfad, "\n", ende);
}

}  // namespace jorv
