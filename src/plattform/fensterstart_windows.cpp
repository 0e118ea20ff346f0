#include "plattform/fensterstart.h"

#include <windows.h>

#include "plattform/breit_windows.h"
#include "plattform/pfad.h"
#include "plattform/text.h"
#include "plattform/umgebung.h"

namespace jorv {

Fensterstart batch_start(const Dateisystem& dateien, std::string_view batchdatei)
{
    Fensterstart start;
    if (dateien.ist_datei(batchdatei)) start.programm = dateien.host(batchdatei);
    start.ordner = dateien.host(pfad_ordner(batchdatei));
    return start;
}

Fensterstart programm_start(const Dateisystem& dateien, std::string_view programm, std::string_view argument,
                            std::string_view ordner)
{
    Fensterstart start;
    if (dateien.ist_datei(programm)) start.programm = dateien.host(programm);
    start.argumente = {utf8_aus_1252(argument)};
    start.ordner = dateien.host(ordner);
    return start;
}

std::optional<Fensterstart> editor_start(const Dateisystem& dateien, std::string_view editor, std::string_view datei)
{
    Fensterstart start;
    start.programm = ist_dos_pfad(editor) ? dateien.host(editor) : programm_finden(utf8_aus_1252(editor));
    start.argumente = {utf8_aus_1252(datei)};
    start.ordner = dateien.host(pfad_ordner(datei));
    return start;
}

Gestartet fenster_starten(const Fensterstart& start, Fensterausgabe ausgabe, const std::filesystem::path&)
{
    if (start.programm.empty()) return {.fehler = std::make_error_code(std::errc::no_such_file_or_directory)};
    std::wstring zeile = programmwort(start.programm.wstring());
    for (const auto& wort : start.argumente) zeile += L" " + programmwort(breit(wort));
    const bool fenster = ausgabe != Fensterausgabe::fehlerausgabe;
    STARTUPINFOW auskunft{};
    auskunft.cb = sizeof auskunft;
    if (!fenster) {
        // Both streams: what this program itself writes to its output must stay alone there.
        auskunft.dwFlags = STARTF_USESTDHANDLES;
        auskunft.hStdOutput = auskunft.hStdError = GetStdHandle(STD_ERROR_HANDLE);
    }
    PROCESS_INFORMATION kind{};
    if (CreateProcessW(nullptr, zeile.data(), nullptr, nullptr, fenster ? FALSE : TRUE,
                       fenster ? CREATE_NEW_CONSOLE : 0, nullptr, start.ordner.empty() ? nullptr : start.ordner.c_str(),
                       &auskunft, &kind) == 0)
        return {.fehler = std::error_code(static_cast<int>(GetLastError()), std::system_category())};
    CloseHandle(kind.hThread);
    const HANDLE prozess = kind.hProcess;
    if (!fenster)
        return {.abwarten = [prozess] {
            WaitForSingleObject(prozess, INFINITE);
            CloseHandle(prozess);
        }};
    CloseHandle(prozess);
    return {};
}

}  // namespace jorv
