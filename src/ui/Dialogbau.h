// What all dialogs share: named controls, labels with access keys, the row of buttons, paths that fit.
#pragma once

#include <QString>
#include <string_view>

class QDialog;
class QDialogButtonBox;
class QLabel;
class QWidget;

namespace jorv {

/// Distances of a dialog's layout, in pixels: inside a group and between groups.
inline constexpr int abstand_gruppe = 6, abstand_gruppen = 12;

/// Gives a control its name and returns it.
template <typename Steuerelement>
Steuerelement* benannt(Steuerelement* element, const char* name)
{
    element->setObjectName(QLatin1String(name));
    return element;
}

/// A label with an access key for a field, right-aligned to it.
QLabel* beschriftung(const QString& text, QWidget* feld);

/// OK (cmd_ok, the default) and "Abbrechen" (cmd_abbrechen) in the desktop's order, tied to the dialog.
QDialogButtonBox* knopfzeile(QDialog& dialog);

/// The path shortened in its middle to the label's width, whole in its tool tip.
void pfad_zeigen(QLabel& label, std::string_view pfad);

}  // namespace jorv
