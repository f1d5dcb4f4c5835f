#include "pixmapmanager.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QIcon>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QTextStream>

namespace {

const QString BuiltInPrinter = QStringLiteral("printer");
const QString BuiltInScanner = QStringLiteral("scanner");

QString normalized(const QString &model)
{
    return model.simplified().toLower();
}

// Whether needle occurs in text as whole words.
bool containsWords(const QString &text, const QString &needle)
{
    qsizetype from = 0;
    for (;;) {
        const qsizetype at = text.indexOf(needle, from);
        if (at < 0)
            return false;
        const qsizetype end = at + needle.size();
        const bool startOk = at == 0 || !text.at(at - 1).isLetterOrNumber();
        const bool endOk = end == text.size() || !text.at(end).isLetterOrNumber();
        if (startOk && endOk)
            return true;
        from = at + 1;
    }
}

// Both pictures are drawn on a 96 by 96 grid and scaled, in as many
// pixels as the screen has for size units.
QPixmap beginPicture(QPainter &p, int size)
{
    const qreal ratio = qGuiApp ? qGuiApp->devicePixelRatio() : 1.0;
    QPixmap pixmap(qRound(size * ratio), qRound(size * ratio));
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    p.begin(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 96.0, size / 96.0);
    return pixmap;
}

QBrush bodyBrush(qreal top, qreal bottom)
{
    QLinearGradient g(0, top, 0, bottom);
    g.setColorAt(0, QColor(0xf2, 0xf4, 0xf6));
    g.setColorAt(1, QColor(0xaa, 0xb4, 0xbf));
    return g;
}

} // namespace

PixmapManager::PixmapManager(const QString &shareDir)
{
    load(shareDir);
}

void PixmapManager::load(const QString &shareDir)
{
    m_entries.clear();
    const QDir dir(shareDir);
    QFile file(dir.filePath(QStringLiteral("pictures.ini")));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    QTextStream in(&file);
    while (!in.atEnd()) {
        const QString line = in.readLine().trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')) || line.startsWith(QLatin1Char('[')))
            continue;
        const qsizetype eq = line.indexOf(QLatin1Char('='));
        if (eq <= 0)
            continue;
        const QString model = normalized(line.left(eq));
        const QString picture = line.mid(eq + 1).trimmed();
        if (model.isEmpty() || picture.isEmpty())
            continue;
        const bool builtIn = picture == BuiltInPrinter || picture == BuiltInScanner;
        m_entries.append({ model, builtIn ? picture : QDir::cleanPath(dir.absoluteFilePath(picture)) });
    }
}

QString PixmapManager::pictureName(const QString &model) const
{
    const QString name = normalized(model);
    if (name.isEmpty())
        return QString();
    const Entry *best = nullptr;
    for (const Entry &e : m_entries) {
        if (e.model == name)
            return e.picture;
        if (containsWords(name, e.model) && (!best || e.model.size() > best->model.size()))
            best = &e;
    }
    return best ? best->picture : QString();
}

QPixmap PixmapManager::picture(const QString &model) const
{
    const QString name = pictureName(model);
    if (name == BuiltInScanner)
        return genericScanner();
    if (!name.isEmpty() && name != BuiltInPrinter) {
        // An icon draws an SVG picture for the screen's pixel ratio and takes
        // a "@2x" file beside a raster one; neither grows past PictureSize.
        const QPixmap pixmap = QIcon(name).pixmap(QSize(PictureSize, PictureSize), qGuiApp->devicePixelRatio());
        if (!pixmap.isNull())
            return pixmap;
    }
    return genericPrinter();
}

QPixmap PixmapManager::genericPrinter(int size)
{
    QPainter p;
    QPixmap pixmap = beginPicture(p, size);
    const QPen outline(QColor(0x4d, 0x59, 0x66), 1.5);
    const QPen paperEdge(QColor(0x6b, 0x77, 0x85), 1.5);
    p.setPen(paperEdge);
    p.setBrush(Qt::white);
    p.drawRect(QRectF(26, 10, 44, 28));                  // paper going in
    p.setPen(outline);
    p.setBrush(bodyBrush(34, 68));
    p.drawRoundedRect(QRectF(8, 34, 80, 34), 6, 6);       // body
    p.setPen(paperEdge);
    p.setBrush(Qt::white);
    p.drawRect(QRectF(18, 58, 60, 28));                  // printed sheet
    p.setPen(QPen(QColor(0x9a, 0xa6, 0xb2), 2));
    p.drawLine(QLineF(26, 66, 70, 66));
    p.drawLine(QLineF(26, 72, 62, 72));
    p.drawLine(QLineF(26, 78, 66, 78));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x39, 0x43, 0x4d));
    p.drawRoundedRect(QRectF(66, 42, 14, 4), 1, 1);      // panel
    p.setBrush(QColor(0x3f, 0xa3, 0x4d));
    p.drawEllipse(QPointF(76, 52), 3, 3);                // power light
    p.end();
    return pixmap;
}

QPixmap PixmapManager::genericScanner(int size)
{
    QPainter p;
    QPixmap pixmap = beginPicture(p, size);
    const QPen outline(QColor(0x4d, 0x59, 0x66), 1.5);
    QPainterPath lid;
    lid.moveTo(10, 40);
    lid.lineTo(18, 26);
    lid.lineTo(78, 26);
    lid.lineTo(86, 40);
    lid.closeSubpath();
    p.setPen(outline);
    p.setBrush(QColor(0xdf, 0xe4, 0xe9));
    p.drawPath(lid);
    p.setBrush(bodyBrush(40, 70));
    p.drawRoundedRect(QRectF(8, 40, 80, 30), 5, 5);      // body
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x7f, 0xb2, 0xe5));
    p.drawRect(QRectF(16, 46, 64, 6));                   // scan light
    p.setBrush(QColor(0x3f, 0xa3, 0x4d));
    p.drawEllipse(QPointF(78, 62), 3, 3);
    p.end();
    return pixmap;
}
