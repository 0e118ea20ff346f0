// Program washmod: its protocol goes to the standard output.

#include "suite/programm.h"
#include "suite/washmod.h"

int main(int anzahl, char** argumente)
{
    using namespace jorv;
    suite::Protokoll protokoll;
    int status = 1;
    if (const auto worte = suite::worte(anzahl, argumente))
        status = suite::washmod(*worte, suite::Arbeitsordner(), protokoll);
    else
        protokoll.fehler(suite::FREMDE_ZEICHEN);
    suite::ausgeben(protokoll.text());
    return status;
}
