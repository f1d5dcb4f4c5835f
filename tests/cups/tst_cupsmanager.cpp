#include "cupsmanager.h"
#include "cupssandbox.h"
#include "destlist.h"
#include "ipplog.h"
#include "ipprequest.h"
#include "oemconfig.h"
#include "requests.h"
#include "testpaths.h"
#include "testsupport.h"

#include <QFile>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QtTest>

#include <cups/ppd.h>

using namespace Qt::StringLiterals;

namespace {

CUPSManager &manager = CUPSManager::m_CUPSManagerInstance;

CUPSPrinter newPrinter(const QString &name, const QString &ppd = QString())
{
    CUPSPrinter printer(name);
    printer.setDeviceURI(u"file:/dev/null"_s);
    printer.setInfo(u"Info of "_s + name);
    printer.setLocation(u"Room "_s + name);
    printer.setState(IPP_PSTATE_IDLE);
    printer.setAcceptingJobs(true);
    printer.setPPDName(ppd);
    return printer;
}

bool addClass(const QString &name, const QStringList &members, int state = IPP_PSTATE_IDLE)
{
    CUPSClass cls(name);
    cls.setState(state);
    cls.setAcceptingJobs(true);
    cls.setMemberNames(members);
    return manager.addClass(cls);
}

QStringList members(const QString &cls)
{
    QMap<QString, CUPSClass> classes;
    manager.listClasses(classes);
    return classes.contains(cls) ? classes.value(cls).MemberNames() : QStringList{u"<no class>"_s};
}

// A destination option as saved by lpoptions.
void setOption(const QString &destination, const char *option, const char *value)
{
    DestList dests;
    cups_dest_t *dest = dests.add(destination);
    dest->num_options = cupsAddOption(option, value, dest->num_options, &dest->options);
    dests.save();
}

QString option(const QString &destination, const char *option)
{
    DestList dests;
    const cups_dest_t *dest = dests.find(destination);
    return dest ? QString::fromUtf8(cupsGetOption(option, dest->num_options, dest->options)) : u"<none>"_s;
}

} // namespace

// The printer manager and its requests against a scheduler of its own: the
// default printer and the destination list are state that other tests must
// not see change.
class TestCUPSManager : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // A third driver of a model, in a language that another one has already.
        const QString copy = m_logs.filePath(u"acme-laser1610-copy.ppd"_s);
        QVERIFY(QFile::copy(TestPaths::sourceDir() + u"/share/ppd/acme-laser1610.ppd"_s, copy));
        QVERIFY(m_sandbox.addModel(copy));
        QString error;
        QVERIFY2(m_sandbox.start(&error), qPrintable(error));
        m_sandbox.use();
    }

    void init()
    {
        IPPLog::openAll(m_logs.path());
        actx.vendorUpper[0] = '\0';
    }

    void addOrModifyPrinter_data()
    {
        QTest::addColumn<QString>("ppd");
        QTest::addColumn<QString>("device");
        QTest::addColumn<int>("requests");
        QTest::addColumn<QString>("model");
        QTest::newRow("without driver") << QString() << "file:/dev/null" << 1 << "Local Raw Printer";
        QTest::newRow("with driver") << "acme-mfp4200.ppd" << "socket://127.0.0.1:9" << 3 << "Acme MFP 4200 Series";
    }

    void addOrModifyPrinter()
    {
        QFETCH(QString, ppd);
        QFETCH(QString, device);
        QFETCH(int, requests);
        QFETCH(QString, model);
        const QString name = u"add_"_s + QString::fromLatin1(QTest::currentDataTag()).replace(' ', '_');
        CUPSPrinter printer = newPrinter(name, ppd);
        printer.setDeviceURI(device);
        QVERIFY2(manager.addPrinter(printer), qPrintable(manager.lastStatusText()));
        QCOMPARE(requestsLogged(IPP_OP_CUPS_ADD_MODIFY_PRINTER), requests);
        // Changed and sent again, the record modifies the same queue.
        printer.setLocation(u"Cellar"_s);
        QVERIFY(manager.addPrinter(printer));
        QCOMPARE(requestsLogged(IPP_OP_CUPS_ADD_MODIFY_PRINTER), 2 * requests);
        CUPSPrinter found;
        QVERIFY(manager.findPrinter(name, found));
        QCOMPARE(QStringList({found.DeviceURI(), found.Info(), found.Location(), found.ModelInfo(), found.stateText()}),
                 QStringList({device, u"Info of "_s + name, u"Cellar"_s, model, u"idle, accepting jobs"_s}));
    }

    void disableAndEnable()
    {
        QVERIFY(manager.addPrinter(newPrinter(u"switch_me"_s)));
        CUPSPrinter found;
        QVERIFY(manager.disablePrinter(u"switch_me"_s));
        QVERIFY(manager.findPrinter(u"switch_me"_s, found));
        QCOMPARE(found.stateText(), u"stopped, rejecting jobs"_s);
        QVERIFY(manager.enablePrinter(u"switch_me"_s));
        QVERIFY(manager.findPrinter(u"switch_me"_s, found));
        QCOMPARE(found.stateText(), u"idle, accepting jobs"_s);

        // The second request only follows a first one that succeeded.
        QVERIFY(!manager.disablePrinter(u"never_created"_s));
        QVERIFY(!manager.enablePrinter(u"never_created"_s));
        QCOMPARE(manager.lastStatusText(), u"IPP_NOT_FOUND - Not found"_s);
        QCOMPARE(requestsLogged(IPP_OP_CUPS_REJECT_JOBS), 2);
        QCOMPARE(requestsLogged(IPP_OP_PAUSE_PRINTER), 1);
        QCOMPARE(requestsLogged(IPP_OP_RESUME_PRINTER), 1);
    }

    void setDefault()
    {
        for (const QString &name : {u"default_a"_s, u"default_b"_s, u"default_a"_s}) {
            QVERIFY(manager.addPrinter(newPrinter(name)));
            QVERIFY(manager.setDefaultPrinter(CUPSManager::printerUri(name)));
            QCOMPARE(manager.defaultPrinterName(), name);
            QMap<QString, CUPSPrinter> printers;
            QVERIFY(manager.listPrinters(printers));
            printers.removeIf([](const auto &it) { return !it.value().IsDefault(); });
            QCOMPARE(printers.keys(), QStringList{name});
        }
    }

    // Renaming keeps destination options, class membership, the default flag
    // and the driver file; deleting then takes the queue out of all of them.
    void renameThenDelete()
    {
        QVERIFY(manager.addPrinter(newPrinter(u"old_name"_s, u"acme-laser1610-de.ppd"_s)));
        QVERIFY(manager.addPrinter(newPrinter(u"mate"_s)));
        QVERIFY(addClass(u"team"_s, {"old_name", "mate"}));
        QCOMPARE(members(u"team"_s), QStringList({"old_name", "mate"}));
        QVERIFY(manager.setDefaultPrinter(CUPSManager::printerUri(u"old_name"_s)));
        setOption(u"old_name"_s, "sides", "two-sided-short-edge");
        setOption(u"old_name"_s, "Duplex", "DuplexTumble");

        QMap<QString, CUPSPrinter> printers;
        QVERIFY(manager.listPrinters(printers));
        CUPSPrinter record = printers.value(u"old_name"_s);
        record.setName(u"new_name"_s);
        QVERIFY2(manager.renamePrinter(u"old_name"_s, u"new_name"_s, record), qPrintable(manager.lastStatusText()));
        CUPSPrinter renamed;
        QVERIFY(!manager.findPrinter(u"old_name"_s, renamed));
        QVERIFY(manager.findPrinter(u"new_name"_s, renamed));
        QCOMPARE(QStringList({renamed.DeviceURI(), renamed.Location(), renamed.ModelInfo()}),
                 QStringList({"file:/dev/null", "Room old_name", "Acme Laser 1610 Series"}));
        QVERIFY(renamed.IsDefault());
        QCOMPARE(option(u"new_name"_s, "sides") + ' ' + option(u"new_name"_s, "Duplex"),
                 u"two-sided-short-edge DuplexTumble"_s);
        QCOMPARE(option(u"old_name"_s, "sides"), u"<none>"_s);
        QCOMPARE(members(u"team"_s), QStringList({"new_name", "mate"}));
        // The driver file itself came along: the German one, not just its model.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
        QFile ppd(QFile::decodeName(cupsGetPPD("new_name")));
#pragma GCC diagnostic pop
        QVERIFY(ppd.open(QIODevice::ReadOnly) && ppd.readAll().contains("*LanguageVersion: German"));
        ppd.remove();

        QVERIFY2(manager.deletePrinter(u"new_name"_s), qPrintable(manager.lastStatusText()));
        QVERIFY(!manager.findPrinter(u"new_name"_s, renamed));
        QCOMPARE(members(u"team"_s), QStringList{u"mate"_s});
        QCOMPARE(option(u"new_name"_s, "sides"), u"<none>"_s);
        QVERIFY(manager.deleteClass(u"team"_s));
        QCOMPARE(members(u"team"_s), QStringList{u"<no class>"_s});
        QVERIFY(manager.findPrinter(u"mate"_s, renamed));
    }

    // A member leaves a class whose record goes back in the state it was
    // listed in; the scheduler refuses a class record that says printing.
    void classKeepsItsState_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("listed");
        QTest::newRow("idle") << int(IPP_PSTATE_IDLE) << u"idle, accepting jobs"_s;
        QTest::newRow("printing") << int(IPP_PSTATE_PROCESSING) << u"idle, accepting jobs"_s;
        QTest::newRow("stopped") << int(IPP_PSTATE_STOPPED) << u"stopped, accepting jobs"_s;
    }

    void classKeepsItsState()
    {
        QFETCH(int, state);
        QFETCH(QString, listed);
        QVERIFY(manager.addPrinter(newPrinter(u"stays"_s)) && manager.addPrinter(newPrinter(u"leaves"_s)));
        QVERIFY2(addClass(u"busy"_s, {"stays", "leaves"}, state), qPrintable(manager.lastStatusText()));
        QVERIFY2(manager.deletePrinter(u"leaves"_s), qPrintable(manager.lastStatusText()));
        QMap<QString, CUPSClass> classes;
        QVERIFY(manager.listClasses(classes));
        QCOMPARE(classes.value(u"busy"_s).MemberNames().join(' ') + ", " + classes.value(u"busy"_s).stateText(),
                 "stays, " + listed);
        QVERIFY(manager.deleteClass(u"busy"_s));
    }

    void driverCatalogue_data()
    {
        QTest::addColumn<QString>("filter"); // "-": the OEM vendor
        QTest::addColumn<QByteArray>("oemVendor");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<bool>("sentEarly"); // sendDriverRequest() first
        // Two of the three drivers of one model share the language as well; the
        // second of those (in the scheduler's order) is told apart by its file.
        const QStringList acme{"Acme ColorLaser 2550", "Acme Laser 1610 Series (FILE)", "Acme Laser 1610 Series (de)",
                               "Acme Laser 1610 Series (en)", "Acme MFP 4200 Series"};
        const QStringList globex{"Globex PageWriter 40"};
        QTest::newRow("vendor") << "ACME" << QByteArray() << acme << false;
        QTest::newRow("vendor, other case") << "acme" << QByteArray() << acme << false;
        QTest::newRow("unknown vendor") << "INITECH" << QByteArray() << QStringList() << false;
        QTest::newRow("empty vendor keeps all") << "" << QByteArray() << acme + globex << false;
        QTest::newRow("OEM vendor") << "-" << QByteArray("GLOBEX") << globex << false;
        QTest::newRow("OEM vendor, sent early") << "-" << QByteArray("GLOBEX") << globex << true;
        QTest::newRow("other vendor than sent early") << "ACME" << QByteArray("GLOBEX") << acme << true;
    }

    void driverCatalogue()
    {
        QFETCH(QString, filter);
        QFETCH(QByteArray, oemVendor);
        QFETCH(QStringList, names);
        QFETCH(bool, sentEarly);
        QMap<QString, CUPSDriver> drivers{{u"stale"_s, CUPSDriver()}};
        qstrncpy(actx.vendorUpper, oemVendor.constData(), sizeof actx.vendorUpper);
        if (sentEarly)
            manager.sendDriverRequest();
        QVERIFY(filter == "-"_L1 ? manager.listDrivers(drivers) : manager.listDrivers(drivers, filter));
        // One request logged, whether its answer was waiting or not.
        QCOMPARE(requestsLogged(IPP_OP_CUPS_GET_PPDS), 1);
        QStringList keys = drivers.keys();
        // Every vendor includes the system's own drivers, if it has any.
        keys.removeIf([](const QString &key) { return !key.startsWith("Acme"_L1) && !key.startsWith("Globex"_L1); });
        keys.replaceInStrings(QRegularExpression(u"\\(acme-laser1610(-copy)?\\.ppd\\)$"_s), u"(FILE)"_s);
        QCOMPARE(keys, names);
        QSet<QString> files;
        for (auto it = drivers.cbegin(); it != drivers.cend(); ++it) {
            QVERIFY(it.key().startsWith(it.value().Model()));
            files.insert(it.value().DriverFile());
        }
        QCOMPARE(files.size(), drivers.size()); // nothing lost to a name clash
        if (names.size() > 1)
            QCOMPARE(drivers.value(u"Acme Laser 1610 Series (de)"_s).DriverFile(), u"acme-laser1610-de.ppd"_s);
    }

    void statusText_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("text");
        QTest::newRow("0") << 0 << "OK";
        QTest::newRow("0x502") << 0x502 << "IPP_SERVICE_UNAVAILABLE - Serice unavailable";
        QTest::newRow("1284, device error") << 1284 << "Unknown code (1284=0x504)";
    }

    void statusText()
    {
        QFETCH(int, status);
        QFETCH(QString, text);
        QCOMPARE(IPPRequest::statusText(status), text);
    }

    void requestWithoutResourceOrSchedulerNeverLogs()
    {
        QTcpServer listener;
        QVERIFY(listener.listen(QHostAddress::LocalHost));
        cupsSetServer(QStringLiteral("127.0.0.1:%1").arg(listener.serverPort()).toUtf8().constData());
        IPPRequest request(IPP_OP_CUPS_GET_PRINTERS);
        QVERIFY(!request.Execute());
        QVERIFY(!request.Execute(""));
        QVERIFY(!listener.waitForNewConnection(300));
        QVERIFY(request.request()); // still unsent

        listener.close(); // nobody listens there now
        QVERIFY(!request.Execute("/"));
        QVERIFY(!request.response());
        m_sandbox.use();
        QVERIFY(requestLog().isEmpty());
    }

    void requestIsSentOnceAndLogged()
    {
        Requests::GetPrinterAttributes request;
        request.addURI("printer-uri", "ipp://localhost/printers/no_such_queue_here");
        QVERIFY(request.Execute()); // answered, if with an error status
        ipp_t *answer = request.response();
        QCOMPARE(int(ippGetStatusCode(answer)), int(IPP_STATUS_ERROR_NOT_FOUND));
        QVERIFY(!request.Execute());
        QCOMPARE(request.response(), answer);

        Requests::PrintFile print("no_such_queue_here");
        print.setFileName(m_logs.filePath(QStringLiteral("no-such-file.ps")));
        QVERIFY(!print.Execute());
        QCOMPARE(requestLog(), QByteArray("Requesting operation 0xb...\r\n"
                                          "Result status: IPP_NOT_FOUND - Not found\n\r\n"
                                          "Requesting operation 0x2...\r\n"
                                          "Requesting failed!\n\r\n"));
    }

    void logsOpenOnlyOwnRegularFiles_data()
    {
        QTest::addColumn<bool>("symlink");
        QTest::newRow("own old log") << false;
        QTest::newRow("symlink to a file") << true;
    }

    void logsOpenOnlyOwnRegularFiles()
    {
        QFETCH(bool, symlink);
        QTemporaryDir dir;
        const QString log = dir.filePath(QStringLiteral("ipp_request.log"));
        const QString victim = dir.filePath(QStringLiteral("victim"));
        QVERIFY(TestSupport::writeFile(victim, "keep me\n"));
        QVERIFY(symlink ? QFile::link(victim, log) : QFile::copy(victim, log));

        IPPLog::openAll(dir.path());
        QCOMPARE(IPPLog::stream(IPPLog::Request) == nullptr, symlink);
        QVERIFY(IPPLog::stream(IPPLog::Class)); // made afresh
        QCOMPARE(QFile::permissions(dir.filePath(QStringLiteral("ipp_class.log"))),
                 QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser);
        IPPLog::line(IPPLog::Request, "written");
        IPPLog::closeAll();
        QCOMPARE(TestSupport::readFile(victim), QByteArray("keep me\n"));
        QCOMPARE(TestSupport::readFile(log), symlink ? QByteArray("keep me\n") : QByteArray("written\r\n"));
    }

    // The package query's answer read as a version level, through the real
    // pipeline with an rpm that answers so; CUPS 3 counts as newer than 1.2.
    void versionLevel_data()
    {
        QTest::addColumn<QString>("rpm");
        QTest::addColumn<int>("level");
        QTest::newRow("2.4") << u"cups-2.4.2-1.el9.x86_64"_s << 204;
        QTest::newRow("1.1: no IPv6 yet") << u"cups-1.1.23-40"_s << 101;
        QTest::newRow("3.0") << u"cups-3.0.1-1.fc41.x86_64"_s << 300;
        QTest::newRow("not installed") << u"package cups is not installed"_s << -1;
    }

    void versionLevel()
    {
        QFETCH(QString, rpm);
        QFETCH(int, level);
        QTemporaryDir bin;
        QVERIFY(TestSupport::writeFile(bin.filePath(u"rpm"_s), "#!/bin/sh\necho '" + rpm.toUtf8() + "'\n", true));
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", bin.path().toUtf8() + ':' + path);
        const CupsVersionProbe probe(nullptr);
        const int read = probe.value();
        qputenv("PATH", path);
        QCOMPARE(read, level);
        QCOMPARE(CupsVersionProbe::takesIpv6(level), level >= 102);
    }

    // The version probe falls back to the scheduler's "Server" header where
    // no package answers; the scheduler here is the installed CUPS.
    void schedulerDown()
    {
        QCOMPARE(CUPSManager::probeServerVersion(), CupsVersionProbe::level(CUPS_VERSION_MAJOR, CUPS_VERSION_MINOR));
        const QString server = m_sandbox.server();
        QVERIFY(m_sandbox.stop());
        QCOMPARE(CUPSManager::probeServerVersion(), -1);
        QMap<QString, CUPSDriver> drivers{{u"stale"_s, CUPSDriver()}};
        QVERIFY(!manager.listDrivers(drivers, u"ACME"_s));
        QVERIFY(drivers.isEmpty());
        QCOMPARE(manager.lastStatusText(), u"The printing service at %1 does not answer"_s.arg(server));
        QMap<QString, CUPSPrinter> printers{{u"stale"_s, CUPSPrinter()}};
        QVERIFY(!manager.listPrinters(printers));
        QVERIFY(printers.isEmpty());
        QVERIFY(!manager.addPrinter(newPrinter(u"nowhere"_s)));
        QCOMPARE(requestsLogged(IPP_OP_CUPS_ADD_MODIFY_PRINTER), 0);
    }

private:
    QByteArray requestLog() const
    {
        IPPLog::flush(IPPLog::Request);
        return TestSupport::readFile(m_logs.filePath(IPPLog::fileName(IPPLog::Request)));
    }

    int requestsLogged(int operation) const
    {
        return int(requestLog().count("Requesting operation 0x" + QByteArray::number(operation, 16) + "..."));
    }

    CupsSandbox m_sandbox;
    QTemporaryDir m_logs;
};

QTEST_GUILESS_MAIN(TestCUPSManager)
#include "tst_cupsmanager.moc"
