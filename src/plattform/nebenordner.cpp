#include "plattform/nebenordner.h"
#include "plattform/hostpfad.h"

#include "plattform/pfad.h"
#include "plattform/text.h"

namespace jorv {

namespace fs = std::filesystem;

namespace {

std::string name_1252(const fs::path& pfad)
{
    return text_aus_utf8(utf8(pfad.filename())).value_or("");
}

std::error_code verschieben(const Dateisystem& dateien, const fs::path& von, std::string_view nach)
{
    std::error_code fehler;
    for (fs::directory_iterator lauf(von, fehler), ende; !fehler && lauf != ende; lauf.increment(fehler)) {
        const auto art = lauf->symlink_status(fehler).type();
        if (fehler || (art != fs::file_type::regular && art != fs::file_type::directory)) continue;
        const std::string ziel = pfad_verbinden(nach, name_1252(lauf->path()));
        if (art == fs::file_type::regular)
            fehler = dateien.host_verschieben(lauf->path(), ziel);
        else if (!(fehler = dateien.ordner_anlegen(ziel)))
            fehler = verschieben(dateien, lauf->path(), ziel);
        if (fehler) break;
    }
    return fehler;
}

}  // namespace

Nebenordner::Nebenordner(const Dateisystem& dateien, std::string_view ordner, int zaehler)
    : m_dateien(dateien), m_ordner(ordner)
{
    const fs::path neu = dateien.temporaer(ordner, "lauf", zaehler);
    std::error_code fehler;
    fs::remove_all(neu, fehler);
    if (!neu.empty() && fs::create_directory(neu, fehler)) m_ort = neu;
}

Nebenordner::~Nebenordner()
{
    std::error_code ohne;
    if (!m_ort.empty()) fs::remove_all(m_ort, ohne);
}

std::error_code Nebenordner::zeigen(const std::function<bool(std::string_view)>& zaehlt) const
{
    std::error_code fehler;
    for (const auto& eintrag : m_dateien.ordner_lesen(m_ordner)) {
        if (eintrag.ordner || eintrag.name.starts_with('.') || !zaehlt(eintrag.name)) continue;
        const fs::path name(reinterpret_cast<const char8_t*>(utf8_aus_1252(eintrag.name).c_str()));
        fs::create_symlink(".." / name, m_ort / name, fehler);
        if (fehler) return fehler;
    }
    return {};
}

std::error_code Nebenordner::abliefern() const
{
    if (const auto fehler = verschieben(m_dateien, m_ort, m_ordner)) return fehler;
    // What is left are links and the emptied folders.
    std::error_code fehler;
    for (fs::directory_iterator lauf(m_ort, fehler), ende; !fehler && lauf != ende; lauf.increment(fehler))
        if (!lauf->is_symlink(fehler)) fs::remove_all(lauf->path(), fehler);
    return fehler;
}

}  // namespace jorv
