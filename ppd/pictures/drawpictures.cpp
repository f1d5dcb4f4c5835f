// Paints the option pictures of the driver options dialog and writes them as
// PNG files into the directory given on the command line, each once more at
// twice the size ("NAME@2x.png") for screens at 200%. The PNGs are kept
// in the tree; rerun this (target qw_redraw_pictures) after changing a
// drawing. Only shapes are drawn, no text, so the result does not depend on
// the fonts of the machine.

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <cstdio>
#include <functional>

namespace {

const QColor kOutline(60, 60, 60);
const QColor kBody(200, 200, 205);
const QColor kPaper(255, 255, 255);
const QColor kBlue(40, 90, 200);

QImage canvas(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    return image;
}

void setup(QPainter &p)
{
    p.setRenderHint(QPainter::Antialiasing, true);
}

void drawDrop(QPainter &p, const QColor &colour)
{
    QPainterPath path;
    path.moveTo(8, 1.5);
    path.cubicTo(8, 1.5, 13.5, 8, 13.5, 10.5);
    path.cubicTo(13.5, 13.5, 11, 15, 8, 15);
    path.cubicTo(5, 15, 2.5, 13.5, 2.5, 10.5);
    path.cubicTo(2.5, 8, 8, 1.5, 8, 1.5);
    p.setPen(QPen(colour.darker(160), 1));
    p.setBrush(colour);
    p.drawPath(path);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, 170));
    p.drawEllipse(QRectF(5, 9, 2.5, 3));
}

// A printer seen from the front: paper on top, body, output slot.
void drawPrinter(QPainter &p)
{
    p.setPen(QPen(kOutline, 1));
    p.setBrush(kPaper);
    p.drawRect(QRectF(4.5, 1.5, 7, 5));
    p.setBrush(kBody);
    p.drawRoundedRect(QRectF(1.5, 6.5, 13, 6), 1.5, 1.5);
    p.setBrush(kPaper);
    p.drawRect(QRectF(4.5, 10.5, 7, 4));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(40, 180, 60));
    p.drawRect(QRectF(11.5, 8, 1.5, 1.5));
}

void drawBadge(QPainter &p, const QColor &colour)
{
    p.setPen(QPen(colour.darker(150), 1));
    p.setBrush(colour);
    p.drawEllipse(QRectF(8.5, 8.5, 7, 7));
}

void drawCheckBox(QPainter &p)
{
    p.setPen(QPen(kOutline, 1));
    p.setBrush(kPaper);
    p.drawRoundedRect(QRectF(2.5, 2.5, 11, 11), 1.5, 1.5);
}

void drawPage(QPainter &p, const QRectF &r)
{
    QPainterPath path;
    path.moveTo(r.left(), r.top());
    path.lineTo(r.right() - 3, r.top());
    path.lineTo(r.right(), r.top() + 3);
    path.lineTo(r.right(), r.bottom());
    path.lineTo(r.left(), r.bottom());
    path.closeSubpath();
    p.setPen(QPen(kOutline, 1));
    p.setBrush(kPaper);
    p.drawPath(path);
}

struct Picture
{
    const char *name;
    int width;
    int height;
    std::function<void(QPainter &)> draw;
};

const Picture kPictures[] = {
    {"bool_off.png", 16, 16, [](QPainter &p) { drawCheckBox(p); }},
    {"bool_on.png", 16, 16,
     [](QPainter &p) {
         drawCheckBox(p);
         p.setPen(QPen(QColor(30, 150, 50), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
         p.drawPolyline(QPolygonF({QPointF(5, 8), QPointF(7.5, 10.5), QPointF(11, 5)}));
     }},
    {"brightness.png", 16, 16,
     [](QPainter &p) {
         p.setPen(QPen(QColor(220, 150, 0), 1.2, Qt::SolidLine, Qt::RoundCap));
         for (int i = 0; i < 8; ++i) {
             const double a = i * M_PI / 4;
             p.drawLine(QPointF(8 + 5 * std::cos(a), 8 + 5 * std::sin(a)),
                        QPointF(8 + 7 * std::cos(a), 8 + 7 * std::sin(a)));
         }
         p.setBrush(QColor(255, 210, 40));
         p.drawEllipse(QPointF(8, 8), 3.5, 3.5);
     }},
    {"color_opt.png", 16, 16,
     [](QPainter &p) {
         p.setPen(Qt::NoPen);
         const QColor colours[] = {QColor(230, 40, 40, 200), QColor(40, 190, 60, 200), QColor(50, 90, 230, 200)};
         const QPointF centres[] = {QPointF(8, 5.5), QPointF(5.5, 10), QPointF(10.5, 10)};
         for (int i = 0; i < 3; ++i) {
             p.setBrush(colours[i]);
             p.drawEllipse(centres[i], 4.5, 4.5);
         }
     }},
    {"contrast.png", 16, 16,
     [](QPainter &p) {
         p.setPen(QPen(kOutline, 1));
         p.setBrush(kPaper);
         p.drawEllipse(QPointF(8, 8), 6.5, 6.5);
         p.setBrush(QColor(20, 20, 20));
         p.drawPie(QRectF(1.5, 1.5, 13, 13), 90 * 16, 180 * 16);
     }},
    {"cyan.png", 16, 16, [](QPainter &p) { drawDrop(p, QColor(0, 190, 230)); }},
    {"dither.png", 16, 16,
     [](QPainter &p) {
         p.setPen(QPen(kOutline, 1));
         p.setBrush(kPaper);
         p.drawRect(QRectF(1.5, 1.5, 13, 13));
         p.setPen(Qt::NoPen);
         p.setBrush(QColor(30, 30, 30));
         for (int y = 0; y < 6; ++y)
             for (int x = 0; x < 6; ++x)
                 if ((x + y) % 2 == 0 && x + y < 9)
                     p.drawRect(QRectF(2 + 2 * x, 2 + 2 * y, 2, 2));
     }},
    {"duplex.png", 16, 14,
     [](QPainter &p) {
         drawPage(p, QRectF(0.5, 0.5, 8, 11));
         drawPage(p, QRectF(6.5, 2.5, 8, 11));
         p.setPen(QPen(kBlue, 1.2, Qt::SolidLine, Qt::RoundCap));
         p.drawLine(QPointF(2.5, 6), QPointF(6, 6));
         p.drawLine(QPointF(8.5, 8), QPointF(12.5, 8));
         p.drawLine(QPointF(10.5, 6), QPointF(12.5, 8));
         p.drawLine(QPointF(10.5, 10), QPointF(12.5, 8));
     }},
    {"gamma.png", 16, 16,
     [](QPainter &p) {
         p.setPen(QPen(kOutline, 1));
         p.drawLine(QPointF(2.5, 1.5), QPointF(2.5, 13.5));
         p.drawLine(QPointF(2.5, 13.5), QPointF(14.5, 13.5));
         QPainterPath curve;
         curve.moveTo(2.5, 13.5);
         curve.cubicTo(4, 5, 8, 3, 14, 2.5);
         p.setPen(QPen(QColor(200, 60, 30), 1.4));
         p.setBrush(Qt::NoBrush);
         p.drawPath(curve);
     }},
    {"gsresol.png", 16, 14,
     [](QPainter &p) {
         p.setPen(Qt::NoPen);
         for (int y = 0; y < 4; ++y)
             for (int x = 0; x < 5; ++x) {
                 const int shade = 40 + 40 * ((x + y) % 5);
                 p.setBrush(QColor(shade, shade, shade));
                 p.drawEllipse(QPointF(2 + 3 * x, 2.5 + 3 * y), 1.3, 1.3);
             }
     }},
    {"imagetype.png", 18, 18,
     [](QPainter &p) {
         p.setPen(QPen(kOutline, 1));
         p.setBrush(QColor(170, 215, 250));
         p.drawRect(QRectF(1.5, 2.5, 15, 13));
         p.setPen(Qt::NoPen);
         p.setBrush(QColor(255, 200, 30));
         p.drawEllipse(QPointF(12.5, 6.5), 2, 2);
         p.setBrush(QColor(60, 150, 60));
         p.drawPolygon(QPolygonF({QPointF(2, 15), QPointF(7, 8), QPointF(10, 12), QPointF(12, 10), QPointF(16, 15)}));
     }},
    {"inputslot.png", 16, 16,
     [](QPainter &p) {
         drawPage(p, QRectF(3.5, 1.5, 9, 8));
         p.setPen(QPen(kOutline, 1));
         p.setBrush(kBody);
         QPainterPath tray;
         tray.moveTo(1.5, 8.5);
         tray.lineTo(14.5, 8.5);
         tray.lineTo(13.5, 14.5);
         tray.lineTo(2.5, 14.5);
         tray.closeSubpath();
         p.drawPath(tray);
         p.setPen(QPen(kOutline, 1.2, Qt::SolidLine, Qt::RoundCap));
         p.drawLine(QPointF(6, 11.5), QPointF(10, 11.5));
     }},
    {"list.png", 16, 16,
     [](QPainter &p) {
         for (int i = 0; i < 3; ++i) {
             const double y = 3.5 + 4.5 * i;
             p.setPen(Qt::NoPen);
             p.setBrush(kBlue);
             p.drawEllipse(QPointF(3, y), 1.5, 1.5);
             p.setPen(QPen(kOutline, 1.4, Qt::SolidLine, Qt::RoundCap));
             p.drawLine(QPointF(6.5, y), QPointF(14, y));
         }
     }},
    {"magenta.png", 16, 16, [](QPainter &p) { drawDrop(p, QColor(220, 30, 160)); }},
    {"numeric.png", 16, 16,
     [](QPainter &p) {
         p.setPen(QPen(kOutline, 1));
         p.setBrush(kPaper);
         p.drawRect(QRectF(0.5, 3.5, 10, 9));
         p.setBrush(kBody);
         p.drawRect(QRectF(10.5, 3.5, 5, 9));
         p.setPen(Qt::NoPen);
         p.setBrush(kOutline);
         p.drawPolygon(QPolygonF({QPointF(11.5, 7.5), QPointF(14.5, 7.5), QPointF(13, 5)}));
         p.drawPolygon(QPolygonF({QPointF(11.5, 8.5), QPointF(14.5, 8.5), QPointF(13, 11)}));
         p.setPen(QPen(kBlue, 1.2, Qt::SolidLine, Qt::RoundCap));
         p.drawLine(QPointF(3, 6), QPointF(3, 10));
         p.drawLine(QPointF(5.5, 6), QPointF(8, 6));
         p.drawLine(QPointF(8, 6), QPointF(5.5, 10));
         p.drawLine(QPointF(5.5, 10), QPointF(8, 10));
     }},
    {"pagesize.png", 16, 16,
     [](QPainter &p) {
         drawPage(p, QRectF(3.5, 0.5, 9, 12));
         p.setPen(QPen(kBlue, 1));
         p.drawLine(QPointF(3.5, 14.5), QPointF(12.5, 14.5));
         p.drawLine(QPointF(3.5, 13), QPointF(3.5, 16));
         p.drawLine(QPointF(12.5, 13), QPointF(12.5, 16));
         p.drawLine(QPointF(1, 0.5), QPointF(1, 12.5));
     }},
    {"printer_adjust.png", 16, 16,
     [](QPainter &p) {
         drawPrinter(p);
         p.setPen(QPen(QColor(90, 90, 90), 1.2));
         p.drawLine(QPointF(9, 14.5), QPointF(15.5, 14.5));
         p.setPen(QPen(kOutline, 1));
         p.setBrush(QColor(240, 170, 40));
         p.drawRect(QRectF(11.5, 12.5, 2, 4));
     }},
    {"printer_extra.png", 16, 16,
     [](QPainter &p) {
         drawPrinter(p);
         drawBadge(p, QColor(40, 170, 60));
         p.setPen(QPen(Qt::white, 1.4));
         p.drawLine(QPointF(12, 10), QPointF(12, 14));
         p.drawLine(QPointF(10, 12), QPointF(14, 12));
     }},
    {"printer_general.png", 16, 16,
     [](QPainter &p) {
         drawPrinter(p);
         drawBadge(p, kBlue);
         p.setPen(Qt::NoPen);
         p.setBrush(Qt::white);
         p.drawEllipse(QPointF(12, 12), 1.5, 1.5);
     }},
    {"printer_install.png", 16, 16,
     [](QPainter &p) {
         drawPrinter(p);
         p.setPen(QPen(QColor(120, 80, 20), 1));
         p.setBrush(QColor(230, 180, 90));
         p.drawRect(QRectF(9.5, 9.5, 6, 6));
         p.drawLine(QPointF(9.5, 11.5), QPointF(15.5, 11.5));
     }},
    {"printer_jcl.png", 16, 16,
     [](QPainter &p) {
         drawPrinter(p);
         p.setPen(QPen(kOutline, 1));
         p.setBrush(QColor(30, 30, 30));
         p.drawRect(QRectF(8.5, 8.5, 7, 7));
         p.setPen(QPen(QColor(80, 230, 80), 1));
         p.drawLine(QPointF(10, 10.5), QPointF(11.5, 12));
         p.drawLine(QPointF(11.5, 12), QPointF(10, 13.5));
         p.drawLine(QPointF(12.5, 13.5), QPointF(14, 13.5));
     }},
    {"printer.png", 16, 16, [](QPainter &p) { drawPrinter(p); }},
    {"resol.png", 16, 14,
     [](QPainter &p) {
         // Blue, not black: the dots must show on a dark scheme too.
         p.setPen(Qt::NoPen);
         p.setBrush(kBlue);
         for (int y = 0; y < 6; ++y)
             for (int x = 0; x < 7; ++x)
                 p.drawRect(QRectF(1 + 2 * x, 1 + 2 * y, 1, 1));
     }},
    {"saturation.png", 16, 16,
     [](QPainter &p) {
         QLinearGradient gradient(QPointF(1, 0), QPointF(15, 0));
         gradient.setColorAt(0, QColor(150, 150, 150));
         gradient.setColorAt(1, QColor(230, 20, 20));
         p.setPen(QPen(kOutline, 1));
         p.setBrush(gradient);
         p.drawRect(QRectF(0.5, 4.5, 15, 7));
     }},
    {"yellow.png", 16, 16, [](QPainter &p) { drawDrop(p, QColor(250, 220, 0)); }},
};

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s OUTPUT_DIRECTORY\n", argv[0]);
        return 2;
    }
    const QDir dir(QString::fromLocal8Bit(argv[1]));
    if (!dir.exists() && !QDir().mkpath(dir.path())) {
        std::fprintf(stderr, "cannot create %s\n", argv[1]);
        return 1;
    }
    for (const Picture &picture : kPictures) {
        for (int scale : {1, 2}) {
            QImage image = canvas(picture.width * scale, picture.height * scale);
            {
                QPainter painter(&image);
                setup(painter);
                painter.scale(scale, scale);
                picture.draw(painter);
            }
            QString name = QLatin1String(picture.name);
            if (scale == 2)
                name.insert(name.size() - 4, QLatin1String("@2x"));
            if (!image.save(dir.filePath(name), "PNG")) {
                std::fprintf(stderr, "cannot write %s\n", qPrintable(dir.filePath(name)));
                return 1;
            }
        }
    }
    return 0;
}
