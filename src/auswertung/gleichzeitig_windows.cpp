#include "auswertung/gleichzeitig.h"

namespace jorv {

int gleichzeitige_rover(const Global&)
{
    return 1;
}

}  // namespace jorv
