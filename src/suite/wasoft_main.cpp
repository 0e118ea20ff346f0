// Program wasoft: virtual station or baseline by the older call; the protocol goes to the standard output.

#include "plattform/uhr.h"
#include "suite/programm.h"
#include "suite/wasoft.h"

int main(int anzahl, char** argumente)
{
    using namespace jorv;
    suite::Protokoll protokoll;
    int status = 1;
    if (const auto worte = suite::worte(anzahl, argumente))
        status = suite::wasoft(*worte, suite::Arbeitsordner(), suite::Loeserumgebung{suite::loeserprogramm()},
                               Systemuhr(), protokoll);
    else
        protokoll.fehler(suite::FREMDE_ZEICHEN);
    suite::ausgeben(protokoll.text());
    return status;
}
