#ifndef QUEUEWIZ_LOCALDEVICELIST_H
#define QUEUEWIZ_LOCALDEVICELIST_H

#include <QList>
#include <QString>
#include <QStringList>

// The printers attached to this machine by cable, as the device library
// reports them. Device i of the library is the package's device
// "/dev/mfp<i>"; the list shows it as "<model> on /dev/mfp<i>".
class LocalDeviceList
{
public:
    struct Device
    {
        QString label;       // "Laser 1610 on /dev/mfp0"
        QString devicePath;  // "/dev/mfp0"
        QString make;
        QString model;
        QString deviceId;    // IEEE 1284 device ID, may be empty

        // The queue's device URI, "mfp:/dev/mfp0".
        QString deviceUri() const { return QStringLiteral("mfp:") + devicePath; }
        // What a driver is chosen by: the device ID's model, else the model
        // name.
        QString driverModel() const;
        QString driverMake() const;
    };

    // Asks the device library again; true when at least one device is listed.
    bool refresh();

    const QList<Device> &devices() const { return m_devices; }
    bool isEmpty() const { return m_devices.isEmpty(); }
    QStringList labels() const;
    // The device shown with label, or null.
    const Device *find(const QString &label) const;

    // "%s on %s" in the user's language; a device without model name is an
    // "Unknown model".
    static QString label(const QString &model, const QString &devicePath);
    // The device path of a label: the text after its last " on " (or what
    // the translation puts there).
    static QString devicePathOf(const QString &label);
    // The value of the first of keys present in an IEEE 1284 device ID
    // ("MFG:Acme;MDL:Laser 1610;"), keys compared without regard to case;
    // empty when none is.
    static QString idValue(const QString &deviceId, const QStringList &keys);

private:
    QList<Device> m_devices;
};

#endif
