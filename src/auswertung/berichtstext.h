// Text of a report under construction: lines ended by CR LF, and the pieces that both short reports share.
#pragma once

#include <string>
#include <string_view>

#include "modell/Global.h"
#include "plattform/text.h"

namespace jorv {

class Berichtstext {
public:
    /// One line made of its pieces.
    template <typename... Teile>
    void zeile(const Teile&... teile)
    {
        anhaengen(verkettet(teile...));
    }
    void leerzeilen(int anzahl);

    /// The fifteen lines at the top; the blanks behind the labels are to be filled in by hand. `datum` is the label of
    /// the date and time.
    void kopf(const Global& g, std::string_view titel, std::string_view datum);
    /// The three head lines of the table of solutions.
    void tabellenkopf();
    /// "Anzahl Lösungen:", and how many are missing when they differ from those expected.
    void loesungen(int anzahl, int erwartet);
    /// Three empty lines, the antenna file, the headline of the antennas.
    void antennendatei(const Global& g, std::string_view ueberschrift);
    void antennen(const Global& g);

    const std::string& text() const { return m_text; }

private:
    void anhaengen(std::string_view zeile);

    std::string m_text;
};

/// Rows by the kind of their solution, told by a word anywhere in the row.
struct Loesungszahl {
    int L1 = 0, L0 = 0, float_ = 0;
    /// `wort_L0` differs between the two reports.
    void zaehlen(std::string_view zeile, std::string_view wort_L0);
    void schreiben(Berichtstext& bericht) const;
};

}  // namespace jorv
