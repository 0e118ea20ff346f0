// The tree tre_punkte: shows the project's tree as it stands in the state. A rebuild keeps selection, scroll place and
// expansion.
#pragma once

#include <QTreeWidget>
#include <functional>
#include <string>

#include "modell/Global.h"

namespace jorv {

class Baumansicht final : public QTreeWidget {
public:
    explicit Baumansicht(QWidget* eltern);

    /// Takes the nodes over from g.baum. `hinweis` gives the tool tip of a child node from its parent's and its own
    /// text.
    void zeigen(const Global& g, const std::function<std::string(std::string_view, std::string_view)>& hinweis);

    /// Text of the selected node, empty without one.
    std::string gewaehlt() const;

    /// Called with the text of the node and of its parent; the parent's is empty for a top node.
    std::function<void(const std::string&knoten, const std::string&eltern)> bei_klick, bei_einstellungen;
    /// The same for the context menu, at a place on the screen; both texts are empty beside all nodes.
    std::function<void(const std::string& knoten, const std::string& eltern, QPoint ort)> bei_kontext;
    /// A top node was opened or closed.
    std::function<void(const std::string& schluessel, bool offen)> bei_klappen;

protected:
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void contextMenuEvent(QContextMenuEvent* ereignis) override;

private:
    QTreeWidgetItem* m_gedrueckt = nullptr;
    bool m_im_aufbau = false;
};

}  // namespace jorv
