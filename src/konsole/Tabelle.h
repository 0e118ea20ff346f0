// Text in columns: each as wide as its widest cell. Windows-1252, so that a byte is a place.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

namespace jorv {

class Tabelle {
public:
    explicit Tabelle(std::vector<std::string> kopf) { zeile(std::move(kopf)); }
    void zeile(std::vector<std::string> zellen) { m_zeilen.push_back(std::move(zellen)); }
    int anzahl() const { return static_cast<int>(m_zeilen.size()) - 1; }

    /// All lines, each led by `einzug`, no blanks at their ends.
    std::string text(const std::string& einzug = "  ") const
    {
        std::vector<std::size_t> breiten;
        for (const auto& zellen : m_zeilen)
            for (std::size_t i = 0; i < zellen.size(); ++i) {
                if (i >= breiten.size()) breiten.push_back(0);
                breiten[i] = std::max(breiten[i], zellen[i].size());
            }
        std::string alles;
        for (const auto& zellen : m_zeilen) {
            std::string zeile = einzug;
            for (std::size_t i = 0; i < zellen.size(); ++i)
                zeile += zellen[i] + std::string(breiten[i] - zellen[i].size() + 2, ' ');
            zeile.resize(zeile.find_last_not_of(' ') + 1);
            alles += zeile + "\n";
        }
        return alles;
    }

private:
    std::vector<std::vector<std::string>> m_zeilen;
};

}  // namespace jorv
