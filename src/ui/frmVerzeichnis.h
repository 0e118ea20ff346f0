// The directory picker: a drive list, a directory list, a line for the name of a new directory.
#pragma once

#include <QDialog>
#include <optional>
#include <string>

#include "modell/Global.h"

class QLabel;
class QLineEdit;

namespace jorv {

class Verzeichnisliste;

class frmVerzeichnis final : public QDialog {
public:
    /// Opens on the directory (DOS path), or on the nearest one above it that exists.
    frmVerzeichnis(Global& g, std::string_view anfang, QWidget* eltern);

    /// The chosen directory; it exists.
    const std::string& verzeichnis() const { return m_wahl; }

    /// Shows the picker; nothing when the user cancelled.
    static std::optional<std::string> waehlen(Global& g, std::string_view anfang, QWidget* eltern);

protected:
    void accept() override;
    void resizeEvent(QResizeEvent* ereignis) override;
    void showEvent(QShowEvent* ereignis) override;

private:
    void pfad_erneuern();

    Global& m_g;
    Verzeichnisliste* Dir1;
    QLineEdit* txt_neu;
    QLabel* lbl_pfad;
    std::string m_wahl;
};

}  // namespace jorv
