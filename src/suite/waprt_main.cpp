// Program waprt: rows of a result protocol.

#include "plattform/text.h"
#include "suite/programm.h"
#include "suite/waprt.h"

int main(int anzahl, char** argumente)
{
    using namespace jorv;
    suite::Ausdruck ausdruck{1, {}, verkettet("ERROR: waprt: ", suite::FREMDE_ZEICHEN, "\r\n")};
    if (const auto worte = suite::worte(anzahl, argumente)) ausdruck = suite::waprt(*worte, suite::Arbeitsordner());
    suite::ausgeben(ausdruck.zeilen);
    suite::ausgeben(ausdruck.fehler, stderr);
    return ausdruck.status;
}
