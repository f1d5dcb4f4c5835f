#ifndef QUEUEWIZ_PIXMAPMANAGER_H
#define QUEUEWIZ_PIXMAPMANAGER_H

#include <QList>
#include <QPixmap>
#include <QString>

// Pictures of devices by model. The share directory's "pictures.ini" names
// them, one "MODEL=FILE" line each ("#" starts a comment, "[...]" lines are
// ignored); FILE is relative to the folder of pictures.ini, or one of the
// built-in names "printer" and "scanner". A model without an entry, or
// whose file can't be read, gets the built-in printer picture.
class PixmapManager
{
public:
    static constexpr int PictureSize = 96;

    PixmapManager() = default;
    explicit PixmapManager(const QString &shareDir);

    // Reads "<shareDir>/pictures.ini"; a missing file leaves no entries.
    void load(const QString &shareDir);

    // The entry for a model: the exact name (case and runs of blanks
    // ignored), else the longest entry found as whole words in the model
    // name. Empty when none fits.
    QString pictureName(const QString &model) const;
    QPixmap picture(const QString &model) const;

    static QPixmap genericPrinter(int size = PictureSize);
    static QPixmap genericScanner(int size = PictureSize);

private:
    struct Entry
    {
        QString model;    // lower case, blanks simplified
        QString picture;  // absolute path or built-in name
    };

    QList<Entry> m_entries;
};

#endif
