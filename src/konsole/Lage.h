// What a command's function works on.
#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "konsole/Aufruf.h"
#include "konsole/Befehle.h"
#include "konsole/Konsolenschirm.h"
#include "modell/Gemeinsam.h"
#include "modell/Global.h"
#include "plattform/text.h"

namespace jorv {

struct Lage {
    const Aufruf& aufruf;
    Konsolenschirm& schirm;
    Global& g;
    std::ostream& aus;       ///< standard output, UTF-8
    std::ostream& err;       ///< standard error, UTF-8
    bool geaendert = false;  ///< set by a command that changes the project: it is saved behind it

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
    Ausgang pfad_nicht_verwendbar(std::string_view utf8)
    {
        return stop(verkettet("Der Pfad:\n", text_aus_utf8_mit_ersatz(utf8),
                              "\nkann nicht verwendet werden (Laufwerk oder Zeichen im Namen)!"));
    }
    Ausgang rover_unbekannt(std::string_view utf8)
    {
        return stop(verkettet("Den ROVER ", text_aus_utf8_mit_ersatz(utf8), " gibt es im Verfahren nicht!"));
    }
    Ausgang basislinie_unbekannt(std::string_view utf8)
    {
        return stop(verkettet("Die Basislinie ", text_aus_utf8_mit_ersatz(utf8), " gibt es im Verfahren nicht!"));
    }
    Ausgang nicht_in_diesem_modus()
    {
        return stop(verkettet("Im Modus ", Modus_Buchstabe(g.Verfahrensmodus), " gibt es diesen Befehl nicht!"));
    }
    /// Index of a rover by its file name in any case, 0 when the project has none of that name.
    int rover_index(std::string_view utf8) const
    {
        const std::string name = text_aus_utf8_mit_ersatz(utf8);
        for (int i = 1; i <= g.OBS_R.anzahl(); ++i)
            if (gleich_ohne_gross(g.OBS_R[i].Dateiname, name)) return i;
        return 0;
    }
    /// Index of a baseline by its name ("<Datei_von>-<Datei_nach>") in any case, 0 when the project has none of that
    /// name.
    int basislinie_index(std::string_view utf8) const
    {
        const std::string name = text_aus_utf8_mit_ersatz(utf8);
        for (int i = 1; i <= g.BASISLINIE.anzahl(); ++i)
            if (gleich_ohne_gross(verkettet(g.BASISLINIE[i].Datei_von, "-", g.BASISLINIE[i].Datei_nach), name))
                return i;
        return 0;
    }
    /// Wrong use of a command, told in UTF-8.
    Ausgang falsch(std::string_view text)
    {
        err << text << "\nAufruf: " << befehl_zeile(*aufruf.befehl) << '\n';
        return Ausgang::falscher_aufruf;
    }
};

}  // namespace jorv
