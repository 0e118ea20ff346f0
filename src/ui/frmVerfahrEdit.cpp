#include "ui/frmVerfahrEdit.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QShortcut>
#include <QTableWidget>

#include "ui/Dialogbau.h"
#include "ui/qtext.h"

namespace jorv {

namespace {

// 1000 units of a fifteenth of a pixel.
constexpr int mindestbreite = 67;
// Frame and inner margin of a cell.
constexpr int zellrand = 8;

}  // namespace

frmVerfahrEdit::frmVerfahrEdit(const Global& g, QWidget* eltern)
    : QDialog(eltern), m_tabelle(g), grd_verfahren(benannt(new QTableWidget(this), "grd_verfahren"))
{
    setObjectName(QStringLiteral("frmVerfahrEdit"));
    setWindowTitle(QStringLiteral("Verfahren öffnen"));
    constexpr int spalten = static_cast<int>(verfahrensspalten);
    grd_verfahren->setColumnCount(spalten);
    grd_verfahren->setAccessibleName(QStringLiteral("Liste der Verfahren"));
    grd_verfahren->setSelectionBehavior(QAbstractItemView::SelectRows);
    grd_verfahren->setSelectionMode(QAbstractItemView::SingleSelection);
    grd_verfahren->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grd_verfahren->setTabKeyNavigation(false);
    grd_verfahren->setWordWrap(false);
    grd_verfahren->verticalHeader()->hide();
    QHeaderView* kopf = grd_verfahren->horizontalHeader();
    kopf->setSectionsClickable(true);
    kopf->setHighlightSections(false);
    kopf->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    kopf->setToolTip(QStringLiteral("Klick sortiert (auch Strg+1 bis Strg+7), Doppelklick passt die Breite an"));
    for (int s = 0; s < spalten; ++s) {
        const auto i = static_cast<std::size_t>(s);
        grd_verfahren->setHorizontalHeaderItem(s, new QTableWidgetItem(anzeige(verfahrenskopf.at(i))));
        kopf->resizeSection(s, fontMetrics().horizontalAdvance(anzeige(m_tabelle.Breitentext(i))) + zellrand);
        const auto* taste = new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + s)), this);
        connect(taste, &QShortcut::activated, this, [this, s] { sortieren(s); });
    }
    connect(kopf, &QHeaderView::sectionClicked, this, [this](int s) { sortieren(s); });
    connect(kopf, &QHeaderView::sectionDoubleClicked, this, [this](int s) { breite_anpassen(s); });
    connect(kopf, &QHeaderView::sectionHandleDoubleClicked, this, [this](int s) { breite_anpassen(s); });
    connect(grd_verfahren, &QTableWidget::cellDoubleClicked, this, [this] { accept(); });
    grd_verfahren->installEventFilter(this);

    auto* spalte = new QVBoxLayout(this);
    spalte->setSpacing(abstand_gruppen);
    spalte->addWidget(grd_verfahren);
    auto* knoepfe = knopfzeile(*this);
    spalte->addWidget(knoepfe);
    fuellen();
    waehlen(g.Verfahrensname);
    knoepfe->findChild<QPushButton*>(QStringLiteral("cmd_ok"))->setEnabled(grd_verfahren->rowCount() > 0);
    grd_verfahren->setFocus();
    resize(std::min(kopf->length() + 60, 1100), 480);
}

void frmVerfahrEdit::fuellen()
{
    const auto& zeilen = m_tabelle.zeilen();
    grd_verfahren->setRowCount(static_cast<int>(zeilen.size()));
    for (std::size_t z = 0; z < zeilen.size(); ++z)
        for (std::size_t s = 0; s < verfahrensspalten; ++s) {
            auto* zelle = new QTableWidgetItem(anzeige(zeilen[z][s]));
            zelle->setToolTip(zelle->text());
            grd_verfahren->setItem(static_cast<int>(z), static_cast<int>(s), zelle);
        }
}

void frmVerfahrEdit::sortieren(int spalte)
{
    const std::string gewaehlt = name();
    m_tabelle.sortieren(static_cast<std::size_t>(spalte));
    fuellen();
    grd_verfahren->horizontalHeader()->setSortIndicatorShown(true);
    grd_verfahren->horizontalHeader()->setSortIndicator(spalte, Qt::AscendingOrder);
    waehlen(gewaehlt);
}

void frmVerfahrEdit::breite_anpassen(int spalte)
{
    const auto s = static_cast<std::size_t>(spalte);
    int breite = fontMetrics().horizontalAdvance(anzeige(verfahrenskopf.at(s)));
    for (const auto& zeile : m_tabelle.zeilen())
        breite = std::max(breite, fontMetrics().horizontalAdvance(anzeige(zeile[s])));
    grd_verfahren->horizontalHeader()->resizeSection(spalte, std::max(breite + 2 * zellrand, mindestbreite));
}

void frmVerfahrEdit::waehlen(std::string_view name)
{
    const auto& zeilen = m_tabelle.zeilen();
    std::size_t zeile = 0;
    for (std::size_t z = 0; z < zeilen.size(); ++z)
        if (m_tabelle.Name(z) == name) zeile = z;
    if (!zeilen.empty()) grd_verfahren->setCurrentCell(static_cast<int>(zeile), 1);
}

std::string frmVerfahrEdit::name() const
{
    const int zeile = grd_verfahren->currentRow();
    return zeile < 0 ? std::string() : m_tabelle.Name(static_cast<std::size_t>(zeile));
}

bool frmVerfahrEdit::eventFilter(QObject* objekt, QEvent* ereignis)
{
    if (objekt == grd_verfahren && ereignis->type() == QEvent::KeyPress) {
        const int taste = static_cast<QKeyEvent*>(ereignis)->key();
        if ((taste == Qt::Key_Return || taste == Qt::Key_Enter) && grd_verfahren->currentRow() >= 0) {
            accept();
            return true;
        }
    }
    return QDialog::eventFilter(objekt, ereignis);
}

}  // namespace jorv
