// The list dialog of all projects as plain data: its header, one row per project, and sorting by a column.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "modell/Global.h"

namespace jorv {

inline constexpr std::size_t verfahrensspalten = 7;
inline constexpr std::array<std::string_view, verfahrensspalten> verfahrenskopf = {
    "Nummer", "Verfahrensname", "Modus", "Pfad des Verfahrens", "Anlegedatum", "letzte Bearbeitung", "Antennen"};

using Verfahrenszeile = std::array<std::string, verfahrensspalten>;

class Verfahrenstabelle {
public:
    /// The rows in list order.
    explicit Verfahrenstabelle(const Global& g);

    const std::vector<Verfahrenszeile>& zeilen() const { return m_zeilen; }
    /// The project of a row (from 0), for Verfahren_oeffnen.
    const std::string& Name(std::size_t zeile) const { return m_zeilen.at(zeile)[1]; }

    /// Sorts ascending by a column (from 0), letters without regard to case, dates by time. Equal rows keep their
    /// order.
    void sortieren(std::size_t spalte);

    /// The text whose width the column takes at the start.
    std::string Breitentext(std::size_t spalte) const;
    /// The widest entry of a column, the header's own text included: what a double click on the header fits it to.
    std::string breitester_Eintrag(std::size_t spalte) const;

private:
    std::vector<Verfahrenszeile> m_zeilen;
};

}  // namespace jorv
