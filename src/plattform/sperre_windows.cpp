#include "plattform/sperre.h"

#include <windows.h>

namespace jorv {

namespace fs = std::filesystem;

Sperre::Sperre(const Dateisystem& dateien, std::string_view pfad, int millisekunden)
{
    const fs::path datei = dateien.host(pfad).wstring() + L".sperre";
    for (int gewartet = 0;; gewartet += 20) {
        const HANDLE griff = CreateFileW(datei.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                         FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
        if (griff != INVALID_HANDLE_VALUE) {
            m_nummer = reinterpret_cast<std::intptr_t>(griff);
            return;
        }
        m_besetzt = GetLastError() == ERROR_SHARING_VIOLATION;
        if (gewartet >= millisekunden) return;
        Sleep(20);
    }
}

Sperre::~Sperre()
{
    if (m_nummer >= 0) CloseHandle(reinterpret_cast<HANDLE>(m_nummer));
}

}  // namespace jorv
