// Program waprt: rows of a result protocol.

#include <cstdio>

#include "plattform/text.h"
#include "suite/programm.h"
#include "suite/waprt.h"

int main(int anzahl, char** argumente)
{
    using namespace jorv;
    suite::Ausdruck ausdruck{1, {}, verkettet("ERROR: waprt: ", suite::FREMDE_ZEICHEN, "\r\n")};
    if (const auto worte = suite::worte(anzahl, argumente)) ausdruck = suite::waprt(*worte, suite::Arbeitsordner());
    suite::ausgeben(ausdruck.zeilen);
    std::fwrite(ausdruck.fehler.data(), 1, ausdruck.fehler.size(), stderr);
    return ausdruck.status;
}
