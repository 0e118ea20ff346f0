// What a command's function works on.
#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "konsole/Aufruf.h"
#include "konsole/Konsolenschirm.h"
#include "modell/Global.h"
#include "plattform/text.h"

namespace jorv {

struct Lage {
    const Aufruf& aufruf;
    Konsolenschirm& schirm;
    Global& g;
    std::ostream& aus;  ///< standard output, UTF-8
    std::ostream& err;  ///< standard error, UTF-8

    /// A word behind the command's name, from 0; empty when it wasn't given.
    std::string_view wort(std::size_t i) const
    {
        return i < aufruf.worte.size() ? std::string_view(aufruf.worte[i]) : std::string_view{};
    }
    /// An option's value; empty when it wasn't given.
    std::string_view option(std::string_view name) const
    {
        const auto fund = aufruf.option.find(name);
        return fund == aufruf.option.end() ? std::string_view{} : std::string_view(fund->second);
    }
    /// A stop message of the console's own, Windows-1252.
    Ausgang stop(std::string_view text)
    {
        schirm.meldung(Symbol::stop, text);
        return Ausgang::misslungen;
    }
    /// Wrong use of a command, told in UTF-8.
    Ausgang falsch(std::string_view text)
    {
        err << text << '\n';
        return Ausgang::falscher_aufruf;
    }
};

}  // namespace jorv
