// Program wa2: baseline from a reference station, real or virtual, to a rover.

#include <algorithm>

#include "plattform/text.h"
#include "plattform/uhr.h"
#include "plattform/zeitgrenze.h"
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
        // The interpreter that runs the batch ends this program at the limit, and nobody would be told why.
        const auto sekunden = static_cast<int>(zeitgrenze().count());
        const suite::Loeserumgebung umgebung{suite::loeserprogramm(), sekunden - std::max(1, sekunden / 10)};
        status = suite::wa2(*aufruf, suite::Arbeitsordner(), umgebung, Systemuhr(), protokoll);
    } else {
        protokoll.fehler(verkettet("wa2: ", grund));
    }
    suite::ausgeben(protokoll.ausgabe());
    return status;
}
