// Profile (INI) text: sections, key=value lines. Read once into an indexed image, changed in memory, written in one
// piece. Keys and sections are compared without regard to case, a write replaces in place or appends at the end of the
// section; unknown sections, keys and comment lines survive.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
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
    explicit Profil(std::string text);

    /// The file's image; an absent file gives an empty one. `fehler` is set when a present file can't be read.
    static Profil aus_datei(const Dateisystem& dateien, std::string_view pfad, std::error_code& fehler);

    /// The value without the blanks at its ends, cut to 254 characters; empty when the key is absent.
    std::string_view wert(std::string_view sektion, std::string_view schluessel) const;
    /// The same without the cut.
    std::string_view wert_ganz(std::string_view sektion, std::string_view schluessel) const;
    /// A whole value as `wert` cuts it.
    static std::string_view gekuerzt(std::string_view wert);
    bool hat(std::string_view sektion, std::string_view schluessel) const;
    bool hat_sektion(std::string_view sektion) const;
    /// A section whose rows, the keys 1, 2, 3, ..., are taken one after the other: found once for all of them.
    struct Reihen {
        std::size_t sektion;
        int anzahl;  ///< of the keys without a gap
    };
    Reihen reihen(std::string_view sektion) const;
    /// The value of row n, as `wert_ganz` gives it.
    std::string_view reihe(Reihen reihen, int n) const;
    /// The same for a section that comes into being where there is none.
    Reihen reihen_anlegen(std::string_view sektion);
    /// As `setzen`; the section must be there.
    void reihe_setzen(Reihen reihen, int n, std::string_view wert);
    /// Names of the keys of a section, in order.
    std::vector<std::string> schluessel(std::string_view sektion) const;

    /// The values that `wert` gives stay in place: what is set anew is a text of its own.
    void setzen(std::string_view sektion, std::string_view schluessel, std::string_view wert);
    void entfernen(std::string_view sektion, std::string_view schluessel);

    /// The whole text, lines ended by CR LF.
    std::string text() const;
    [[nodiscard]] std::error_code schreiben(const Dateisystem& dateien, std::string_view pfad) const;

private:
    struct Zeile {
        std::string_view text;                // the line as it stands, in m_quelle or m_neue
        std::uint32_t schluessel_laenge = 0;  // bytes in front of "="; 0 for other lines
        bool ist_wert = false;
        bool entfernt = false;
    };
    // Keys and sections compare without regard to case; looking one up builds no text.
    struct Streuung {
        using is_transparent = void;
        std::size_t operator()(std::string_view name) const;
    };
    struct Gleichheit {
        using is_transparent = void;
        bool operator()(std::string_view a, std::string_view b) const;
    };
    using Verzeichnis = std::unordered_map<std::string, std::size_t, Streuung, Gleichheit>;
    // Places of the keys of a section. Sections of many rows have the keys 1, 2, 3, ...: those are found by counting.
    class Stellen {
    public:
        static constexpr std::size_t keine = static_cast<std::size_t>(-1);
        std::size_t finden(std::string_view schluessel) const;
        std::size_t finden(std::size_t reihe) const;
        /// The first place of a key counts; a later one changes nothing.
        void eintragen(std::string_view schluessel, std::size_t stelle);
        void entfernen(std::string_view schluessel);
        int reihen() const { return static_cast<int>(m_reihen.size()); }

    private:
        std::vector<std::size_t> m_reihen;
        Verzeichnis m_namen;
    };
    struct Sektion {
        std::string_view kopf;  // the "[...]" line; empty for what stands before the first section
        std::vector<Zeile> zeilen;
        Stellen stellen;
    };
    const Zeile* finden(std::string_view sektion, std::string_view schluessel) const;
    Sektion* sektion_finden(std::string_view name);
    const Sektion* sektion_finden(std::string_view name) const;

    std::string_view ablegen(std::string text);
    Sektion& sektion_anlegen(std::string_view name);
    static std::string_view wert_von(const Zeile& zeile);
    void wert_ersetzen(Zeile& zeile, std::string_view wert);
    void anfuegen(Sektion& sektion, std::string_view schluessel, std::string_view wert);

    // Both are only added to, so copies of the image share them.
    std::shared_ptr<const std::string> m_quelle;      // the text as it was read
    std::shared_ptr<std::deque<std::string>> m_neue;  // lines that came later
    std::vector<Sektion> m_sektionen;
    Verzeichnis m_stellen;  // section name to index, first one wins
};

}  // namespace jorv
