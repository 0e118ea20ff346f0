#include "plattform/ersatzdatei.h"

#include <fcntl.h>

#include <cerrno>
#include <charconv>
#include <utility>

#include "plattform/hostpfad.h"
#include "plattform/text.h"
#include "plattform/umgebung.h"
#include "plattform/wiederholen.h"

namespace jorv {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view marke = ".jorv-";

std::error_code grund()
{
    return {errno, std::generic_category()};
}

}  // namespace

std::string temporaerer_name(const fs::path& ziel, int versuch)
{
    const fs::path ordner = ziel.parent_path();
    const std::string name = verkettet(".", utf8(ziel.filename()), marke, prozess_kennung(), "-", versuch);
    return utf8(ordner / aus_utf8(name));
}

bool ist_ueberrest(std::string_view name)
{
    const auto stelle = name.rfind(marke);
    if (stelle == std::string_view::npos || !name.starts_with('.')) return false;
    long kennung = 0;
    const char* ende_des_namens = name.data() + name.size();
    const auto [ende, fehler] = std::from_chars(name.data() + stelle + marke.size(), ende_des_namens, kennung);
    return fehler == std::errc{} && ende != ende_des_namens && *ende == '-' && !prozess_lebt(kennung);
}

std::error_code alles_schreiben(const Systemaufrufe& aufrufe, int nummer, std::string_view bytes)
{
    while (!bytes.empty()) {
        const long n = ungestoert([&] { return aufrufe.schreiben(nummer, bytes.data(), bytes.size()); });
        if (n < 0) return grund();
        if (n == 0) return std::make_error_code(std::errc::no_space_on_device);
        bytes.remove_prefix(static_cast<std::size_t>(n));
    }
    return {};
}

Ersatzdatei::Ersatzdatei(const Systemaufrufe& aufrufe, fs::path ziel) : m_aufrufe(&aufrufe), m_ziel(std::move(ziel)) {}

Ersatzdatei::Ersatzdatei(Ersatzdatei&& andere) noexcept
    : m_aufrufe(andere.m_aufrufe),
      m_ziel(std::move(andere.m_ziel)),
      m_altes(andere.m_altes),
      m_name(std::exchange(andere.m_name, {})),
      m_nummer(std::exchange(andere.m_nummer, -1))
{
}

Ersatzdatei::~Ersatzdatei()
{
    if (m_nummer >= 0) m_aufrufe->schliessen(m_nummer);
    if (!m_name.empty()) ungestoert([&] { return m_aufrufe->loeschen(m_name.c_str()); });
}

fs::path Ersatzdatei::ordner() const
{
    return m_ziel.parent_path().empty() ? fs::path(".") : m_ziel.parent_path();
}

std::error_code Ersatzdatei::anlegen()
{
    std::error_code fehler;
    m_altes = fs::status(m_ziel, fehler);
    const bool da = fs::exists(m_altes);
    if (da && !fs::is_regular_file(m_altes))
        return std::make_error_code(fs::is_directory(m_altes) ? std::errc::is_a_directory
                                                              : std::errc::invalid_argument);
    if (da && (m_altes.permissions() & fs::perms::owner_write) == fs::perms::none)
        return std::make_error_code(std::errc::permission_denied);
    for (int versuch = 0; versuch < 100; ++versuch) {
        const std::string name = temporaerer_name(m_ziel, versuch);
        m_nummer = m_aufrufe->oeffnen(name.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0666);
        if (m_nummer >= 0) {
            m_name = name;
            return {};
        }
        if (errno != EEXIST && errno != EINTR) break;
    }
    return grund();
}

std::error_code Ersatzdatei::schreiben(std::string_view bytes)
{
    return alles_schreiben(*m_aufrufe, m_nummer, bytes);
}

std::error_code Ersatzdatei::sichern()
{
    return ungestoert([&] { return m_aufrufe->sichern(m_nummer); }) == 0 ? std::error_code{} : grund();
}

std::error_code Ersatzdatei::schliessen()
{
    return m_aufrufe->schliessen(std::exchange(m_nummer, -1)) == 0 || errno == EINTR ? std::error_code{} : grund();
}

std::error_code Ersatzdatei::einsetzen()
{
    std::error_code ohne;
    if (fs::exists(m_altes)) fs::permissions(aus_utf8(m_name), m_altes.permissions(), ohne);
    const auto aufruf = [&] { return m_aufrufe->umbenennen(m_name.c_str(), utf8(m_ziel).c_str()); };
    if (ungestoert(aufruf) != 0) return grund();
    m_name.clear();
    return {};
}

}  // namespace jorv
