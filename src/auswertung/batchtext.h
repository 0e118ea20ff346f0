// Batch text under construction: lines are templates whose names in braces ("{ROVER}") are replaced once, so a table of
// lines reads like the batch that comes out of it. Windows-1252, lines ended by CR LF.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "modell/Global.h"

namespace jorv {

/// `text` lines go out as they stand; `konsole` lines hold text of the user's that the console must show and find, so
/// they are recoded to code page 850.
enum class Zeilenart { text, konsole };

struct Batchzeile {
    std::string_view text;
    Zeilenart art = Zeilenart::text;
};

class Batchtext {
public:
    /// Knows the names of the project: VNAME, VNR, ANT (extension of the antenna file), UTMZONE, DATUM, ZEIT.
    explicit Batchtext(const Global& g);

    /// Gives a name its value; a later value replaces an earlier one.
    void setzen(std::string_view name, std::string_view wert);
    std::string_view wert(std::string_view name) const;

    /// The template with its names replaced by words of a command; a name without a value becomes empty.
    std::string einsetzen(std::string_view vorlage) const;
    /// The name of a file that a command with this template means.
    std::string dateiname(std::string_view vorlage) const;

    void zeile(std::string_view vorlage, Zeilenart art = Zeilenart::text);
    void zeilen(std::span<const Batchzeile> tabelle);
    /// A line that is finished already.
    void fertige_zeile(std::string_view zeile);

    const std::string& text() const { return m_text; }

private:
    std::string ersetzt(std::string_view vorlage, bool als_wort) const;

    std::vector<std::pair<std::string, std::string>> m_namen;
    std::string m_text;
};

}  // namespace jorv
