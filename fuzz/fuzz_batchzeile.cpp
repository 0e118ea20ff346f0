// How a line of a batch file is taken apart.
#include "dos/zeile.h"
#include "ziel.h"

using namespace jorv;
using namespace jorv::dos;

JORV_ZIEL(batchzeile)
{
    static const std::vector<std::string> argumente_der_batch = {"Z:\\a.bat", "eins", "zwei drei"};
    const std::string zeile = ausdehnen(
        bytes, [](std::string_view name) { return std::string(name); }, argumente_der_batch);
    std::string_view rest = zeile;
    std::size_t vorher = rest.size() + 1;
    while (!rest.empty()) {
        fuzz::soll(rest.size() < vorher, "each command takes something off the line");
        vorher = rest.size();
        const Befehlstext befehl = befehl_nehmen(rest);
        for (const auto& angabe : befehl.umlenkungen)
            fuzz::soll(angabe.art != Umlenkungsart::verdoppeln || angabe.ziel.size() == 1, "a stream to double");
        fuzz::soll(befehlswort(befehl.text).size() <= befehl.text.size(), "a word of the command");
        const Parameter p = parameter(befehl.text);
        std::size_t laenge = 0;
        for (const auto& name : p.namen) laenge += name.size();
        for (const auto& schalter : p.schalter) laenge += schalter.size();
        fuzz::soll(laenge <= befehl.text.size(), "parameters are pieces of the command");
        std::string_view text = befehl.text;
        const auto bedingung = bedingung_nehmen(text);
        fuzz::soll(!bedingung || !bedingung->name.empty(), "a condition has a name");
        laenge = 0;
        for (const auto& wort : argumente(befehl.text)) laenge += wort.size();
        fuzz::soll(laenge <= befehl.text.size(), "arguments are pieces of the command");
    }
    (void)marke(zeile);
}
