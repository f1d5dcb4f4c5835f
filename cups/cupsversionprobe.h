#ifndef QUEUEWIZ_CUPSVERSIONPROBE_H
#define QUEUEWIZ_CUPSVERSIONPROBE_H

#include <QString>

#include <algorithm>
#include <sys/types.h>

// The version level of the installed CUPS, major * 100 + minor (101 for
// 1.1.x, 204 for 2.4.x, 300 for 3.0), -1 when unknown. The package query is
// a shell pipeline that takes a good part of a second: where it can answer
// at all (rpm systems) it starts with this object and is read when the
// number is first used, so that start-up goes on meanwhile. When no package
// answers, the fallback (the running scheduler) is asked then.
//
// Used like the int it stands for; assigning a number ends the probe.
class CupsVersionProbe
{
public:
    explicit CupsVersionProbe(int (*fallback)());
    ~CupsVersionProbe();
    CupsVersionProbe(const CupsVersionProbe &) = delete;
    CupsVersionProbe &operator=(const CupsVersionProbe &) = delete;

    CupsVersionProbe &operator=(int version);
    operator int() const { return value(); }
    int value() const;

    static constexpr int level(int major, int minor) { return major * 100 + std::clamp(minor, 0, 99); }
    // CUPS 1.2 began to take IPv6 addresses in device URIs; an unknown
    // level counts as older.
    static constexpr bool takesIpv6(int level) { return level >= 102; }
    // The level of the first "MAJOR.MINOR" in text ("cups-2.4", "Version: 1.1"), -1 without one.
    static int parseLevel(const QString &text);

private:
    void start();
    // The pipeline's number; *answered is false when it printed nothing.
    int readAnswer(bool *answered);
    void stop();

    int (*m_fallback)();
    pid_t m_child = -1;
    int m_output = -1;
    mutable bool m_known = false;
    mutable int m_version = -1;
};

#endif
