#ifndef QUEUEWIZ_UILOADER_H
#define QUEUEWIZ_UILOADER_H

#include <QUiLoader>

// Base of the program's form loaders. The busy flag stops a loader from
// answering its own nested request while it loads a sub-form.
class UiLoader : public QUiLoader
{
    Q_OBJECT

public:
    explicit UiLoader(QObject *parent = nullptr);
    ~UiLoader() override;

    QWidget *createWidget(const QString &className, QWidget *parent = nullptr,
                          const QString &name = QString()) override;

    bool isBusy() const { return m_busy; }

    // Makes the pictures of dir reachable by every form: forms name them
    // "images:NAME". Folders added later are searched after earlier ones.
    static void loadImages(const QString &dir);

protected:
    bool m_busy = false;
};

#endif
