// Profile (INI) text: sections, key=value lines. Read once into an indexed image, changed in memory, written in one
// piece. Keys and sections are compared without regard to case, a write replaces in place or appends at the end of the
// section; unknown sections, keys and comment lines survive.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "plattform/datei.h"

namespace jorv {

class Profil {
public:
    Profil() = default;
    /// Takes any text; lines that are neither section nor key are kept as they are.
    explicit Profil(std::string_view text);

    /// The file's image; an absent file gives an empty one. `fehler` is set when a present file can't be read.
    static Profil aus_datei(const Dateisystem& dateien, std::string_view pfad, std::error_code& fehler);

    /// The value without the blanks at its ends, cut to 254 characters; empty when the key is absent.
    std::string_view wert(std::string_view sektion, std::string_view schluessel) const;
    /// The same without the cut.
    std::string_view wert_ganz(std::string_view sektion, std::string_view schluessel) const;
    bool hat(std::string_view sektion, std::string_view schluessel) const;
    bool hat_sektion(std::string_view sektion) const;
    /// Names of the keys of a section, in order.
    std::vector<std::string> schluessel(std::string_view sektion) const;

    void setzen(std::string_view sektion, std::string_view schluessel, std::string_view wert);
    void entfernen(std::string_view sektion, std::string_view schluessel);

    /// The whole text, lines ended by CR LF.
    std::string text() const;
    [[nodiscard]] std::error_code schreiben(const Dateisystem& dateien, std::string_view pfad) const;

private:
    struct Zeile {
        std::string text;                   // the line as it stands
        std::size_t schluessel_laenge = 0;  // bytes in front of "="; 0 for other lines
        bool ist_wert = false;
        bool entfernt = false;
    };
    // Places of the keys of a section. Sections of many rows have the keys 1, 2, 3, ...: those are found by counting.
    class Stellen {
    public:
        static constexpr std::size_t keine = static_cast<std::size_t>(-1);
        std::size_t finden(std::string_view schluessel) const;
        /// The first place of a key counts; a later one changes nothing.
        void eintragen(std::string_view schluessel, std::size_t stelle);
        void entfernen(std::string_view schluessel);

    private:
        std::vector<std::size_t> m_reihen;
        std::unordered_map<std::string, std::size_t> m_namen;  // lower-cased
    };
    struct Sektion {
        std::string kopf;  // the "[...]" line; empty for what stands before the first section
        std::vector<Zeile> zeilen;
        Stellen stellen;
    };
    const Zeile* finden(std::string_view sektion, std::string_view schluessel) const;
    Sektion* sektion_finden(std::string_view name);
    const Sektion* sektion_finden(std::string_view name) const;

    std::vector<Sektion> m_sektionen;
    std::unordered_map<std::string, std::size_t> m_stellen;  // lower-cased section name to index, first one wins
};

}  // namespace jorv
