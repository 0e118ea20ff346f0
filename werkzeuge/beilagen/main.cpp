// jorv-beilagen: makes what lies beside the programs: logos, icon, news text and manual.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <cstdio>

#include "beilagen/handbuch.h"
#include "beilagen/logos.h"
#include "beilagen/symboldatei.h"
#include "plattform/text.h"
#include "ui/Bilder.h"

namespace {

using namespace jorv;

int fehlschlag(const QString& text)
{
    std::fprintf(stderr, "STOP %s\n", qUtf8Printable(text));
    return 1;
}

bool schreiben(const QString& pfad, const QByteArray& bytes)
{
    QFile datei(pfad);
    return datei.open(QIODevice::WriteOnly) && datei.write(bytes) == bytes.size() && datei.flush();
}

int bilder(const QDir& ziel)
{
    for (const auto& logo : beilagen::logos())
        if (!logo.bild.save(ziel.filePath(logo.name + QStringLiteral(".bmp")), "BMP"))
            return fehlschlag(QStringLiteral("%1 kann nicht geschrieben werden").arg(logo.name));
    if (!programmbild().pixmap(256, 256).save(ziel.filePath(QStringLiteral("jorvplus.png"))))
        return fehlschlag(QStringLiteral("jorvplus.png kann nicht geschrieben werden"));
    return schreiben(ziel.filePath(QStringLiteral("Jorv.ICO")), beilagen::symboldatei(programmbild()))
               ? 0
               : fehlschlag(QStringLiteral("Jorv.ICO kann nicht geschrieben werden"));
}

// Windows-1252 with CR LF, as all texts beside the programs.
int text(const QString& quelle, const QString& ziel)
{
    QFile datei(quelle);
    if (!datei.open(QIODevice::ReadOnly)) return fehlschlag(QStringLiteral("%1 fehlt").arg(quelle));
    const auto bytes = text_aus_utf8(datei.readAll().replace('\n', "\r\n").toStdString());
    if (!bytes) return fehlschlag(QStringLiteral("%1 hält Windows-1252 nicht ein").arg(quelle));
    return schreiben(ziel, QByteArray::fromStdString(*bytes))
               ? 0
               : fehlschlag(QStringLiteral("%1 kann nicht geschrieben werden").arg(ziel));
}

}  // namespace

int main(int anzahl, char** werte)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(anzahl, werte);
    const QStringList worte = QApplication::arguments();
    if (worte.size() == 3 && worte[1] == QLatin1String("bilder")) return bilder(QDir(worte[2]));
    if (worte.size() == 4 && worte[1] == QLatin1String("text")) return text(worte[2], worte[3]);
    if (worte.size() == 4 && worte[1] == QLatin1String("handbuch"))
        return beilagen::handbuch_setzen(worte[2], worte[3])
                   ? 0
                   : fehlschlag(QStringLiteral("%1 kann nicht geschrieben werden").arg(worte[3]));
    std::fputs("Aufruf: jorv-beilagen bilder ORDNER | text QUELLE ZIEL | handbuch QUELLE.md ZIEL.pdf\n", stderr);
    return 2;
}
