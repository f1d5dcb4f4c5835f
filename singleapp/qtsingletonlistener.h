#ifndef QUEUEWIZ_QTSINGLETONLISTENER_H
#define QUEUEWIZ_QTSINGLETONLISTENER_H

#include <QWidget>

// The X window of a running instance: it owns the instance's selection and
// receives messages as properties. It is never shown.
class QtSingletonListener : public QWidget
{
    Q_OBJECT

public:
    explicit QtSingletonListener(QWidget *parent = nullptr);
};

#endif
