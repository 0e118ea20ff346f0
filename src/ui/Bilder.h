// The program's own vector pictures: the lights of the tree and the commands of the toolbar, sharp at every scale.
#pragma once

#include <QIcon>

namespace jorv {

/// The picture of an image number of the tree: 1 usable, 2 with reservation, 3 not usable, 9 off or without point
/// identifier, 11 computed. Shape carries the meaning, colour repeats it. Other numbers have an empty one.
QIcon baumbild(int nummer);

/// The picture of a menu entry; null when it has none.
QIcon befehlsbild(const QString& name);

/// The program's icon.
QIcon programmbild();

}  // namespace jorv
