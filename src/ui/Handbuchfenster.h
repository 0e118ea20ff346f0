// The manual in a window of the program: for machines that have nothing to show a PDF with.
#pragma once

#include <QString>

namespace jorv {

/// Shows the manual from its Markdown text, its headings as a list beside it.
void handbuch_zeigen(const QString& markdown);

}  // namespace jorv
