#ifndef QUEUEWIZ_FAKEMACHINE_H
#define QUEUEWIZ_FAKEMACHINE_H

#include <QByteArray>
#include <QString>

// The kernel's view of a machine's printers, written as files below a root
// directory that MFP_SYSROOT points libmfp at: USB devices and interfaces
// under sys/bus/usb/devices, parallel ports under proc/sys/dev/parport.
class FakeMachine
{
public:
    explicit FakeMachine(const QString &root);

    // Empties the tree.
    void clear();
    // A USB device node ("1-1") with its string descriptors; a null string
    // leaves that attribute out.
    void addUsbDevice(const QString &device, const QString &manufacturer, const QString &product,
                      const QString &serial);
    // An interface ("1-1:1.0") of the given class; id is usblp's
    // ieee1284_id (none when null).
    void addUsbInterface(const QString &interface, int interfaceClass, int protocol = 2,
                         const QByteArray &id = QByteArray());
    // A device with one printer interface, "<device>:1.0".
    void addUsbPrinter(const QString &device, const QString &manufacturer, const QString &product,
                       const QString &serial, const QByteArray &id = QByteArray());
    void addParport(int number, const QByteArray &autoprobe);

    // The machines the tests share, by name: "empty", "usb with id",
    // "usb without id", "no printer", "bus order", "parallel", "mixed".
    // False for an unknown name.
    bool build(const QString &name);

private:
    void write(const QString &path, const QByteArray &content);

    QString m_root;
};

#endif
