#ifndef QUEUEWIZ_MIMESOURCEFACTORY_PPDWIDGETS_H
#define QUEUEWIZ_MIMESOURCEFACTORY_PPDWIDGETS_H

#include <QHash>
#include <QImage>
#include <QPixmap>
#include <QString>

// Serves the compiled-in pictures of the driver options dialog by name
// ("pagesize.png", "printer.png", ...). Each picture is decoded on its first
// look-up and kept; unknown names give an empty image, kept as well.
class MimeSourceFactory_ppdwidgets
{
public:
    MimeSourceFactory_ppdwidgets() = default;
    MimeSourceFactory_ppdwidgets(const MimeSourceFactory_ppdwidgets &) = delete;
    MimeSourceFactory_ppdwidgets &operator=(const MimeSourceFactory_ppdwidgets &) = delete;

    // Makes the factory the one that pixmapFromMimeSource() asks. Later
    // calls do nothing. The factory is removed when the application ends.
    static void registerFactory();
    static void unregisterFactory();
    // The registered factory, or null.
    static MimeSourceFactory_ppdwidgets *instance();

    // The picture of that name; names compare exactly.
    QImage data(const QString &name);

private:
    static QImage decode(const QString &name);

    QHash<QString, QImage> m_images;
};

// The picture of that name from the registered factory; a null pixmap when
// there is no such picture or no factory.
QPixmap pixmapFromMimeSource(const QString &name);

#endif
