#include "uiloaderex.h"

#include "softassert.h"

#include <QBuffer>
#include <QDomDocument>
#include <QFile>
#include <QGuiApplication>
#include <QIcon>
#include <QLabel>
#include <QTextStream>
#include <QWidget>

UiLoaderEx::UiLoaderEx(QObject *parent)
    : UiLoader(parent)
{
}

QWidget *UiLoaderEx::loadAs(const QString &fileName, const QString &className, QWidget *parent)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        m_loadError = fileName + QStringLiteral(": ") + file.errorString();
        return nullptr;
    }
    QWidget *w = loadAs(&file, className, parent);
    if (!m_loadError.isEmpty())
        m_loadError.prepend(fileName + QStringLiteral(": "));
    return w;
}

QWidget *UiLoaderEx::loadAs(QIODevice *device, const QString &className, QWidget *parent)
{
    m_loadError.clear();
    if (className.isEmpty())
        return load(device, parent);
    const Form form = readForm(device, className);
    return form.isNull() ? nullptr : build(form, parent);
}

UiLoaderEx::Form UiLoaderEx::readForm(QIODevice *device, const QString &className)
{
    m_loadError.clear();
    Form form;
    QString error;
    int line = 0;
    int column = 0;
    if (!form.doc.setContent(device, &error, &line, &column)) {
        m_loadError = QStringLiteral("line %1, column %2: %3").arg(line).arg(column).arg(error);
        return Form();
    }

    QDomElement widget;
    for (QDomNode n = form.doc.documentElement().firstChild(); !n.isNull(); n = n.nextSibling()) {
        if (n.isElement() && n.nodeName() == QLatin1String("widget")) {
            widget = n.toElement();
            break;
        }
    }
    form.formClass = widget.attribute(QStringLiteral("class"));
    if (form.formClass.isEmpty()) {
        qWarning("can't find 'class' attribute");
        return Form();
    }
    widget.setAttribute(QStringLiteral("class"), className);
    form.className = className;

    QBuffer buffer(&form.xml);
    buffer.open(QIODevice::WriteOnly);
    QTextStream stream(&buffer);
    form.doc.save(stream, 1);
    stream.flush();
    return form;
}

QWidget *UiLoaderEx::build(const Form &form, QWidget *parent)
{
    QBuffer buffer;
    buffer.setData(form.xml);
    buffer.open(QIODevice::ReadOnly);
    QWidget *w = load(&buffer, parent);
    if (!w)
        return nullptr;
    sharpenPictures(w, form.doc);

    const QString created = QString::fromLatin1(w->metaObject()->className());
    softAssert(created == form.className, "w->qtx_className() == className", "uiloaderex", 68);

    if (standsFor(w, form.formClass) && created == form.className)
        return w;
    qWarning("wrong className class <%s> is NOT inherits <%s>", qPrintable(form.className),
             qPrintable(form.formClass));
    delete w;
    return nullptr;
}

void UiLoaderEx::sharpenPictures(QWidget *form, const QDomDocument &doc)
{
    const qreal ratio = qGuiApp->devicePixelRatio();
    if (ratio <= 1.0)
        return;
    const QDomNodeList widgets = doc.elementsByTagName(QStringLiteral("widget"));
    for (int i = 0; i < widgets.size(); ++i) {
        const QDomElement widget = widgets.at(i).toElement();
        auto *label = form->findChild<QLabel *>(widget.attribute(QStringLiteral("name")));
        for (QDomElement property = widget.firstChildElement(QStringLiteral("property")); label && !property.isNull();
             property = property.nextSiblingElement(QStringLiteral("property"))) {
            const QString path = property.firstChildElement(QStringLiteral("pixmap")).text();
            const QPixmap loaded = label->pixmap();
            if (property.attribute(QStringLiteral("name")) != QLatin1String("pixmap") || path.isEmpty() || loaded.isNull())
                continue;
            const QPixmap sharp = QIcon(path).pixmap(loaded.deviceIndependentSize().toSize(), ratio);
            if (!sharp.isNull())
                label->setPixmap(sharp);
        }
    }
}

// A form is drawn for one toolkit class, with the children and properties
// that class needs (a wizard form has pages, a dialog form has none). So the
// program class must derive from the form's class, and no toolkit class may
// stand between them: a wizard may use a QWizard form but not a QDialog one.
bool UiLoaderEx::standsFor(const QWidget *widget, const QString &formClass)
{
    const auto isToolkitClass = [](const char *name) {
        return name[0] == 'Q' && name[1] >= 'A' && name[1] <= 'Z';
    };
    for (const QMetaObject *mo = widget->metaObject(); mo; mo = mo->superClass()) {
        if (formClass == QLatin1String(mo->className()))
            return true;
        if (isToolkitClass(mo->className()))
            return false;
    }
    return false;
}
