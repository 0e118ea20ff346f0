#include "suite/washmod.h"

#include "plattform/text.h"

namespace jorv::suite {

int washmod(const Worte& worte, Protokoll& protokoll)
{
    if (worte.size() != 2 || worte[1] != "+Si")
        protokoll.fehler("washmod: washmod DATEI +Si");
    else
        protokoll.fehler(
            verkettet("washmod: der Index der Stunden aus ", worte[0], " kann noch nicht berechnet werden"));
    return 1;
}

}  // namespace jorv::suite
