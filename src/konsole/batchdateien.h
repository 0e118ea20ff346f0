// What every command that writes a batch prints at its end.
#pragma once

namespace jorv {

struct Lage;

/// The paths of the project's batch and of its call file, as text or JSON.
void dateien_nennen(Lage& lage);

}  // namespace jorv
