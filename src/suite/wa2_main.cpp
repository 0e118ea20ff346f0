// Program wa2: baseline from a reference station, real or virtual, to a rover.

#include "plattform/text.h"
#include "plattform/uhr.h"
#include "suite/basislinie.h"
#include "suite/programm.h"

int main(int anzahl, char** argumente)
{
    using namespace jorv;
    suite::speicher_behalten();
    suite::Protokoll protokoll;
    std::string grund(suite::FREMDE_ZEICHEN);
    const auto worte = suite::worte(anzahl, argumente);
    const auto aufruf = worte ? suite::wa2_aufruf(*worte, grund) : std::nullopt;
    int status = suite::FALSCHER_AUFRUF;
    if (aufruf) {
        const suite::Loeserumgebung umgebung{suite::loeserprogramm()};
        status = suite::wa2(*aufruf, suite::Arbeitsordner(), umgebung, Systemuhr(), protokoll);
    } else {
        protokoll.fehler(verkettet("wa2: ", grund));
    }
    suite::ausgeben(protokoll.ausgabe());
    return status;
}
