#ifndef QUEUEWIZ_FAKEMACHINE_H
#define QUEUEWIZ_FAKEMACHINE_H

#include <QByteArray>
#include <QString>

// The kernel's view of a machine's printers as files below a root that
// MFP_SYSROOT points libmfp at (sys/bus/usb/devices, proc/sys/dev/parport).
class FakeMachine
{
public:
    explicit FakeMachine(const QString &root);

    void clear();
    // A device node ("1-1"); a null string leaves that descriptor out.
    void addUsbDevice(const QString &device, const QString &manufacturer, const QString &product,
                      const QString &serial);
    // An interface ("1-1:1.0"); id is usblp's ieee1284_id, none when null.
    void addUsbInterface(const QString &interface, int interfaceClass, int protocol = 2,
                         const QByteArray &id = QByteArray());
    // A device with one printer interface, "<device>:1.0".
    void addUsbPrinter(const QString &device, const QString &manufacturer, const QString &product,
                       const QString &serial, const QByteArray &id = QByteArray());
    void addParport(int number, const QByteArray &autoprobe);

    // Replaces the tree by a shared machine: "empty", "usb with id", "usb
    // without id", "no printer", "bus order", "parallel" or "mixed".
    bool build(const QString &name);

private:
    void write(const QString &path, const QByteArray &content);

    QString m_root;
};

#endif
