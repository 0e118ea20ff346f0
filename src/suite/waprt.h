#pragma once
// Program waprt: prints the rows of an older batch from a result protocol that wa2 or wasoft left.

#include <string>

#include "suite/arbeitsordner.h"
#include "suite/aufruf.h"

namespace jorv::suite {

struct Ausdruck {
    int status = 1;
    std::string zeilen;  // for the standard output, which a batch collects as rows: nothing but rows
    std::string fehler;  // for the standard error
};

/// waprt FILE -SUd|-Sd0avpreoHAB|-VSbscd|+VS0sadveop [+U<zone>] [+F]: the short and the long row of a rover, the second
/// row of a baseline, the third one with its head. A protocol that is missing gives no output at all.
Ausdruck waprt(const Worte& worte, const Arbeitsordner& ordner);

}  // namespace jorv::suite
