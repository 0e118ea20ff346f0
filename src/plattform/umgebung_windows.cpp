#include "plattform/umgebung.h"

#include <windows.h>

#include <shellapi.h>
#include <shlobj.h>

#include <cstdlib>

#include "plattform/breit_windows.h"

namespace jorv {

namespace fs = std::filesystem;

std::vector<std::string> programmworte(int, const char* const*)
{
    int anzahl = 0;
    wchar_t** const werte = CommandLineToArgvW(GetCommandLineW(), &anzahl);
    std::vector<std::string> worte;
    for (int i = 1; i < anzahl && werte; ++i) worte.push_back(schmal(werte[i]));
    LocalFree(werte);
    return worte;
}

fs::path umgebungsordner(const char* name)
{
    const wchar_t* wert = _wgetenv(breit(name).c_str());
    return wert ? fs::path(wert) : fs::path();
}

long prozess_kennung()
{
    return static_cast<long>(GetCurrentProcessId());
}

bool prozess_lebt(long kennung)
{
    const HANDLE prozess = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(kennung));
    if (!prozess) return GetLastError() == ERROR_ACCESS_DENIED;  // another user's
    const bool lebt = WaitForSingleObject(prozess, 0) == WAIT_TIMEOUT;
    CloseHandle(prozess);
    return lebt;
}

fs::path programm_ordner()
{
    wchar_t puffer[32768];
    const DWORD n = GetModuleFileNameW(nullptr, puffer, 32768);
    return fs::path(std::wstring(puffer, n)).parent_path();
}

fs::path dokumente_ordner()
{
    wchar_t puffer[MAX_PATH * 2] = {};
    SHGetFolderPathW(nullptr, CSIDL_PERSONAL, nullptr, 0, puffer);
    return puffer;
}

fs::path system_ordner()
{
    wchar_t puffer[145] = {};
    GetWindowsDirectoryW(puffer, 145);
    return puffer;
}

fs::path programm_finden(const std::string& name)
{
    const fs::path neben = programm_ordner() / breit(name + ".exe");
    std::error_code fehler;
    if (fs::exists(neben, fehler)) return neben;
    wchar_t puffer[32768];
    // The search path alone: the current directory is a project, and what lies there is data.
    const DWORD n = SearchPathW(umgebungsordner("PATH").c_str(), breit(name).c_str(), L".exe", 32768, puffer, nullptr);
    return n > 0 ? fs::path(std::wstring(puffer, n)) : fs::path{};
}

fs::path zwischenordner(std::uintmax_t)
{
    std::error_code fehler;
    return fs::temp_directory_path(fehler);
}

}  // namespace jorv
