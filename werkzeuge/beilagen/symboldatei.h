// Icon files: one picture in several sizes.
#pragma once

#include <QByteArray>
#include <QIcon>

namespace jorv::beilagen {

/// The bytes of an icon file with the sizes 16, 32, 48 and 256; the large one is packed as PNG, as the format wants it.
QByteArray symboldatei(const QIcon& bild);

}  // namespace jorv::beilagen
