// Program wav2: virtual reference station for a rover.

#include "plattform/text.h"
#include "plattform/uhr.h"
#include "suite/programm.h"
#include "suite/virtuelle_station.h"

int main(int anzahl, char** argumente)
{
    using namespace jorv;
    suite::speicher_behalten();
    suite::Protokoll protokoll;
    const suite::Arbeitsordner ordner;
    std::string grund(suite::FREMDE_ZEICHEN);
    const auto worte = suite::worte(anzahl, argumente);
    const auto aufruf = worte ? suite::wav2_aufruf(*worte, grund) : std::nullopt;
    int status = suite::FALSCHER_AUFRUF;
    if (aufruf) {
        status = suite::wav2(*aufruf, ordner, Systemuhr(), protokoll);
    } else {
        protokoll.fehler(verkettet("wav2: ", grund));
        (void)ordner.schreiben(suite::Wav2Aufruf{}.protokoll_datei, protokoll.text());
    }
    suite::ausgeben(protokoll.ausgabe());
    return status;
}
