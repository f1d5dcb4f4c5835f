#include "mimesourcefactory_ppdwidgets.h"

#include "ppdpicturetable.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QtEndian>

#include <memory>

namespace {

std::unique_ptr<MimeSourceFactory_ppdwidgets> &registered()
{
    static std::unique_ptr<MimeSourceFactory_ppdwidgets> factory;
    return factory;
}

} // namespace

void MimeSourceFactory_ppdwidgets::registerFactory()
{
    if (registered())
        return;
    registered() = std::make_unique<MimeSourceFactory_ppdwidgets>();
    // Pictures hold pixmap data; let them go while the application still runs.
    qAddPostRoutine(&MimeSourceFactory_ppdwidgets::unregisterFactory);
}

void MimeSourceFactory_ppdwidgets::unregisterFactory()
{
    registered().reset();
}

MimeSourceFactory_ppdwidgets *MimeSourceFactory_ppdwidgets::instance()
{
    return registered().get();
}

QImage MimeSourceFactory_ppdwidgets::data(const QString &name)
{
    const auto known = m_images.constFind(name);
    if (known != m_images.constEnd())
        return known.value();
    if (name.isNull())
        return QImage();
    const QImage image = decode(name);
    m_images.insert(name, image);
    return image;
}

QImage MimeSourceFactory_ppdwidgets::decode(const QString &name)
{
    const QByteArray key = name.toUtf8();
    const PPDPictureRow *row = ppdPictureTable;
    while (row->width != 0 && key != row->name)
        ++row;
    if (row->width == 0)
        return QImage();

    const QByteArray pixels = qUncompress(row->data, static_cast<qsizetype>(row->length));
    const qsizetype count = qsizetype(row->width) * row->height;
    if (row->depth != 32 || pixels.size() != count * 4) {
        qWarning("Picture %s is damaged", row->name);
        return QImage();
    }
    QImage image(row->width, row->height, row->alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    const uchar *in = reinterpret_cast<const uchar *>(pixels.constData());
    for (int y = 0; y < row->height; ++y) {
        QRgb *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < row->width; ++x, in += 4)
            line[x] = qFromBigEndian<quint32>(in);
    }
    return image;
}

QPixmap pixmapFromMimeSource(const QString &name)
{
    MimeSourceFactory_ppdwidgets *factory = MimeSourceFactory_ppdwidgets::instance();
    if (!factory)
        return QPixmap();
    // A screen above 100% gets the picture drawn at twice the size.
    if (qGuiApp && qGuiApp->devicePixelRatio() > 1.0 && name.endsWith(QLatin1String(".png"))) {
        const QImage sharp = factory->data(QString(name).insert(name.size() - 4, QLatin1String("@2x")));
        if (!sharp.isNull()) {
            QPixmap pixmap = QPixmap::fromImage(sharp);
            pixmap.setDevicePixelRatio(2.0);
            return pixmap;
        }
    }
    const QImage image = factory->data(name);
    return image.isNull() ? QPixmap() : QPixmap::fromImage(image);
}
