#ifndef QUEUEWIZ_PPDPICTURETABLE_H
#define QUEUEWIZ_PPDPICTURETABLE_H

#include <QRgb>

// One built-in picture: its pixels as 32-bit 0xAARRGGBB values stored
// big-endian, compressed in qUncompress() format (a 4-byte big-endian length
// followed by a zlib stream).
struct PPDPictureRow
{
    int width;
    int height;
    int depth;
    const uchar *data;
    unsigned long length;
    int numColors;
    const QRgb *colorTable;
    bool alpha;
    const char *name;
};

// Generated at build time from ppd/pictures/*.png; a row of width 0 ends it.
extern const PPDPictureRow ppdPictureTable[];

#endif
