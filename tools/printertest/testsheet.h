#ifndef QUEUEWIZ_TESTSHEET_H
#define QUEUEWIZ_TESTSHEET_H

#include <QDateTime>
#include <QPageSize>
#include <QString>

// The one-page test sheet: what queue printed it and how, a frame that
// shows where the printable area ends, and grey and colour bars.
class TestSheet
{
public:
    QString queue;
    QString driver;
    QString deviceUri;
    QString host;
    QDateTime printed = QDateTime::currentDateTime();
    QPageSize pageSize = QPageSize(QPageSize::A4);

    // Writes a PDF; false when the file can't be written.
    bool writePdf(const QString &fileName) const;

    // The page size named by an IPP "media-default" keyword such as
    // "na_letter_8.5x11in"; fallback when the keyword is empty or unknown.
    static QPageSize pageSizeForMedia(const QString &media, const QPageSize &fallback);
};

#endif
