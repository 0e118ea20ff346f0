// The part of a file that a reader of lines has in memory: what it still needs, and behind it the file's next bytes.
#pragma once

#include <algorithm>
#include <cstring>
#include <string_view>
#include <utility>
#include <vector>

#include "plattform/dateistrom.h"

namespace jorv {

class Stueckpuffer {
public:
    Stueckpuffer() = default;
    /// Reads pieces of that many bytes, the first of which may be a shorter one.
    Stueckpuffer(Dateistrom datei, std::size_t stueck, std::size_t erstes)
        : m_datei(std::move(datei)), m_stueck(stueck), m_puffer(std::min(stueck, erstes))
    {
    }

    /// Takes over what is still needed of the text that it gave before, and gives it with the file's next bytes behind
    /// it: no longer than before at the end of the file and after a failure. The buffer grows where nothing is free.
    std::string_view nachladen(std::string_view rest)
    {
        if (m_puffer.empty()) return rest;
        if (!rest.empty()) std::memmove(m_puffer.data(), rest.data(), rest.size());
        if (m_gelesen && m_puffer.size() < m_stueck) m_puffer.resize(m_stueck);
        if (rest.size() == m_puffer.size()) m_puffer.resize(std::max(2 * m_puffer.size(), m_stueck));
        m_gelesen = true;
        return {m_puffer.data(),
                rest.size() + m_datei.lesen(m_puffer.data() + rest.size(), m_puffer.size() - rest.size())};
    }
    const std::error_code& fehler() const { return m_datei.fehler(); }

private:
    Dateistrom m_datei;
    std::size_t m_stueck = 0;
    std::vector<char> m_puffer;
    bool m_gelesen = false;
};

}  // namespace jorv
