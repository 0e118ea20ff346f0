#include <map>
#include <set>

#include "daten/einfuegen.h"
#include "konsole/Befehle.h"
#include "konsole/Lage.h"
#include "plattform/pfad.h"

namespace jorv {

namespace {

// The dialog's list for the words of the command: what is found in folders, and single files that the dialog would
// offer in theirs.
class Dateisammler {
public:
    Dateisammler(Lage& lage, Dateiart art) : m_lage(lage), m_art(art) {}

    /// False when the word can't be found or used; that has been shown.
    bool aufnehmen(std::string_view wort)
    {
        const auto& dateien = m_lage.g.dateien;
        const auto pfad = pfad_aus_wort(dateien.laufwerke(), wort);
        if (!pfad) {
            (void)m_lage.pfad_nicht_verwendbar(wort);
            return false;
        }
        if (dateien.ist_ordner(*pfad)) {
            for (const auto& datei : angebot(*pfad)) m_wahl.dateien.push_back(datei);
            m_wahl.verzeichnis = *pfad;
            return true;
        }
        if (!dateien.ist_datei(*pfad)) {
            (void)m_lage.stop(verkettet("Die Datei:\n", *pfad, "\nwurde nicht gefunden!"));
            return false;
        }
        m_wahl.verzeichnis = pfad_ordner(*pfad);
        const std::string gesucht = klein(*pfad);
        for (const auto& datei : angebot(m_wahl.verzeichnis))
            if (klein(datei) == gesucht) {
                m_wahl.dateien.push_back(datei);
                return true;
            }
        m_lage.schirm.meldung(Symbol::warnung,
                              verkettet("Die Datei:\n", *pfad, u8"\nist keine, die eingefügt werden kann."_w));
        return true;
    }

    Dateiwahl wahl() && { return std::move(m_wahl); }

private:
    // What the dialog offers in a folder, asked once a folder.
    const std::vector<std::string>& angebot(const std::string& ordner)
    {
        auto [ort, neu] = m_angebote.try_emplace(ordner);
        if (neu) ort->second = einfuegbare_Dateien(m_lage.g, m_art, ordner, false);
        return ort->second;
    }

    Lage& m_lage;
    Dateiart m_art;
    Dateiwahl m_wahl;
    std::map<std::string, std::vector<std::string>> m_angebote;
};

Ausgang einfuegen(Lage& lage, Dateiart art, void (*befehl)(Global&))
{
    Dateisammler sammler(lage, art);
    for (std::size_t i = 1; i < lage.aufruf.worte.size(); ++i)
        if (!sammler.aufnehmen(lage.wort(i))) return Ausgang::misslungen;
    Dateiwahl wahl = std::move(sammler).wahl();
    if (wahl.dateien.empty()) return lage.stop(u8"Es wurde keine Datei gefunden, die eingefügt werden kann!"_w);
    lage.schirm.dateiwahl = std::move(wahl);
    lage.geaendert = true;
    befehl(lage.g);
    return Ausgang::gut;
}

Ausgang rinex(Lage& lage)
{
    return einfuegen(lage, Dateiart::rinex, m_datei_rinex);
}

Ausgang antennen(Lage& lage)
{
    return einfuegen(lage, Dateiart::antennen, m_datei_antenne);
}

constexpr Befehl befehle[] = {
    {"rinex",
     "NR DATEI|VERZEICHNIS...",
     "kopiert RINEX-Dateien in ein Verfahren und ordnet neu zu\n"
     "Von einem Verzeichnis werden alle Beobachtungs- und Navigationsdateien genommen, ohne Unterverzeichnisse.\n"
     "Figuren, Zuordnungen von Hand und Einstellungen der ROVER werden dabei zurückgesetzt.",
     "jorv rinex 1 ~/messung/rinex --ja",
     2,
     beliebig_viele,
     {},
     Grundlage::verfahren,
     rinex},
    {"antennen",
     "NR DATEI...",
     "kopiert Antennen-Dateien (*.atx) in ein Verfahren und stellt die des Verfahrens zusammen",
     "jorv antennen 1 ~/messung/antennen.atx",
     2,
     beliebig_viele,
     {},
     Grundlage::verfahren,
     antennen},
};

}  // namespace

std::span<const Befehl> befehle_dateien()
{
    return befehle;
}

}  // namespace jorv
