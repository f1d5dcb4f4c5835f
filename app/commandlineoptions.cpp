#include "commandlineoptions.h"

#include <cstring>

std::vector<option> CommandLineOptions::longOptionTable(const char *optionString, std::vector<char> &buffer)
{
    enum { BufferSize = 1024 };
    buffer.assign(BufferSize, '\0');
    strncpy(buffer.data(), optionString ? optionString : "", BufferSize - 1);

    std::vector<option> table;
    char *token = buffer.data();
    while (token) {
        char *next = strchr(token, '|');
        if (next)
            *next++ = '\0';

        option rec = { nullptr, no_argument, nullptr, 0 };
        // "=c" is cut before ":" is looked at: a ":" after "=c" is ignored.
        if (char *eq = strchr(token, '=')) {
            rec.val = static_cast<unsigned char>(eq[1]);
            *eq = '\0';
        }
        if (char *colon = strchr(token, ':')) {
            rec.has_arg = colon[1] == ':' ? optional_argument : required_argument;
            *colon = '\0';
        }
        rec.name = token;
        table.push_back(rec);
        token = next;
    }
    table.push_back(option{ nullptr, 0, nullptr, 0 });
    return table;
}

CommandLineOptions::CommandLineOptions(int argc, char **argv, const char *shortOptions,
                                       const char *longOptions)
{
    std::vector<char> names;
    const std::vector<option> table = longOptionTable(longOptions, names);

    // 0, not 1: glibc then also forgets the state of an earlier scan.
    optind = 0;
    for (;;) {
        int index = -1;
        int c = getopt_long(argc, argv, shortOptions, table.data(), &index);
        if (c == -1)
            break;
        if (c == '?') {
            insert(QStringLiteral("-"), QString());
            c = optopt;
        }
        const QString arg = optarg ? QString::fromLocal8Bit(optarg) : QString();
        if (c != 0)
            insert(QString(QChar(c)), arg);
        if (index != -1)
            insert(QString::fromLatin1(table[static_cast<size_t>(index)].name), arg);
    }
    for (int i = optind; i < argc; ++i)
        m_arguments.append(QString::fromLocal8Bit(argv[i]));

    (void)toString();
}

CommandLineOptions::~CommandLineOptions() = default;

void CommandLineOptions::insert(const QString &key, const QString &value)
{
    m_options.insert(key, value);
}

QString CommandLineOptions::value(const QString &key, const QString &def) const
{
    auto it = m_options.constFind(key);
    return it != m_options.constEnd() ? it.value() : def;
}

int CommandLineOptions::intValue(const QString &key, int def) const
{
    bool ok = false;
    const int v = value(key).toInt(&ok, 10);
    return ok ? v : def;
}

unsigned CommandLineOptions::uintValue(const QString &key, unsigned def) const
{
    bool ok = false;
    const unsigned v = value(key).toUInt(&ok, 10);
    return ok ? v : def;
}

QString CommandLineOptions::toString() const
{
    QStringList opts;
    for (auto it = m_options.constBegin(); it != m_options.constEnd(); ++it)
        opts << QStringLiteral("<%1>=<%2>").arg(it.key(), it.value());
    return QStringLiteral("options(%1):\n\t").arg(m_options.count()) + opts.join(QStringLiteral("\n\t"))
        + QStringLiteral("\nnone-options(%1):\n\t<%2>")
              .arg(m_arguments.count())
              .arg(QStringList(m_arguments).join(QStringLiteral(">\n\t<")));
}
