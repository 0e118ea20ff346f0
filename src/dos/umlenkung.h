// Redirection: opens the files of a command before it runs and closes them behind it.
#pragma once

#include <vector>

#include "dos/umfeld.h"
#include "dos/zeile.h"

namespace jorv::dos {

class Umlenkung {
public:
    /// Begins with the given streams.
    explicit Umlenkung(const Stroeme& stroeme) : m_stroeme(stroeme) {}
    ~Umlenkung();
    Umlenkung(const Umlenkung&) = delete;
    Umlenkung& operator=(const Umlenkung&) = delete;

    /// Opens one file after the other; false (with a message) when one can't be opened. Files opened before stay made.
    bool oeffnen(const Umfeld& umfeld, const std::vector<Umlenkungsangabe>& angaben);

    const Stroeme& stroeme() const { return m_stroeme; }

private:
    int datei_oeffnen(const Umfeld& umfeld, const Umlenkungsangabe& angabe);

    Stroeme m_stroeme;
    std::vector<int> m_offen;
};

}  // namespace jorv::dos
