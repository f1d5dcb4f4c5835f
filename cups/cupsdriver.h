#ifndef QUEUEWIZ_CUPSDRIVER_H
#define QUEUEWIZ_CUPSDRIVER_H

#include <cups/ipp.h>

#include <QString>

// A driver (PPD file) known to the scheduler, as CUPS-Get-PPDs reports it.
class CUPSDriver
{
public:
    CUPSDriver() = default;
    CUPSDriver(const QString &manufacturer, const QString &model, const QString &driverFile,
               const QString &language);

    // "ppd-make", e.g. "Acme".
    QString Manufacturer() const { return m_Manufacturer; }
    // "ppd-make-and-model", e.g. "Acme Laser 1610 Series"; the display name.
    QString Model() const { return m_Model; }
    // "ppd-name": what is sent back as "ppd-name" when a queue gets this driver.
    QString DriverFile() const { return m_DriverFile; }
    // "ppd-natural-language", e.g. "en".
    QString Language() const { return m_Language; }
    void setManufacturer(const QString &value) { m_Manufacturer = value; }
    void setModel(const QString &value) { m_Model = value; }
    void setDriverFile(const QString &value) { m_DriverFile = value; }
    void setLanguage(const QString &value) { m_Language = value; }

    // Takes one attribute of a CUPS-Get-PPDs answer (and logs it).
    void fillFrom(ipp_attribute_t *attr);
    // True when filter occurs in Manufacturer or Model, ignoring case; a null
    // or empty filter matches every driver.
    bool matchesVendor(const QString &filter) const;
    // "Manufacturer=<..> Model=<..> DriverFile=<..> Language=<..>".
    QString toString() const;

    bool operator==(const CUPSDriver &other) const;
    bool operator!=(const CUPSDriver &other) const { return !(*this == other); }

private:
    QString m_Manufacturer;
    QString m_Model;
    QString m_DriverFile;
    QString m_Language;
};

#endif
