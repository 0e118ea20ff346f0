#include <windows.h>

#include "plattform/laufwerke.h"
#include "plattform/text.h"

namespace jorv {

namespace fs = std::filesystem;

Laufwerke Laufwerke::aus_umgebung()
{
    return {};
}

void Laufwerke::zuordnen(std::string_view, fs::path) {}

void Laufwerke::vertreten(std::string_view, fs::path) {}

bool Laufwerke::hat_laufwerk(std::string_view laufwerk) const
{
    const auto pfad = host(std::string(links(laufwerk, 2)) + "\\");
    std::error_code fehler;
    return pfad && fs::exists(*pfad, fehler);
}

std::vector<std::string> Laufwerke::alle() const
{
    std::vector<std::string> namen;
    const DWORD maske = GetLogicalDrives();
    for (int i = 0; i < 26; ++i)
        if (maske >> i & 1u) namen.push_back({static_cast<char>('A' + i), ':'});
    return namen;
}

std::optional<fs::path> Laufwerke::eintrag(const fs::path& ordner, std::string_view name)
{
    const fs::path pfad = ordner / fs::path(reinterpret_cast<const char8_t*>(utf8_aus_1252(name).c_str()));
    std::error_code fehler;
    if (!fs::exists(pfad, fehler)) return std::nullopt;
    return pfad;
}

std::vector<Laufwerke::Inhalt> Laufwerke::inhalt(const fs::path& ordner)
{
    std::vector<Inhalt> liste;
    std::error_code fehler, ohne;
    for (fs::directory_iterator lauf(ordner.empty() ? fs::path(".") : ordner, fehler), ende; !fehler && lauf != ende;
         lauf.increment(fehler)) {
        const auto name = lauf->path().filename().u8string();
        liste.push_back({std::string(name.begin(), name.end()), lauf->is_directory(ohne)});
    }
    return liste;
}

std::optional<fs::path> Laufwerke::host(std::string_view dos_pfad) const
{
    if (dos_pfad.find('\0') != std::string_view::npos) return std::nullopt;
    return fs::path(reinterpret_cast<const char8_t*>(utf8_aus_1252(dos_pfad).c_str()));
}

std::optional<std::string> Laufwerke::dos(const fs::path& host_pfad) const
{
    std::error_code fehler;
    const auto utf8 = fs::absolute(host_pfad, fehler).make_preferred().u8string();
    if (fehler) return std::nullopt;
    return text_aus_utf8({reinterpret_cast<const char*>(utf8.data()), utf8.size()});
}

}  // namespace jorv
