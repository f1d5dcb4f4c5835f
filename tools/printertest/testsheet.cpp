#include "testsheet.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPdfWriter>

namespace {

// Millimetres to device pixels of the writer.
struct Mm
{
    double perMm;
    double operator()(double mm) const { return mm * perMm; }
};

void drawFrame(QPainter &p, const QRectF &page, const Mm &mm)
{
    p.setPen(QPen(Qt::black, mm(0.3)));
    // Frames 5 and 10 mm in from the edge: the first one missing shows
    // that the printer can't print that close to the edge.
    for (double inset : { 5.0, 10.0 })
        p.drawRect(page.adjusted(mm(inset), mm(inset), -mm(inset), -mm(inset)));

    // Ruler ticks every 10 mm along the top and left of the outer frame.
    for (double x = 10; mm(x) < page.width() - mm(5); x += 10)
        p.drawLine(QPointF(mm(x), mm(5)), QPointF(mm(x), mm(x == 50 || x == 100 || x == 150 ? 9 : 7)));
    for (double y = 10; mm(y) < page.height() - mm(5); y += 10)
        p.drawLine(QPointF(mm(5), mm(y)), QPointF(mm(7), mm(y)));

    // A cross in the middle shows whether the image is centred.
    const QPointF c = page.center();
    p.drawLine(c - QPointF(mm(8), 0), c + QPointF(mm(8), 0));
    p.drawLine(c - QPointF(0, mm(8)), c + QPointF(0, mm(8)));
    p.drawEllipse(c, mm(5), mm(5));
}

void drawBars(QPainter &p, const QRectF &area, const Mm &mm)
{
    const int steps = 11;
    const double w = area.width() / steps;
    p.setPen(Qt::NoPen);
    for (int i = 0; i < steps; ++i) {
        const int level = 255 - i * 255 / (steps - 1);
        p.setBrush(QColor(level, level, level));
        p.drawRect(QRectF(area.left() + i * w, area.top(), w, mm(12)));
    }
    const QColor colours[] = { Qt::cyan, Qt::magenta, Qt::yellow, Qt::black, Qt::red, Qt::green, Qt::blue };
    const double cw = area.width() / 7;
    for (int i = 0; i < 7; ++i) {
        p.setBrush(colours[i]);
        p.drawRect(QRectF(area.left() + i * cw, area.top() + mm(16), cw, mm(12)));
    }
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(Qt::black, mm(0.2)));
    p.drawRect(QRectF(area.left(), area.top(), area.width(), mm(12)));
    p.drawRect(QRectF(area.left(), area.top() + mm(16), area.width(), mm(12)));
}

} // namespace

bool TestSheet::writePdf(const QString &fileName) const
{
    QPdfWriter writer(fileName);
    writer.setPageSize(pageSize);
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    writer.setResolution(300);
    writer.setTitle(QCoreApplication::translate("TestSheet", "Test page for %1").arg(queue));
    writer.setCreator(QStringLiteral("printertest"));

    QPainter p;
    if (!p.begin(&writer))
        return false;
    const Mm mm{ writer.resolution() / 25.4 };
    const QRectF page(0, 0, writer.width(), writer.height());
    drawFrame(p, page, mm);

    QFont heading(QStringLiteral("Sans Serif"));
    heading.setPointSizeF(22);
    heading.setBold(true);
    p.setFont(heading);
    p.setPen(Qt::black);
    const QRectF text = page.adjusted(mm(20), mm(20), -mm(20), -mm(20));
    p.drawText(text, Qt::AlignLeft | Qt::AlignTop, QCoreApplication::translate("TestSheet", "Printer test page"));

    QFont body(QStringLiteral("Sans Serif"));
    body.setPointSizeF(11);
    p.setFont(body);
    const QString rows[][2] = {
        { QCoreApplication::translate("TestSheet", "Printer:"), queue },
        { QCoreApplication::translate("TestSheet", "Driver:"), driver },
        { QCoreApplication::translate("TestSheet", "Connection:"), deviceUri },
        { QCoreApplication::translate("TestSheet", "Computer:"), host },
        { QCoreApplication::translate("TestSheet", "Printed:"), QLocale().toString(printed, QLocale::LongFormat) },
        { QCoreApplication::translate("TestSheet", "Paper:"), pageSize.name() },
    };
    double y = text.top() + mm(18);
    const double line = mm(7);
    for (const auto &row : rows) {
        p.drawText(QRectF(text.left(), y - line + mm(2), mm(32), line), Qt::AlignLeft | Qt::AlignBottom, row[0]);
        p.drawText(QRectF(text.left() + mm(32), y - line + mm(2), text.width() - mm(32), line),
                   Qt::AlignLeft | Qt::AlignBottom | Qt::TextSingleLine,
                   p.fontMetrics().elidedText(row[1], Qt::ElideMiddle, static_cast<int>(text.width() - mm(32))));
        y += line;
    }

    p.drawText(QRectF(text.left(), y + mm(4), text.width(), mm(30)), Qt::TextWordWrap,
               QCoreApplication::translate("TestSheet",
                                           "If you can read this page, the printer works. Both frames should be "
                                           "complete, the grey steps distinct and the colours clean."));

    drawBars(p, QRectF(text.left(), text.bottom() - mm(40), text.width(), mm(30)), mm);
    return p.end();
}

QPageSize TestSheet::pageSizeForMedia(const QString &media, const QPageSize &fallback)
{
    const QString m = media.toLower();
    if (m.contains(QLatin1String("letter")))
        return QPageSize(QPageSize::Letter);
    if (m.contains(QLatin1String("legal")))
        return QPageSize(QPageSize::Legal);
    if (m.contains(QLatin1String("a4")))
        return QPageSize(QPageSize::A4);
    if (m.contains(QLatin1String("a5")))
        return QPageSize(QPageSize::A5);
    return fallback;
}
