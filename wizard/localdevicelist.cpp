#include "localdevicelist.h"

#include "waitcursor.h"

#include "mfp.h"

#include <QCoreApplication>

#include <vector>

namespace {

// The device library cuts its strings at a UTF-8 character boundary.
QString field(const char *text, size_t size)
{
    return QString::fromUtf8(text, static_cast<qsizetype>(qstrnlen(text, size)));
}

// "%s on %s" as the user's language words it, cut at its two "%s": before
// the model, between model and device path, after the path.
QStringList labelParts()
{
    QStringList parts = QCoreApplication::translate("AddPrinterWizard", "%s on %s").split(QLatin1String("%s"));
    if (parts.size() != 3)
        parts = QStringList{ QString(), QStringLiteral(" on "), QString() };
    return parts;
}

} // namespace

QString LocalDeviceList::Device::driverModel() const
{
    const QString mdl = idValue(deviceId, { QStringLiteral("MDL"), QStringLiteral("MODEL") });
    return mdl.isEmpty() ? model : mdl;
}

QString LocalDeviceList::Device::driverMake() const
{
    const QString mfg = idValue(deviceId, { QStringLiteral("MFG"), QStringLiteral("MANUFACTURER") });
    return mfg.isEmpty() ? make : mfg;
}

bool LocalDeviceList::refresh()
{
    WaitCursor wait;
    m_devices.clear();

    const int count = mfp_get_devices(nullptr, 0);
    if (count <= 0)
        return false;
    std::vector<mfp_device> buffer(static_cast<size_t>(count));
    if (mfp_get_devices(buffer.data(), count) != count)
        return !m_devices.isEmpty();

    for (int i = 0; i < count; ++i) {
        const mfp_device &rec = buffer[static_cast<size_t>(i)];
        if (rec.type <= MFP_DEVICE_NONE || !rec.model[0])
            continue;
        Device device;
        device.devicePath = QString::asprintf("/dev/mfp%d", i);
        device.make = field(rec.make, sizeof rec.make);
        device.model = field(rec.model, sizeof rec.model);
        device.deviceId = field(rec.device_id, sizeof rec.device_id);
        device.label = label(device.model, device.devicePath);
        m_devices.append(device);
    }
    return !m_devices.isEmpty();
}

QStringList LocalDeviceList::labels() const
{
    QStringList result;
    for (const Device &d : m_devices)
        result << d.label;
    return result;
}

const LocalDeviceList::Device *LocalDeviceList::find(const QString &label) const
{
    for (const Device &d : m_devices) {
        if (d.label == label)
            return &d;
    }
    return nullptr;
}

QString LocalDeviceList::label(const QString &model, const QString &devicePath)
{
    const QString name = model.isEmpty() ? QCoreApplication::translate("AddPrinterWizard", "Unknown model") : model;
    const QStringList parts = labelParts();
    return parts[0] + name + parts[1] + devicePath + parts[2];
}

QString LocalDeviceList::devicePathOf(const QString &label)
{
    const QStringList parts = labelParts();
    const qsizetype at = label.lastIndexOf(parts[1]);
    if (at < 0 || !label.endsWith(parts[2]))
        return QString();
    const qsizetype start = at + parts[1].size();
    return label.mid(start, label.size() - parts[2].size() - start);
}

QString LocalDeviceList::idValue(const QString &deviceId, const QStringList &keys)
{
    const QStringList pairs = deviceId.split(QLatin1Char(';'));
    for (const QString &key : keys) {
        for (const QString &pair : pairs) {
            const qsizetype colon = pair.indexOf(QLatin1Char(':'));
            if (colon > 0 && pair.left(colon).trimmed().compare(key, Qt::CaseInsensitive) == 0)
                return pair.mid(colon + 1).trimmed();
        }
    }
    return QString();
}
