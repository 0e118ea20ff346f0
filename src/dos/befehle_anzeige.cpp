#include <unistd.h>

#include <cerrno>

#include "dos/befehle.h"
#include "dos/zeile.h"
#include "plattform/text.h"

namespace jorv::dos {

namespace {

bool ausgabe(const Stroeme& stroeme, std::string_view text)
{
    if (text_ausgeben(stroeme.aus, text)) return true;
    return melden(stroeme, u8"Die Ausgabe konnte nicht geschrieben werden."_w);
}

}  // namespace

bool befehl_echo(Umfeld& umfeld, const Stroeme& stroeme, std::string_view text)
{
    const std::string wort = klein(trimmen(text));
    if (wort.empty())
        return ausgabe(
            stroeme, umfeld.anzeige ? u8"ECHO ist eingeschaltet (ON).\r\n"_w : u8"ECHO ist ausgeschaltet (OFF).\r\n"_w);
    if (wort == "on" || wort == "off") {
        umfeld.anzeige = wort == "on";
        return true;
    }
    return ausgabe(stroeme, verkettet(text.substr(1), "\r\n"));
}

bool befehl_pause(Umfeld&, const Stroeme& stroeme, std::string_view)
{
    ausgabe(stroeme, u8"Weiter mit einer beliebigen Taste . . .\r\n"_w);
    char taste = 0;
    while (::read(stroeme.ein, &taste, 1) < 0 && errno == EINTR) {
    }
    return true;
}

bool befehl_path(Umfeld& umfeld, const Stroeme& stroeme, std::string_view text)
{
    if (trimmen(text).empty()) return ausgabe(stroeme, verkettet("PATH=", umfeld.suchpfad, "\r\n"));
    umfeld.suchpfad = ohne_trenner(text);
    return true;
}

}  // namespace jorv::dos
