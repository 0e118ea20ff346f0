#include "ziel.h"

#include <cstdlib>
#include <iostream>

namespace jorv::fuzz {

std::vector<Ziel>& ziele()
{
    static std::vector<Ziel> alle;
    return alle;
}

void soll(bool erfuellt, std::string_view eigenschaft)
{
    if (erfuellt) return;
    std::cerr << "property broken: " << eigenschaft << '\n';
    std::abort();
}

}  // namespace jorv::fuzz
