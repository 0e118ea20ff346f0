// One-based array of records with a settable limit, so that a test can make growth fail.
#pragma once

#include <algorithm>
#include <limits>
#include <new>
#include <stdexcept>
#include <utility>
#include <vector>

namespace jorv {

template <typename T>
class Feld {
public:
    int anzahl() const { return static_cast<int>(m_werte.size()); }

    /// Index from 1 to anzahl(); anything else is a fault of the program.
    T& operator[](int i) { return m_werte.at(stelle(i)); }
    const T& operator[](int i) const { return m_werte.at(stelle(i)); }
    T& letztes() { return m_werte.back(); }

    /// One more element at the end; false (and nothing changed) when there is no room.
    [[nodiscard]] bool anfuegen(T wert = {})
    {
        if (anzahl() >= m_grenze) return false;
        try {
            m_werte.push_back(std::move(wert));
        } catch (const std::bad_alloc&) {
            return false;
        }
        return true;
    }

    /// New count, contents kept; false (and nothing changed) when there is no room.
    [[nodiscard]] bool groesse_setzen(int neu)
    {
        if (neu > m_grenze) return false;
        try {
            m_werte.resize(static_cast<std::size_t>(std::max(neu, 0)));
        } catch (const std::bad_alloc&) {
            return false;
        }
        return true;
    }

    /// Room for so many elements, so that growing up to them moves nothing; does nothing when there is none.
    void platz_schaffen(int anzahl)
    {
        try {
            m_werte.reserve(static_cast<std::size_t>(std::clamp(anzahl, 0, m_grenze)));
        } catch (const std::bad_alloc&) {
        }
    }

    /// Takes one element out; the later ones move down.
    void entfernen(int i) { m_werte.erase(m_werte.begin() + static_cast<std::ptrdiff_t>(stelle(i))); }
    void leeren() { m_werte.clear(); }

    /// No growth beyond this count from now on.
    void grenze_setzen(int grenze) { m_grenze = grenze; }

    auto begin() { return m_werte.begin(); }
    auto end() { return m_werte.end(); }
    auto begin() const { return m_werte.begin(); }
    auto end() const { return m_werte.end(); }

private:
    static std::size_t stelle(int i)
    {
        if (i < 1) throw std::out_of_range("Feld");
        return static_cast<std::size_t>(i - 1);
    }

    std::vector<T> m_werte;
    int m_grenze = std::numeric_limits<int>::max();
};

}  // namespace jorv
