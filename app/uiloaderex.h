#ifndef QUEUEWIZ_UILOADEREX_H
#define QUEUEWIZ_UILOADEREX_H

#include "uiloader.h"

#include <QByteArray>
#include <QDomDocument>
#include <QWidget>

class QIODevice;

// Loads a form as a given program class: the top-level class of the form is
// rewritten before loading, so that createWidget() makes the program's own
// class, which must then be a kind of the class the form was drawn for.
class UiLoaderEx : public UiLoader
{
    Q_OBJECT

public:
    explicit UiLoaderEx(QObject *parent = nullptr);

    // Nothing when the file can't be opened or read, or the class is wrong.
    QWidget *loadAs(const QString &fileName, const QString &className, QWidget *parent = nullptr);
    // An empty className loads the form as it stands.
    QWidget *loadAs(QIODevice *device, const QString &className, QWidget *parent = nullptr);

    // A form read once and rewritten for a program class, to be built any
    // number of times.
    struct Form
    {
        QDomDocument doc;
        QByteArray xml;
        QString formClass;
        QString className;
        bool isNull() const { return xml.isEmpty(); }
    };
    // Reads the form for className; a null form when it can't be used
    // (loadError() says why when the XML is broken).
    Form readForm(QIODevice *device, const QString &className);
    // A new widget from form, or nothing when it is not of the class.
    QWidget *build(const Form &form, QWidget *parent = nullptr);

    // Why the last loadAs() found no usable form file: the file and what
    // is wrong with it (its XML error and where); empty when it was read.
    QString loadError() const { return m_loadError; }

    // Whether a widget may stand for a form drawn for formClass.
    static bool standsFor(const QWidget *widget, const QString &formClass);

    // The typed check after loadAs(): a T, bound by its setupUi(), or
    // nothing (the widget is then deleted).
    template <class T>
    static T *setupAs(QWidget *widget);

private:
    // The form's pictures drawn again for the screen's pixel ratio: a
    // picture property gives a pixmap of one pixel per unit, which a 200%
    // screen would show blurred. SVG pictures are drawn at the ratio, and
    // raster ones take their "@2x" files where the form's folder has them.
    static void sharpenPictures(QWidget *form, const QDomDocument &doc);

    QString m_loadError;
};

template <class T>
T *UiLoaderEx::setupAs(QWidget *widget)
{
    if (!widget)
        return nullptr;
    const char *requested = T::staticMetaObject.className();
    T *typed = qobject_cast<T *>(widget);
    if (!typed || qstrcmp(widget->metaObject()->className(), requested) != 0) {
        qWarning("loadAs failed: unexpected className <%s> (requested <%s>)", widget->metaObject()->className(),
                 requested);
        delete widget;
        return nullptr;
    }
    if (!typed->setupUi()) {
        qWarning("setupUi failed");
        delete typed;
        return nullptr;
    }
    return typed;
}

#endif
