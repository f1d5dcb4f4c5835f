#ifndef QUEUEWIZ_MESSAGEBOXANSWERER_H
#define QUEUEWIZ_MESSAGEBOXANSWERER_H

#include <QList>
#include <QObject>
#include <QStringList>
#include <QTimer>

// Answers the modal message boxes that show while it lives: notes what each
// said and presses its default button (or its only one), so that no test
// waits on a dialog.
class MessageBoxAnswerer : public QObject
{
    Q_OBJECT

public:
    struct Box
    {
        QString title;
        QString text;
        QStringList buttons;
    };

    explicit MessageBoxAnswerer(QObject *parent = nullptr);

    QList<Box> boxes() const { return m_boxes; }
    int count() const { return m_boxes.size(); }
    void clear() { m_boxes.clear(); }

private:
    void answer();

    QTimer m_timer;
    QList<Box> m_boxes;
};

#endif
