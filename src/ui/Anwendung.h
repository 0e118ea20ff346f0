// What the program asks of the toolkit as a whole: look, language, icon.
#pragma once

namespace jorv {

/// Before the QApplication is made.
void anwendung_vorbereiten();

/// Behind it: style, German texts of the toolkit's own dialogs, icon.
void anwendung_einrichten();

}  // namespace jorv
