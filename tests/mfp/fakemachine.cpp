#include "fakemachine.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {
const QString usbDir = QStringLiteral("/sys/bus/usb/devices/");
const QString parportDir = QStringLiteral("/proc/sys/dev/parport/");
}

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
    const QString file = m_root + path;
    QDir().mkpath(QFileInfo(file).path());
    QFile f(file);
    if (f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        f.write(content);
}

void FakeMachine::addUsbDevice(const QString &device, const QString &manufacturer, const QString &product,
                               const QString &serial)
{
    const QString dir = usbDir + device + QLatin1Char('/');
    const QString attrs[][2] = { { QStringLiteral("manufacturer"), manufacturer },
                                 { QStringLiteral("product"), product },
                                 { QStringLiteral("serial"), serial } };
    QDir().mkpath(m_root + dir);
    for (const auto &attr : attrs) {
        if (!attr[1].isNull())
            write(dir + attr[0], attr[1].toUtf8() + '\n');
    }
}

void FakeMachine::addUsbInterface(const QString &interface, int interfaceClass, int protocol, const QByteArray &id)
{
    const QString dir = usbDir + interface + QLatin1Char('/');
    const int number = interface.section(QLatin1Char('.'), -1).toInt();
    write(dir + QStringLiteral("bInterfaceClass"), QByteArray::number(interfaceClass, 16).rightJustified(2, '0') + '\n');
    write(dir + QStringLiteral("bInterfaceProtocol"), QByteArray::number(protocol, 16).rightJustified(2, '0') + '\n');
    write(dir + QStringLiteral("bInterfaceNumber"), QByteArray::number(number, 16).rightJustified(2, '0') + '\n');
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
    write(parportDir + QStringLiteral("parport%1/autoprobe").arg(number), autoprobe);
}

bool FakeMachine::build(const QString &name)
{
    clear();
    const QByteArray laserJet = "CLASS:PRINTER;\nMODEL:LaserJet 4;\nMANUFACTURER:Hewlett-Packard;\n"
                                "COMMAND SET:PCL;\n";
    if (name == QLatin1String("empty"))
        return true;
    if (name == QLatin1String("usb with id")) {
        addUsbPrinter(QStringLiteral("1-1"), QStringLiteral("ACME Corp."), QStringLiteral("L1610 USB"),
                      QStringLiteral("SYS123"), "MFG:Acme;MDL:Laser 1610;CMD:PCL,PJL;CLS:PRINTER;SN:ID456;");
    } else if (name == QLatin1String("usb without id")) {
        addUsbPrinter(QStringLiteral("1-1"), QStringLiteral("Acme"), QStringLiteral("ColorLaser 2550"),
                      QStringLiteral("CL2550X"));
    } else if (name == QLatin1String("no printer")) {
        addUsbDevice(QStringLiteral("usb1"), QStringLiteral("Linux Foundation"), QStringLiteral("xHCI Host"), {});
        addUsbInterface(QStringLiteral("1-0:1.0"), 0x09, 0);
        addUsbDevice(QStringLiteral("1-4"), QStringLiteral("Disks Inc."), QStringLiteral("Stick"), QStringLiteral("1"));
        addUsbInterface(QStringLiteral("1-4:1.0"), 0x08, 0x50);
        // IPP over USB only: not for the usb backend
        addUsbDevice(QStringLiteral("1-5"), QStringLiteral("Acme"), QStringLiteral("Cloud 1"), QStringLiteral("C1"));
        addUsbInterface(QStringLiteral("1-5:1.0"), 0x07, 0x04);
        addParport(0, "");
        QDir().mkpath(m_root + parportDir + QStringLiteral("default"));
    } else if (name == QLatin1String("bus order")) {
        addUsbPrinter(QStringLiteral("1-10"), QStringLiteral("Acme"), QStringLiteral("MFP 4200"),
                      QStringLiteral("M42"), "MFG:Acme;MDL:MFP 4200;CLS:PRINTER;");
        addUsbDevice(QStringLiteral("1-2"), QStringLiteral("HP"), QStringLiteral("LJ"), QStringLiteral("HP1020"));
        addUsbInterface(QStringLiteral("1-2:1.0"), 0xff);
        addUsbInterface(QStringLiteral("1-2:1.1"), 0x07, 2, "MFG:Hewlett-Packard;MDL:HP LaserJet 1020;");
        addUsbInterface(QStringLiteral("1-2:1.2"), 0x07, 1);
        addUsbPrinter(QStringLiteral("2-1"), QStringLiteral("Acme"), QStringLiteral("Acme Jet 3"), {});
    } else if (name == QLatin1String("parallel")) {
        addParport(0, laserJet);
    } else if (name == QLatin1String("mixed")) {
        addParport(10, "MODEL:Jet 10;\nMANUFACTURER:Acme;\n");
        addParport(1, "");
        addParport(2, laserJet);
        addUsbPrinter(QStringLiteral("1-1"), QStringLiteral("Acme"), QStringLiteral("ColorLaser 2550"),
                      QStringLiteral("CL2550X"));
    } else {
        return false;
    }
    return true;
}
