#include <string>

#include "konsole/Befehle.h"
#include "konsole/Lage.h"

namespace jorv {

namespace {

Ausgang hilfe(Lage& lage)
{
    if (lage.aufruf.worte.empty()) {
        lage.aus << hilfe_uebersicht();
        return Ausgang::gut;
    }
    // "katalog" alone names a family of commands.
    const std::string name =
        lage.aufruf.worte.size() > 1 ? verkettet(lage.wort(0), " ", lage.wort(1)) : std::string(lage.wort(0));
    bool gefunden = false;
    for (const Befehl* befehl : alle_befehle()) {
        if (befehl->name != name && !befehl->name.starts_with(name + " ")) continue;
        lage.aus << (gefunden ? "\n" : "") << befehl_zeile(*befehl) << "\n\n"
                 << befehl->zweck << "\n\nBeispiel:\n  " << befehl->beispiel << '\n';
        gefunden = true;
    }
    return gefunden ? Ausgang::gut : lage.falsch("Den Befehl " + name + " gibt es nicht.");
}

constexpr Befehl befehle[] = {
    {"hilfe",
     "[BEFEHL]",
     "sagt, was ein Befehl tut, mit einem Beispiel",
     "jorv hilfe rinex",
     0,
     2,
     {},
     Grundlage::nichts,
     hilfe},
};

}  // namespace

std::span<const Befehl> befehle_hilfe()
{
    return befehle;
}

}  // namespace jorv
