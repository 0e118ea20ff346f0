// Drive list Drive1 and directory list Dir1, as the directory picker and the file picker share them. The directory list
// shows the way from the root to the open directory and its subdirectories.
#pragma once

#include <QTreeWidget>
#include <functional>
#include <string>

#include "modell/Global.h"

class QComboBox;
class QGridLayout;

namespace jorv {

class Verzeichnisliste final : public QTreeWidget {
public:
    Verzeichnisliste(const Global& g, QWidget* eltern);

    /// Puts labels and lists into a dialog's layout, the drive list in `zeile`, the directory list below.
    void einbauen(QGridLayout& raster, int zeile);

    /// Opens a directory, or the nearest one above it that exists.
    void oeffnen(std::string_view pfad);
    /// The open directory.
    const std::string& verzeichnis() const { return m_verzeichnis; }
    /// The directory under the bar.
    std::string markiert() const;

    /// Another directory was opened; the bar was moved.
    std::function<void()> bei_wechsel, bei_markierung;

protected:
    void keyPressEvent(QKeyEvent* ereignis) override;

private:
    QTreeWidgetItem* weg_anlegen();
    void markiertes_oeffnen();

    const Global& m_g;
    QComboBox* Drive1;
    std::string m_verzeichnis;
};

}  // namespace jorv
