// Runs the built programs as processes, as a script does.
#pragma once

#include <cstdlib>
#include <string>
#include <vector>

#include "hilfen/Projekt.h"

#ifdef _WIN32
#include "plattform/breit_windows.h"
#else
#include <sys/wait.h>
#endif

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
                programm_zeigen(eintrag.path(), host("programme") / eintrag.path().filename());
        schreiben(host("JorvPlus.INI"), "[GRUNDEINSTELLUNGEN]\r\nEXE-Verzeichnis=" + m_ordner.dos() +
                                            "\\programme\r\n" + std::string(zeilen));
    }
    fs::path host(std::string_view name) const { return m_ordner.host() / p8(name); }

    /// One command line of `jorv`, run in this folder.
    Programmlauf jorv(const std::vector<std::string>& worte) const
    {
        std::vector<std::string> alle = {"jorv", "--einstellungen", host("JorvPlus.INI").string()};
        alle.insert(alle.end(), worte.begin(), worte.end());
        return programm(alle);
    }
    Programmlauf programm(const std::vector<std::string>& worte) const
    {
        const fs::path aus = m_ordner.wurzel() / "aus", err = m_ordner.wurzel() / "err";
        const int status = ausfuehren(worte, aus, err);
        return {status, lesen(aus), lesen(err)};
    }

private:
#ifdef _WIN32
    static void programm_zeigen(const fs::path& programm, const fs::path& ort)
    {
        std::error_code fehler;
        fs::create_hard_link(programm, ort, fehler);
        if (fehler) fs::copy_file(programm, ort);
    }
    static HANDLE strom(const fs::path& datei)
    {
        SECURITY_ATTRIBUTES erbe{sizeof erbe, nullptr, TRUE};
        return CreateFileW(datei.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &erbe, CREATE_ALWAYS, 0, nullptr);
    }
    int ausfuehren(const std::vector<std::string>& worte, const fs::path& aus, const fs::path& err) const
    {
        std::wstring zeile = programmwort((fs::path(JORV_PROGRAMME) / (worte[0] + ".exe")).wstring());
        for (std::size_t i = 1; i < worte.size(); ++i) zeile += L" " + programmwort(breit(worte[i]));
        STARTUPINFOW auskunft{};
        auskunft.cb = sizeof auskunft;
        auskunft.dwFlags = STARTF_USESTDHANDLES;
        auskunft.hStdOutput = strom(aus);
        auskunft.hStdError = strom(err);
        PROCESS_INFORMATION kind{};
        DWORD status = static_cast<DWORD>(-1);
        if (CreateProcessW(nullptr, zeile.data(), nullptr, nullptr, TRUE, 0, nullptr, m_ordner.host().c_str(),
                           &auskunft, &kind)) {
            WaitForSingleObject(kind.hProcess, INFINITE);
            GetExitCodeProcess(kind.hProcess, &status);
            CloseHandle(kind.hThread);
            CloseHandle(kind.hProcess);
        }
        CloseHandle(auskunft.hStdOutput);
        CloseHandle(auskunft.hStdError);
        return static_cast<int>(status);
    }
#else
    static void programm_zeigen(const fs::path& programm, const fs::path& ort)
    {
        fs::create_symlink(programm, ort);
    }
    int ausfuehren(const std::vector<std::string>& worte, const fs::path& aus, const fs::path& err) const
    {
        std::string zeile = "cd " + maskiert(m_ordner.host().string()) + " && " +
                            maskiert((fs::path(JORV_PROGRAMME) / worte[0]).string());
        for (std::size_t i = 1; i < worte.size(); ++i) zeile += " " + maskiert(worte[i]);
        zeile += " >" + maskiert(aus.string()) + " 2>" + maskiert(err.string());
        const int ende = std::system(zeile.c_str());
        return WIFEXITED(ende) ? WEXITSTATUS(ende) : -1;
    }
    static std::string maskiert(const std::string& wort)
    {
        std::string text = "'";
        for (const char z : wort) text += z == '\'' ? std::string("'\\''") : std::string(1, z);
        return text + "'";
    }
#endif

    Arbeitsordner m_ordner;
};

}  // namespace jorv::hilfen
