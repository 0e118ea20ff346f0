// Environment variables for the time of a test.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

#ifdef _WIN32
#include "plattform/breit_windows.h"
#endif

namespace jorv::hilfen {

/// Set to that value (UTF-8), or taken away, until the object goes.
class Umgebungswert {
public:
    explicit Umgebungswert(std::string name, const std::optional<std::string>& wert = {}) : m_name(std::move(name))
    {
        if (const char* alt = std::getenv(m_name.c_str())) m_vorher = alt;
        setzen(wert);
    }
    Umgebungswert(const Umgebungswert&) = delete;
    Umgebungswert& operator=(const Umgebungswert&) = delete;
    ~Umgebungswert() { setzen(m_vorher); }
    void setzen(const std::optional<std::string>& wert) const
    {
#ifdef _WIN32
        _wputenv_s(breit(m_name).c_str(), breit(wert.value_or("")).c_str());
#else
        if (wert)
            ::setenv(m_name.c_str(), wert->c_str(), 1);
        else
            ::unsetenv(m_name.c_str());
#endif
    }

private:
    std::string m_name;
    std::optional<std::string> m_vorher;
};

/// The search path with a folder in front.
inline std::string suchpfad_hinter(const std::filesystem::path& ordner)
{
    const char* alt = std::getenv("PATH");
#ifdef _WIN32
    constexpr const char* trennung = ";";
#else
    constexpr const char* trennung = ":";
#endif
    return ordner.string() + trennung + (alt ? alt : "");
}

}  // namespace jorv::hilfen
