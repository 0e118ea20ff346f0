// A file whose bytes come out of a text, few at a time, for readers that work in pieces.
#pragma once

#include <algorithm>
#include <string_view>

#include "hilfen/Projekt.h"
#include "plattform/dateistrom.h"

namespace jorv::hilfen {

/// The text must outlive the reading; one file at a time is open.
class Haeppchen {
public:
    Dateistrom oeffnen(std::string_view text, std::size_t hoechstens)
    {
        m_rest = text;
        m_hoechstens = hoechstens;
        std::error_code fehler;
        return Dateistrom(m_tafel, m_ordner.host() / "leer", fehler);
    }
    Haeppchen()
    {
        schreiben(m_ordner.host() / "leer", "");
        m_tafel.lesen = [](int, void* bytes, std::size_t anzahl) {
            const auto stueck = m_rest.substr(0, std::min(anzahl, m_hoechstens));
            std::copy(stueck.begin(), stueck.end(), static_cast<char*>(bytes));
            m_rest.remove_prefix(stueck.size());
            return static_cast<long>(stueck.size());
        };
    }

private:
    static inline std::string_view m_rest;
    static inline std::size_t m_hoechstens = 0;
    Arbeitsordner m_ordner;
    Systemaufrufe m_tafel = Systemaufrufe::echte();
};

}  // namespace jorv::hilfen
