#include "ui/Handbuchfenster.h"

#include <QListWidget>
#include <QShortcut>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextFrame>
#include <QTextTable>

namespace jorv {

namespace {

constexpr int stelle_im_text = Qt::UserRole;

void verzeichnis_fuellen(QListWidget& verzeichnis, const QTextDocument& text)
{
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        const int stufe = block.blockFormat().headingLevel();
        if (stufe != 2 && stufe != 3) continue;
        auto* eintrag = new QListWidgetItem(QString(stufe == 3 ? 4 : 0, QLatin1Char(' ')) + block.text(), &verzeichnis);
        eintrag->setData(stelle_im_text, block.position());
    }
}

void tabellen_gestalten(QTextDocument& text)
{
    for (QTextFrame* rahmen : text.rootFrame()->childFrames())
        if (auto* tabelle = qobject_cast<QTextTable*>(rahmen)) {
            QTextTableFormat form = tabelle->format();
            form.setBorderCollapse(true);
            form.setBorderBrush(QColor(190, 196, 202));
            form.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            form.setCellPadding(4);
            form.setCellSpacing(0);
            tabelle->setFormat(form);
        }
}

}  // namespace

void handbuch_zeigen(const QString& markdown)
{
    auto* fenster = new QSplitter(Qt::Horizontal);
    fenster->setObjectName(QStringLiteral("Handbuchfenster"));
    fenster->setAttribute(Qt::WA_DeleteOnClose);
    fenster->setWindowTitle(QStringLiteral("Benutzerhandbuch – Jorv+"));
    auto* verzeichnis = new QListWidget(fenster);
    auto* text = new QTextBrowser(fenster);
    text->setOpenExternalLinks(true);
    text->document()->setDocumentMargin(16);
    text->setMarkdown(markdown);
    tabellen_gestalten(*text->document());
    verzeichnis_fuellen(*verzeichnis, *text->document());
    QObject::connect(verzeichnis, &QListWidget::currentItemChanged, text, [text](const QListWidgetItem* eintrag) {
        // From the end back: the heading then stands at the upper edge and not at the lower one.
        text->moveCursor(QTextCursor::End);
        QTextCursor stelle(text->document());
        stelle.setPosition(eintrag->data(stelle_im_text).toInt());
        text->setTextCursor(stelle);
    });
    QObject::connect(new QShortcut(QKeySequence(Qt::Key_Escape), fenster), &QShortcut::activated, fenster,
                     &QWidget::close);
    fenster->setStretchFactor(1, 1);
    fenster->setSizes({260, 700});
    fenster->resize(960, 720);
    fenster->show();
}

}  // namespace jorv
