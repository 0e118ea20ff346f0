// Runs the built programs as processes, as a script does.
#pragma once

#include <sys/wait.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "hilfen/Projekt.h"

namespace jorv::hilfen {

struct Programmlauf {
    int status = -1;
    std::string aus, err;
};

/// A folder with settings of its own, and the programs beside its own catalogue, so that tests run side by side.
class Arbeitsplatz {
public:
    explicit Arbeitsplatz(std::string_view zeilen = "") : m_ordner("mit Blank ä")
    {
        fs::create_directories(host("programme"));
        // Programs only: a catalogue there would be written through its link.
        for (const auto& eintrag : fs::directory_iterator(JORV_PROGRAMME))
            if ((eintrag.status().permissions() & fs::perms::owner_exec) != fs::perms::none)
                fs::create_symlink(eintrag.path(), host("programme") / eintrag.path().filename());
        schreiben(host("JorvPlus.INI"), "[GRUNDEINSTELLUNGEN]\r\nEXE-Verzeichnis=" + m_ordner.dos() +
                                            "\\programme\r\n" + std::string(zeilen));
    }
    fs::path host(std::string_view name) const { return m_ordner.host() / std::string(name); }

    /// One command line of `jorv`, run in this folder.
    Programmlauf jorv(const std::vector<std::string>& worte) const
    {
        std::vector<std::string> alle = {"jorv", "--einstellungen", host("JorvPlus.INI").string()};
        alle.insert(alle.end(), worte.begin(), worte.end());
        return programm(alle);
    }
    Programmlauf programm(const std::vector<std::string>& worte) const
    {
        std::string zeile = "cd " + maskiert(m_ordner.host().string()) + " && " +
                            maskiert((fs::path(JORV_PROGRAMME) / worte[0]).string());
        for (std::size_t i = 1; i < worte.size(); ++i) zeile += " " + maskiert(worte[i]);
        const fs::path aus = m_ordner.wurzel() / "aus", err = m_ordner.wurzel() / "err";
        zeile += " >" + maskiert(aus.string()) + " 2>" + maskiert(err.string());
        const int ende = std::system(zeile.c_str());
        return {WIFEXITED(ende) ? WEXITSTATUS(ende) : -1, lesen(aus), lesen(err)};
    }

private:
    static std::string maskiert(const std::string& wort)
    {
        std::string text = "'";
        for (const char z : wort) text += z == '\'' ? std::string("'\\''") : std::string(1, z);
        return text + "'";
    }

    Arbeitsordner m_ordner;
};

}  // namespace jorv::hilfen
