// A fence around a target that deletes and writes files: the system itself refuses this process every change outside.
#pragma once

#include <filesystem>

namespace jorv::fuzz {

/// From now on this process and its children may change nothing on the disk but in `ordner` and in the current
/// directory (where libFuzzer keeps its inputs), may write no file larger than 64 kB, and start no program. False
/// when the system can't promise it; then nothing of that kind may be tried.
bool einzaeunen(const std::filesystem::path& ordner);

}  // namespace jorv::fuzz
