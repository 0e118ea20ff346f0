// A fuzz target: a reader that is fed with any bytes, and the property that must hold for all of them. Alone in a
// program it runs under libFuzzer; together they are the replay of the corpus in the test run.
#pragma once

#include <string_view>
#include <vector>

namespace jorv::fuzz {

struct Ziel {
    std::string_view name;
    void (*pruefen)(std::string_view bytes);
};

/// The targets of this program.
std::vector<Ziel>& ziele();

struct Anmeldung {
    Anmeldung(std::string_view name, void (*pruefen)(std::string_view)) { ziele().push_back({name, pruefen}); }
};

/// Ends the program with the name of the property when it doesn't hold; the fuzzer then keeps the input.
void soll(bool erfuellt, std::string_view eigenschaft);

}  // namespace jorv::fuzz

/// JORV_ZIEL(rinex_kopf) { ... `bytes` ... }
#define JORV_ZIEL(name)                                                      \
    static void ziel_##name(std::string_view bytes);                         \
    static const jorv::fuzz::Anmeldung anmeldung_##name(#name, ziel_##name); \
    static void ziel_##name(std::string_view bytes)
