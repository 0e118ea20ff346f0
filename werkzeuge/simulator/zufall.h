// Random numbers by counter: a draw depends on its key alone (seed, stream, point, satellite, epoch ...), never on the
// order of the draws. So switching one effect on leaves the noise of all others as it was, and the bytes repeat on
// every platform, because only integers are mixed.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace jorv::simulator {

/// The finalising mix of the SplitMix64 generator (Steele, Lea, Flood 2014).
constexpr std::uint64_t mischen(std::uint64_t x)
{
    x += 0x9E3779B97F4A7C15u;
    x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9u;
    x = (x ^ (x >> 27)) * 0x94D049BB133111EBu;
    return x ^ (x >> 31);
}

/// A number for a name (FNV-1a), to be used in keys.
constexpr std::uint64_t kennung(std::string_view name)
{
    std::uint64_t h = 0xCBF29CE484222325u;
    for (const char c : name) h = (h ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
    return h;
}

/// A short sequence of draws that belongs to one key.
class Zufall {
public:
    Zufall(std::uint64_t saat, std::initializer_list<std::uint64_t> schluessel) : stand_(mischen(saat))
    {
        for (const std::uint64_t k : schluessel) stand_ = mischen(stand_ ^ mischen(k));
    }
    std::uint64_t ganz() { return mischen(stand_++); }
    /// Evenly spread in [0, 1).
    double gleich() { return static_cast<double>(ganz() >> 11) * 0x1p-53; }
    /// Evenly spread in [a, b).
    double zwischen(double a, double b) { return a + (b - a) * gleich(); }
    /// Normal with mean 0 and deviation 1: the sum of twelve 16-bit numbers, exact on every machine.
    double normal()
    {
        std::uint64_t summe = 0;
        for (int i = 0; i < 3; ++i) {
            const std::uint64_t g = ganz();
            summe += (g & 0xFFFF) + ((g >> 16) & 0xFFFF) + ((g >> 32) & 0xFFFF) + (g >> 48);
        }
        return (static_cast<double>(summe) - 393210.0) / 65536.0;
    }

private:
    std::uint64_t stand_;
};

/// The streams of the keys, one per effect.
enum class Strom : std::uint64_t {
    konstellation = 1,
    satellitenuhr,
    empfaengeruhr,
    mehrdeutigkeit,
    sprung,
    code,
    phase,
    mehrweg,
    bahn,
    signal
};
constexpr std::uint64_t nr(Strom s)
{
    return static_cast<std::uint64_t>(s);
}

}  // namespace jorv::simulator
