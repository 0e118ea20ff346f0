#include "plattform/zeitgrenze.h"

#include <algorithm>
#include <cstdlib>

#include "plattform/zahl.h"

namespace jorv {

std::chrono::seconds zeitgrenze()
{
    constexpr int mindestens = 2, vorgabe = 600;
    const char* wert = std::getenv("JORV_FRIST");
    return std::chrono::seconds(std::max(mindestens, wert ? ganz_streng(wert).value_or(vorgabe) : vorgabe));
}

}  // namespace jorv
