#include "fakemachine.h"

#include "testsupport.h"

#include <QDir>

namespace {
const QString usbDir = QStringLiteral("/sys/bus/usb/devices/");

QByteArray hex(int value)
{
    return QByteArray::number(value, 16).rightJustified(2, '0') + '\n';
}
} // namespace

FakeMachine::FakeMachine(const QString &root)
    : m_root(root)
{
}

void FakeMachine::clear()
{
    QDir(m_root + QStringLiteral("/sys")).removeRecursively();
    QDir(m_root + QStringLiteral("/proc")).removeRecursively();
}

void FakeMachine::write(const QString &path, const QByteArray &content)
{
    TestSupport::writeFile(m_root + path, content);
}

void FakeMachine::addUsbDevice(const QString &device, const QString &manufacturer, const QString &product,
                               const QString &serial)
{
    const QString dir = usbDir + device + QLatin1Char('/');
    QDir().mkpath(m_root + dir);
    const QString attrs[][2] = { { QStringLiteral("manufacturer"), manufacturer },
                                 { QStringLiteral("product"), product },
                                 { QStringLiteral("serial"), serial } };
    for (const auto &attr : attrs) {
        if (!attr[1].isNull())
            write(dir + attr[0], attr[1].toUtf8() + '\n');
    }
}

void FakeMachine::addUsbInterface(const QString &interface, int interfaceClass, int protocol, const QByteArray &id)
{
    const QString dir = usbDir + interface + QLatin1Char('/');
    write(dir + QStringLiteral("bInterfaceClass"), hex(interfaceClass));
    write(dir + QStringLiteral("bInterfaceProtocol"), hex(protocol));
    write(dir + QStringLiteral("bInterfaceNumber"), hex(interface.section(QLatin1Char('.'), -1).toInt()));
    if (!id.isNull())
        write(dir + QStringLiteral("ieee1284_id"), id);
}

void FakeMachine::addUsbPrinter(const QString &device, const QString &manufacturer, const QString &product,
                                const QString &serial, const QByteArray &id)
{
    addUsbDevice(device, manufacturer, product, serial);
    addUsbInterface(device + QStringLiteral(":1.0"), 0x07, 2, id);
}

void FakeMachine::addParport(int number, const QByteArray &autoprobe)
{
    write(QStringLiteral("/proc/sys/dev/parport/parport%1/autoprobe").arg(number), autoprobe);
}

bool FakeMachine::build(const QString &name)
{
    clear();
    const QByteArray laserJet = "CLASS:PRINTER;\nMODEL:LaserJet 4;\nMANUFACTURER:Hewlett-Packard;\nCOMMAND SET:PCL;\n";
    if (name == QLatin1String("usb with id")) {
        addUsbPrinter("1-1", "ACME Corp.", "L1610 USB", "SYS123",
                      "MFG:Acme;MDL:Laser 1610;CMD:PCL,PJL;CLS:PRINTER;SN:ID456;");
    } else if (name == QLatin1String("usb without id")) {
        addUsbPrinter("1-1", "Acme", "ColorLaser 2550", "CL2550X");
    } else if (name == QLatin1String("no printer")) {
        addUsbDevice("usb1", "Linux Foundation", "xHCI Host", {});
        addUsbInterface("1-0:1.0", 0x09, 0);
        addUsbDevice("1-4", "Disks Inc.", "Stick", "1");
        addUsbInterface("1-4:1.0", 0x08, 0x50);
        // IPP over USB only: not for the usb backend
        addUsbDevice("1-5", "Acme", "Cloud 1", "C1");
        addUsbInterface("1-5:1.0", 0x07, 0x04);
        addParport(0, "");
        QDir().mkpath(m_root + QStringLiteral("/proc/sys/dev/parport/default"));
    } else if (name == QLatin1String("bus order")) {
        addUsbPrinter("1-10", "Acme", "MFP 4200", "M42", "MFG:Acme;MDL:MFP 4200;CLS:PRINTER;");
        addUsbDevice("1-2", "HP", "LJ", "HP1020");
        addUsbInterface("1-2:1.0", 0xff);
        addUsbInterface("1-2:1.1", 0x07, 2, "MFG:Hewlett-Packard;MDL:HP LaserJet 1020;");
        addUsbInterface("1-2:1.2", 0x07, 1);
        addUsbPrinter("2-1", "Acme", "Acme Jet 3", {});
    } else if (name == QLatin1String("parallel")) {
        addParport(0, laserJet);
    } else if (name == QLatin1String("mixed")) {
        addParport(10, "MODEL:Jet 10;\nMANUFACTURER:Acme;\n");
        addParport(1, "");
        addParport(2, laserJet);
        addUsbPrinter("1-1", "Acme", "Acme Jet 3", {});
    } else {
        return name == QLatin1String("empty");
    }
    return true;
}
