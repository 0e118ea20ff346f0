#pragma once
// The running record of a program of the suite: the lines of its protocol file and the few of them that also go to the
// standard output, where the batch collects them. Text is Windows-1252, lines end in CR LF.

#include <string>
#include <string_view>

namespace jorv::suite {

class Protokoll {
public:
    /// A line of the protocol file alone.
    void zeile(std::string_view text = {});
    /// A line of protocol and standard output.
    void meldung(std::string_view text);
    /// The same with "WARNUNG: " or "ERROR: " in front.
    void warnung(std::string_view text);
    void fehler(std::string_view text);

    const std::string& text() const { return m_text; }
    const std::string& ausgabe() const { return m_ausgabe; }

private:
    std::string m_text, m_ausgabe;
};

}  // namespace jorv::suite
