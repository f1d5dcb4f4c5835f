#include "urlpushbutton.h"

#include "browserlauncher.h"

URLPushButton::URLPushButton(QWidget *parent, const char *name)
    : QPushButton(parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    connect(this, &QPushButton::clicked, this, &URLPushButton::on_clicked);
}

void URLPushButton::on_clicked()
{
    BrowserLauncher::launch(m_url, nullptr);
}
