// A temporary folder and a program state on it, for tests that work on real files.
#pragma once

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>

#include "hilfen/Pruefschirm.h"
#include "modell/Gemeinsam.h"
#include "modell/Global.h"
#include "plattform/umgebung.h"

namespace jorv::hilfen {

namespace fs = std::filesystem;

/// A name or path of a test source (UTF-8), which Windows wouldn't take for such.
inline fs::path p8(std::string_view utf8)
{
    return std::u8string(utf8.begin(), utf8.end());
}

/// A folder of its own below the system's temporary folder, removed at the end.
class Arbeitsordner {
public:
    explicit Arbeitsordner(std::string_view zusatz = "")
    {
        std::error_code fehler;
        for (int i = 0;; ++i) {
            m_wurzel = fs::temp_directory_path() /
                       ("jorv-test-" + std::to_string(prozess_kennung()) + "-" + std::to_string(i));
            if (fs::create_directory(m_wurzel, fehler)) break;
        }
        m_ordner = m_wurzel / p8(zusatz.empty() ? "p" : zusatz);
        fs::create_directories(m_ordner);
    }
    Arbeitsordner(const Arbeitsordner&) = delete;
    Arbeitsordner& operator=(const Arbeitsordner&) = delete;
    ~Arbeitsordner()
    {
        std::error_code fehler;
        fs::remove_all(m_wurzel, fehler);
    }
    const fs::path& host() const { return m_ordner; }
    const fs::path& wurzel() const { return m_wurzel; }
    /// DOS path, Windows-1252.
    std::string dos() const { return Laufwerke().dos(m_ordner).value(); }

private:
    fs::path m_wurzel, m_ordner;
};

inline void schreiben(const fs::path& datei, std::string_view bytes)
{
    fs::create_directories(datei.parent_path());
    std::ofstream(datei, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

inline std::string lesen(const fs::path& datei)
{
    std::ifstream strom(datei, std::ios::binary);
    std::ostringstream text;
    text << strom.rdbuf();
    return text.str();
}

/// A program state with an open, empty project "Muster" 001 in a temporary folder (nothing written yet). The clock
/// stands at 01.12.2016 12:00:00; the settings file lies in a folder beside the project.
struct Pruefstand {
    explicit Pruefstand(std::string_view modus = "1", std::string_view ordnername = "")
        : ordner(ordnername), uhr({2016, 12, 1, 12, 0, 0}), g(schirm, uhr, Dateisystem())
    {
        g.Verfahrensname = "Muster";
        g.Verfahrensnummer = "001";
        g.Verfahrensmodus = modus;
        g.Arbeitsverzeichnis = ordner.dos();
        g.Verfahrensdatei = Verfahrens_Datei(g, ".INI");
        g.vollstaendig_gelesen = true;
        g.Programmverzeichnis = g.EXE_Verzeichnis = Laufwerke().dos(JORV_PROGRAMME).value();
        g.Datei_Verzeichnis = g.Programmverzeichnis;
        fs::create_directories(ordner.wurzel() / "einstellungen");
        g.Einstellungsdatei = Laufwerke().dos(ordner.wurzel() / "einstellungen" / "JorvPlus.INI").value();
        Verfahren_Satz v;
        v.Nummer = "001";
        v.Name = "Muster";
        v.Pfad = g.Arbeitsverzeichnis;
        v.ErstDatum = v.LetztDatum = "01.12.2016 12:00:00";
        v.Modus = modus;
        (void)g.Verfahren.anfuegen(v);
        KOR_ANTENNEN_Satz bereich;
        bereich.von = "0000";
        bereich.bis = "3999";
        (void)g.KOR_ANTENNEN.anfuegen(bereich);
    }
    fs::path pfad(std::string_view name) const { return ordner.host() / p8(name); }

    Arbeitsordner ordner;
    Pruefschirm schirm;
    Festuhr uhr;
    Global g;
};

/// A text of a test source (UTF-8) as the inside holds it.
inline std::string t1252(std::string_view utf8)
{
    return text_aus_utf8(utf8).value();
}

}  // namespace jorv::hilfen
