#include <windows.h>

#include "plattform/breit_windows.h"
#include "plattform/hostpfad.h"
#include "plattform/laufwerke.h"
#include "plattform/pfad.h"
#include "plattform/text.h"

namespace jorv {

namespace fs = std::filesystem;

namespace {

fs::path host_pfad(std::string_view dos_pfad)
{
    return breit(utf8_aus_1252(dos_pfad));
}

}  // namespace

Laufwerke Laufwerke::aus_umgebung()
{
    return {};
}

void Laufwerke::zuordnen(std::string_view dos_wurzel, fs::path host_ordner)
{
    m_tabelle.push_back({klein(dos_wurzel), std::move(host_ordner), std::string(dos_wurzel)});
}

void Laufwerke::vertreten(std::string_view, fs::path) {}

const Laufwerke::Zuordnung* Laufwerke::laengste(std::string_view dos_pfad) const
{
    for (const auto& z : m_tabelle)
        if (klein(links(dos_pfad, z.dos.size())) == z.dos &&
            (dos_pfad.size() == z.dos.size() || dos_pfad[z.dos.size()] == '\\'))
            return &z;
    return nullptr;
}

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
    WIN32_FIND_DATAW fund{};
    const HANDLE suche = FindFirstFileW((ordner / host_pfad(name)).c_str(), &fund);
    if (suche == INVALID_HANDLE_VALUE) return std::nullopt;
    FindClose(suche);
    return ordner / fund.cFileName;
}

std::vector<Laufwerke::Inhalt> Laufwerke::inhalt(const fs::path& ordner)
{
    std::vector<Inhalt> liste;
    std::error_code fehler, ohne;
    for (fs::directory_iterator lauf(ordner.empty() ? fs::path(".") : ordner, fehler), ende; !fehler && lauf != ende;
         lauf.increment(fehler)) {
        liste.push_back({utf8(lauf->path().filename()), lauf->is_directory(ohne)});
    }
    return liste;
}

std::optional<fs::path> Laufwerke::host(std::string_view dos_pfad) const
{
    if (dos_pfad.find('\0') != std::string_view::npos) return std::nullopt;
    const Zuordnung* z = laengste(dos_pfad);
    return z ? z->host / host_pfad(dos_pfad.substr(z->dos.size())).relative_path() : host_pfad(dos_pfad);
}

std::optional<std::string> Laufwerke::dos(const fs::path& host_pfad) const
{
    for (const auto& z : m_tabelle) {
        const fs::path rest = host_pfad.lexically_relative(z.host);
        if (!rest.empty() && *rest.begin() != "..")
            return pfad_verbinden(z.name,
                                  text_aus_utf8(schmal(fs::path(rest).make_preferred().wstring())).value_or(""));
    }
    std::error_code fehler;
    const fs::path ganz = fs::absolute(host_pfad, fehler).make_preferred();
    if (fehler) return std::nullopt;
    return text_aus_utf8(utf8(ganz));
}

}  // namespace jorv
