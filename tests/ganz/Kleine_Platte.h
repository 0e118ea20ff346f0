// A disk of its own in the place of a folder, seen by this process and its children only, which can be filled up.
#pragma once

#include <sched.h>
#include <sys/mount.h>

#include <string>

#include "hilfen/Projekt.h"
#include "plattform/text.h"

namespace jorv::hilfen {

class Kleine_Platte {
public:
    Kleine_Platte(fs::path ort, std::string_view groesse) : m_ort(std::move(ort))
    {
        // Seen by nobody else, it goes with the process however that ends.
        m_da = ::unshare(CLONE_NEWNS) == 0 && ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
               ::mount("tmpfs", m_ort.c_str(), "tmpfs", 0, verkettet("size=", groesse).c_str()) == 0;
    }
    ~Kleine_Platte()
    {
        if (m_da) ::umount2(m_ort.c_str(), MNT_DETACH);
    }
    Kleine_Platte(const Kleine_Platte&) = delete;
    Kleine_Platte& operator=(const Kleine_Platte&) = delete;

    /// False without the rights to mount one.
    bool da() const { return m_da; }
    /// Leaves so many bytes free.
    void fuellen(std::uintmax_t bis_auf) const
    {
        const auto frei = fs::space(m_ort).available;
        if (frei > bis_auf) schreiben(m_ort / "fuellung", std::string(frei - bis_auf, 'x'));
    }
    void leeren() const { fs::remove(m_ort / "fuellung"); }

private:
    fs::path m_ort;
    bool m_da = false;
};

}  // namespace jorv::hilfen
