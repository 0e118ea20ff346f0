// A numeric text box with its spin control, without a screen: which keys pass, what leaving and checking do.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "plattform/oberflaeche.h"

namespace jorv {

inline constexpr char taste_ruecktaste = '\b', taste_escape = '\x1b';

class Zahlenfeld {
public:
    Zahlenfeld() = default;
    Zahlenfeld(std::string text, std::int32_t minimum, std::int32_t maximum)
        : m_text(std::move(text)), m_minimum(minimum), m_maximum(maximum)
    {
    }

    const std::string& text() const { return m_text; }
    std::int32_t minimum() const { return m_minimum; }
    std::int32_t maximum() const { return m_maximum; }
    /// The number in the box, 0 for none; one too large for the type is its largest.
    std::int32_t wert() const;

    /// What the box holds after it was typed in.
    void text_setzen(std::string_view text) { m_text = text; }

    /// Whether a key reaches the box: digits and backspace. Escape doesn't, and brings the value within the limits.
    bool taste(char zeichen);
    /// The box has lost the focus: an empty one takes the minimum.
    void verlassen();
    /// False, with a warning, when the value is beyond a limit: the focus stays and the whole text is selected, as it
    /// is whenever the box gets the focus.
    [[nodiscard]] bool pruefen(Oberflaeche& schirm) const;
    /// A click on a spin arrow: one up (+1) or down (-1), with a beep at the limit.
    void pfeil(Oberflaeche& schirm, int richtung);

private:
    std::string m_text;
    std::int32_t m_minimum = 0, m_maximum = 0;
};

}  // namespace jorv
