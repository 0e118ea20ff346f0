// Program WATIME: date and GPS time on one line.

#include <cstdio>

#include "suite/programm.h"
#include "suite/watime.h"

int main(int anzahl, char** argumente)
{
    using namespace jorv::suite;
    const auto liste = worte(anzahl, argumente);
    const auto zeile = liste ? watime(*liste) : std::nullopt;
    if (!zeile) {
        std::fputs("ERROR: WATIME JAHR MONAT TAG STUNDE MINUTE SEKUNDE oder WATIME WOCHE/TAG, ab 6.1.1980\n", stderr);
        return 1;
    }
    ausgeben(*zeile + "\r\n");
    return 0;
}
