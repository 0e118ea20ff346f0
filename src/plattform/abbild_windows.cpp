#include <windows.h>

#include <utility>

#include "plattform/abbild.h"

namespace jorv {

Abbild::Abbild(const Systemaufrufe&, const std::filesystem::path& host_pfad, std::error_code& fehler)
{
    fehler.clear();
    const HANDLE datei =
        CreateFileW(host_pfad.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    LARGE_INTEGER laenge{};
    if (datei == INVALID_HANDLE_VALUE || !GetFileSizeEx(datei, &laenge)) {
        fehler.assign(static_cast<int>(GetLastError()), std::system_category());
    } else if (laenge.QuadPart > 0) {
        const HANDLE bild = CreateFileMappingW(datei, nullptr, PAGE_READONLY, 0, 0, nullptr);
        m_bytes = bild ? static_cast<const char*>(MapViewOfFile(bild, FILE_MAP_READ, 0, 0, 0)) : nullptr;
        if (m_bytes)
            m_laenge = static_cast<std::size_t>(laenge.QuadPart);
        else
            fehler.assign(static_cast<int>(GetLastError()), std::system_category());
        if (bild) CloseHandle(bild);
    }
    if (datei != INVALID_HANDLE_VALUE) CloseHandle(datei);
}

Abbild::Abbild(Abbild&& anderes) noexcept
    : m_bytes(std::exchange(anderes.m_bytes, nullptr)), m_laenge(std::exchange(anderes.m_laenge, 0))
{
}

Abbild& Abbild::operator=(Abbild&& anderes) noexcept
{
    std::swap(m_bytes, anderes.m_bytes);
    std::swap(m_laenge, anderes.m_laenge);
    return *this;
}

Abbild::~Abbild()
{
    if (m_bytes) UnmapViewOfFile(m_bytes);
}

}  // namespace jorv
