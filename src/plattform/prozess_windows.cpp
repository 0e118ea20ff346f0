#include <windows.h>

#include "plattform/breit_windows.h"
#include "plattform/pfad.h"
#include "plattform/prozess.h"
#include "plattform/text.h"
#include "plattform/umgebung.h"

namespace jorv {

namespace fs = std::filesystem;

namespace {

bool starten(std::wstring zeile, const fs::path& ordner, PROCESS_INFORMATION& kind)
{
    STARTUPINFOW auskunft{};
    auskunft.cb = sizeof auskunft;
    return CreateProcessW(nullptr, zeile.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr,
                          ordner.empty() ? nullptr : ordner.c_str(), &auskunft, &kind) != 0;
}

}  // namespace

bool prozess_warten(const Dateisystem& dateien, std::string_view kommandozeile, const std::function<void()>& atmen)
{
    std::string_view pfad = trimmen(kommandozeile);
    if (pfad.starts_with('"')) pfad = pfad.substr(1, pfad.find('"', 1) - 1);
    PROCESS_INFORMATION kind{};
    if (!starten(breit(verkettet("\"", utf8_aus_1252(pfad), "\"")), dateien.host(pfad_ordner(pfad)), kind))
        return false;
    while (WaitForSingleObject(kind.hProcess, 20) == WAIT_TIMEOUT)
        if (atmen) atmen();
    CloseHandle(kind.hThread);
    CloseHandle(kind.hProcess);
    return true;
}

// The system's own interpreter can't stand one folder in another's place.
Batchlauf::Batchlauf(const Dateisystem&, std::string_view, const fs::path&, const Prozessaufrufe*) {}
Batchlauf::Batchlauf(Batchlauf&&) noexcept = default;
Batchlauf::~Batchlauf() = default;
void Batchlauf::abwarten(std::span<Batchlauf* const>, std::chrono::milliseconds) {}
bool Batchlauf::laeuft()
{
    return false;
}

Prozessende programm_ausfuehren(const fs::path& programm, const std::vector<std::string>& argumente,
                                const fs::path& ordner, int sekunden)
{
    std::wstring zeile = L"\"" + programm.wstring() + L"\"";
    for (const auto& wort : argumente) zeile += L" \"" + breit(wort) + L"\"";
    Prozessende ende;
    PROCESS_INFORMATION kind{};
    if (!starten(zeile, ordner, kind)) return ende;
    ende.gestartet = true;
    if (WaitForSingleObject(kind.hProcess, static_cast<DWORD>(sekunden) * 1000) == WAIT_TIMEOUT) {
        ende.zeit_abgelaufen = true;
        TerminateProcess(kind.hProcess, 1);
        WaitForSingleObject(kind.hProcess, INFINITE);
    }
    DWORD status = 1;
    GetExitCodeProcess(kind.hProcess, &status);
    ende.status = static_cast<int>(status);
    CloseHandle(kind.hThread);
    CloseHandle(kind.hProcess);
    return ende;
}

}  // namespace jorv
