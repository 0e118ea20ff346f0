#include "plattform/prozess.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <utility>

#include "plattform/breit_windows.h"
#include "plattform/pfad.h"
#include "plattform/text.h"
#include "plattform/umgebung.h"

namespace jorv {

namespace fs = std::filesystem;

namespace {

constexpr LONGLONG groesste_ausgabe = 64 << 20;  // a child that writes without end must not fill the disk

// Closes itself.
class Griff {
public:
    explicit Griff(HANDLE griff = nullptr) : m_griff(griff == INVALID_HANDLE_VALUE ? nullptr : griff) {}
    Griff(Griff&& anderer) noexcept : m_griff(std::exchange(anderer.m_griff, nullptr)) {}
    Griff& operator=(Griff&& anderer) noexcept
    {
        std::swap(m_griff, anderer.m_griff);
        return *this;
    }
    ~Griff()
    {
        if (m_griff) CloseHandle(m_griff);
    }
    explicit operator bool() const { return m_griff != nullptr; }
    HANDLE get() const { return m_griff; }

private:
    HANDLE m_griff;
};

// A file that the child may hold too.
Griff erblich(const fs::path& datei, DWORD zugriff, DWORD anlegen, DWORD art)
{
    SECURITY_ATTRIBUTES erbe{sizeof erbe, nullptr, TRUE};
    return Griff(CreateFileW(datei.c_str(), zugriff, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, &erbe,
                             anlegen, art, nullptr));
}

Griff fluechtige_datei()
{
    std::error_code fehler;
    wchar_t name[MAX_PATH] = {};
    if (GetTempFileNameW(fs::temp_directory_path(fehler).c_str(), L"jv", 0, name) == 0) return Griff();
    return erblich(name, GENERIC_READ | GENERIC_WRITE, CREATE_ALWAYS,
                   FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE);
}

std::string anfang(const Griff& datei)
{
    constexpr DWORD hoechstens = 1 << 20;
    std::string text(hoechstens, '\0');
    DWORD gelesen = 0;
    SetFilePointer(datei.get(), 0, nullptr, FILE_BEGIN);
    if (!ReadFile(datei.get(), text.data(), hoechstens, &gelesen, nullptr)) gelesen = 0;
    text.resize(gelesen);
    return text;
}

void kuerzen(const Griff& datei)
{
    LARGE_INTEGER laenge{};
    if (!GetFileSizeEx(datei.get(), &laenge) || laenge.QuadPart <= groesste_ausgabe) return;
    SetFilePointer(datei.get(), 0, nullptr, FILE_BEGIN);
    SetEndOfFile(datei.get());
}

}  // namespace

// A started child with all that it starts. They end together, and with this program however it ends.
class Kind {
public:
    // Without a window; what isn't given reads and writes nothing, so that a `pause` holds nobody up.
    Kind(std::wstring zeile, const fs::path& ordner, HANDLE fehlerausgabe = nullptr) : m_gruppe(gruppe())
    {
        const Griff nichts = erblich(L"NUL", GENERIC_READ | GENERIC_WRITE, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL);
        STARTUPINFOW auskunft{};
        auskunft.cb = sizeof auskunft;
        auskunft.dwFlags = STARTF_USESTDHANDLES;
        auskunft.hStdInput = auskunft.hStdOutput = nichts.get();
        auskunft.hStdError = fehlerausgabe ? fehlerausgabe : nichts.get();
        PROCESS_INFORMATION kind{};
        if (!CreateProcessW(nullptr, zeile.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW | CREATE_SUSPENDED, nullptr,
                            ordner.empty() ? nullptr : ordner.c_str(), &auskunft, &kind))
            return;
        m_prozess = Griff(kind.hProcess);
        const Griff faden(kind.hThread);
        if (m_gruppe && !AssignProcessToJobObject(m_gruppe.get(), kind.hProcess)) m_gruppe = Griff();
        ResumeThread(kind.hThread);
    }
    bool gestartet() const { return static_cast<bool>(m_prozess); }
    /// True when it has ended.
    bool warten(std::chrono::milliseconds zeit) const
    {
        return WaitForSingleObject(m_prozess.get(), static_cast<DWORD>(zeit.count())) != WAIT_TIMEOUT;
    }
    void beenden() const
    {
        if (m_gruppe)
            TerminateJobObject(m_gruppe.get(), 1);
        else
            TerminateProcess(m_prozess.get(), 1);
        WaitForSingleObject(m_prozess.get(), INFINITE);
    }
    int status() const
    {
        DWORD status = 1;
        GetExitCodeProcess(m_prozess.get(), &status);
        return static_cast<int>(status);
    }

private:
    static Griff gruppe()
    {
        Griff gruppe(CreateJobObjectW(nullptr, nullptr));
        JOBOBJECT_EXTENDED_LIMIT_INFORMATION grenzen{};
        grenzen.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
        if (gruppe) SetInformationJobObject(gruppe.get(), JobObjectExtendedLimitInformation, &grenzen, sizeof grenzen);
        return gruppe;
    }
    Griff m_gruppe, m_prozess;
};

bool prozess_warten(const Dateisystem& dateien, std::string_view kommandozeile, const std::function<void()>& atmen)
{
    std::string_view pfad = trimmen(kommandozeile);
    if (pfad.starts_with('"')) pfad = pfad.substr(1, pfad.find('"', 1) - 1);
    const Kind kind(breit(verkettet("\"", utf8_aus_1252(pfad), "\"")), dateien.host(pfad_ordner(pfad)));
    if (!kind.gestartet()) return false;
    while (!kind.warten(std::chrono::milliseconds(20)))
        if (atmen) atmen();
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
    std::wstring zeile = programmwort(programm.wstring());
    for (const auto& wort : argumente) zeile += L" " + programmwort(breit(wort));
    Prozessende ende;
    // A file in place of a pipe: a child that leaves it open holds nobody up.
    const Griff ausgabe = fluechtige_datei();
    const Kind kind(std::move(zeile), ordner, ausgabe.get());
    if (!kind.gestartet()) return ende;
    ende.gestartet = true;
    using Uhr = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds keine(0), runde(1000);
    const auto schluss = Uhr::now() + std::chrono::seconds(sekunden);
    const auto rest = [&] { return std::chrono::ceil<std::chrono::milliseconds>(schluss - Uhr::now()); };
    while (!kind.warten(std::clamp(rest(), keine, runde))) {
        ende.zeit_abgelaufen = Uhr::now() >= schluss;
        if (ende.zeit_abgelaufen) break;
        kuerzen(ausgabe);
    }
    if (!ende.zeit_abgelaufen) ende.status = kind.status();
    kind.beenden();
    if (ende.zeit_abgelaufen) ende.status = kind.status();
    ende.fehlerausgabe = anfang(ausgabe);
    return ende;
}

}  // namespace jorv
