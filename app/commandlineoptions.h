#ifndef QUEUEWIZ_COMMANDLINEOPTIONS_H
#define QUEUEWIZ_COMMANDLINEOPTIONS_H

#include <QList>
#include <QMap>
#include <QString>
#include <getopt.h>
#include <vector>

// The parsed command line: one entry per option seen (long name or
// one-character short code) and the non-option arguments in order.
// The key "-" marks a command line on which getopt_long found an error.
class CommandLineOptions
{
public:
    CommandLineOptions(int argc, char **argv, const char *shortOptions, const char *longOptions);
    virtual ~CommandLineOptions();

    virtual void insert(const QString &key, const QString &value);

    QString value(const QString &key, const QString &def = QString()) const;
    int intValue(const QString &key, int def) const;
    unsigned uintValue(const QString &key, unsigned def) const;
    bool contains(const QString &key) const { return m_options.contains(key); }
    const QList<QString> &arguments() const { return m_arguments; }
    QString toString() const;

    // getopt_long's table for a compact option string such as
    // "ui:|res:|help=h": "name[:|::][=c]" tokens separated by "|".
    // The names point into buffer, which must outlive the table.
    static std::vector<option> longOptionTable(const char *optionString, std::vector<char> &buffer);

private:
    QMap<QString, QString> m_options;
    QList<QString> m_arguments;
};

#endif
