#ifndef QUEUEWIZ_URLPUSHBUTTON_H
#define QUEUEWIZ_URLPUSHBUTTON_H

#include <QPushButton>

// A push button that opens its address in a web browser.
class URLPushButton : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(QString url READ url WRITE setUrl)

public:
    explicit URLPushButton(QWidget *parent = nullptr, const char *name = nullptr);

    QString url() const { return m_url; }
    void setUrl(const QString &url) { m_url = url; }

public slots:
    void on_clicked();

private:
    QString m_url;
};

#endif
