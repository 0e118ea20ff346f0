// Calls the console program in-process and keeps what it printed.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "konsole/programm.h"

namespace jorv::hilfen {

struct Konsolenlauf {
    int status = -1;
    std::string aus, err;
};

inline Konsolenlauf konsole(const std::vector<std::string>& worte)
{
    std::ostringstream aus, err;
    Konsolenlauf lauf;
    lauf.status = programm({aus, err, false, {}}, worte);
    lauf.aus = aus.str();
    lauf.err = err.str();
    return lauf;
}

}  // namespace jorv::hilfen
