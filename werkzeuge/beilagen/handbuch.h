// The manual as a PDF, set from its Markdown text: title page, contents with page numbers, numbered pages.
#pragma once

#include <QString>

namespace jorv::beilagen {

/// False when the source can't be read or the PDF can't be written.
bool handbuch_setzen(const QString& quelle, const QString& ziel);

}  // namespace jorv::beilagen
