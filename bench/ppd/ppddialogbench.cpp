// Times the driver options dialog (offscreen) on a private scheduler:
//   (a) the largest PPD the system's driver set produces, when those drivers
//       are installed (the large-format models of the set have the most
//       options; NAME on the command line picks another ppd-name), and
//   (b) a generated PPD with 500 options and 5,000 constraints.
// For each: the time to open the dialog against `lpoptions -p QUEUE -l` on
// the same queue (the same fetch and parse of the PPD, as a child program),
// and the worst and the median time of 50 choice changes, each with its
// constraint check and repaint. A change must fit in a frame (16 ms).

#include "cupsmanager.h"
#include "cupssandbox.h"
#include "ipplog.h"
#include "mimesourcefactory_ppdwidgets.h"
#include "ppddialog.h"
#include "ppdoptionview.h"
#include "ppdtreeoptionitem.h"
#include "ppdtreeview.h"

#include <cups/cups.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMessageBox>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>

namespace {

constexpr int kOptions = 500;
constexpr int kConstraints = 5000;
constexpr int kChanges = 50;
const char kGeneratedModel[] = "bench-options.ppd";
// The system's driver programs that don't browse the network.
const char kSystemDrivers[] = "/usr/lib/cups/driver";

double msSince(const QElapsedTimer &clock)
{
    return double(clock.nsecsElapsed()) / 1e6;
}

// Milliseconds: the best of several calls.
double best(const std::function<bool()> &call, int rounds = 5)
{
    double fastest = 1e300;
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer clock;
        clock.start();
        if (!call())
            return -1;
        fastest = std::min(fastest, msSince(clock));
    }
    return fastest;
}

// Options with four choices C0..C3 in groups of 20; every constraint names
// C3 of one option, which the changes below never pick, so ppdConflicts
// tests them all on every change without a conflict warning popping up.
QByteArray generatedPpd()
{
    QByteArray ppd = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
                     "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n*PCFileName: \"BENCH.PPD\"\n"
                     "*Manufacturer: \"Bench\"\n*Product: \"(Bench)\"\n*ModelName: \"Bench Options\"\n"
                     "*ShortNickName: \"Bench Options\"\n*NickName: \"Bench Options 500\"\n"
                     "*PSVersion: \"(3010.000) 0\"\n*ColorDevice: True\n*DefaultColorSpace: RGB\n"
                     "*cupsFilter: \"application/vnd.cups-postscript 0 -\"\n"
                     "*OpenUI *PageSize: PickOne\n*DefaultPageSize: A4\n"
                     "*PageSize A4/A4: \"<</PageSize[595 842]>>setpagedevice\"\n*CloseUI: *PageSize\n"
                     "*DefaultImageableArea: A4\n*ImageableArea A4/A4: \"18 18 577 824\"\n"
                     "*DefaultPaperDimension: A4\n*PaperDimension A4/A4: \"595 842\"\n";
    for (int i = 0; i < kOptions; ++i) {
        if (i % 20 == 0) {
            if (i > 0)
                ppd += "*CloseGroup: G" + QByteArray::number(i / 20 - 1) + "\n";
            ppd += "*OpenGroup: G" + QByteArray::number(i / 20) + "/Group " + QByteArray::number(i / 20) + "\n";
        }
        const QByteArray key = "Opt" + QByteArray::number(i);
        ppd += "*OpenUI *" + key + "/Option number " + QByteArray::number(i) + ": PickOne\n";
        ppd += "*Default" + key + ": C0\n";
        for (int c = 0; c < 4; ++c) {
            ppd += "*" + key + " C" + QByteArray::number(c) + "/Choice " + QByteArray::number(c)
                + " of option " + QByteArray::number(i) + ": \"\"\n";
        }
        ppd += "*CloseUI: *" + key + "\n";
    }
    ppd += "*CloseGroup: G" + QByteArray::number((kOptions - 1) / 20) + "\n";
    for (int k = 0; k < kConstraints; ++k) {
        const int a = (k * 7) % kOptions;
        const int b = (k * 13 + 1 + k / kOptions) % kOptions;
        ppd += "*UIConstraints: *Opt" + QByteArray::number(a) + " C3 *Opt" + QByteArray::number(b == a ? (b + 1) % kOptions : b)
            + " C" + QByteArray::number(k % 4) + "\n";
    }
    return ppd;
}

bool makeQueue(const QString &name, const QString &ppdName)
{
    CUPSPrinter printer(name);
    printer.setDeviceURI(QStringLiteral("file:/dev/null"));
    printer.setState(IPP_PSTATE_IDLE);
    printer.setAcceptingJobs(true);
    printer.setPPDName(ppdName);
    return CUPSManager::m_CUPSManagerInstance.addPrinter(printer);
}

int optionCount(const QString &queue)
{
    const char *path = cupsGetPPD(queue.toUtf8().constData());
    if (!path)
        return -1;
    QFile file(QFile::decodeName(path));
    const int count = file.open(QIODevice::ReadOnly) ? int(file.readAll().count("\n*OpenUI")) : -1;
    file.remove();
    return count;
}

// The large-format models of the system's driver set, each made into a
// queue; the one with the most options stays. Empty when there are none.
QString largestSystemQueue(const QString &requested)
{
    QMap<QString, CUPSDriver> drivers;
    if (!CUPSManager::m_CUPSManagerInstance.listDrivers(drivers, QString()))
        return QString();
    QStringList candidates;
    for (const CUPSDriver &driver : std::as_const(drivers)) {
        const bool wanted = requested.isEmpty()
            ? driver.Model().contains(QLatin1String("Stylus Pro")) || driver.Model().contains(QLatin1String("SureColor"))
            : driver.DriverFile() == requested;
        if (wanted)
            candidates << driver.DriverFile();
    }
    printf("catalogue: %lld drivers, %lld candidates for the largest PPD\n", qlonglong(drivers.size()),
           qlonglong(candidates.size()));
    fflush(stdout);
    QString largest;
    int most = -1;
    for (int i = 0; i < candidates.size(); ++i) {
        const QString queue = QStringLiteral("large_%1").arg(i);
        if (!makeQueue(queue, candidates.at(i)))
            continue;
        const int count = optionCount(queue);
        if (count > most) {
            if (!largest.isEmpty())
                CUPSManager::m_CUPSManagerInstance.deletePrinter(largest);
            most = count;
            largest = queue;
        } else {
            CUPSManager::m_CUPSManagerInstance.deletePrinter(queue);
        }
    }
    return largest;
}

bool runLpoptions(const QString &queue)
{
    QProcess lpoptions;
    lpoptions.start(QStringLiteral("lpoptions"), {QStringLiteral("-p"), queue, QStringLiteral("-l")});
    return lpoptions.waitForFinished(120000) && lpoptions.exitStatus() == QProcess::NormalExit
        && lpoptions.exitCode() == 0;
}

QList<PPDTree::OptionItem *> optionItems(QTreeWidgetItem *item)
{
    QList<PPDTree::OptionItem *> items;
    if (auto *option = dynamic_cast<PPDTree::OptionItem *>(item)) {
        if (option->option()->ui != PPD_UI_PICKMANY && option->option()->num_choices > 1)
            items << option;
    }
    for (int i = 0; i < item->childCount(); ++i)
        items << optionItems(item->child(i));
    return items;
}

bool measure(const char *title, const QString &queue)
{
    const double lpoptions = best([&] { return runLpoptions(queue); });
    const double fetch = best([&] {
        const char *path = cupsGetPPD(queue.toUtf8().constData());
        return path && QFile::remove(QFile::decodeName(path));
    });
    const double open = best([&] {
        PPDDialog dialog(queue);
        dialog.resize(800, 600);
        dialog.show();
        QApplication::processEvents();
        return dialog.isLoaded();
    });
    if (lpoptions <= 0 || open <= 0) {
        fprintf(stderr, "bench_ppddialog: %s: lpoptions or the dialog failed\n", title);
        return false;
    }

    PPDDialog dialog(queue);
    dialog.resize(800, 600);
    dialog.show();
    QApplication::processEvents();
    auto *tree = dialog.findChild<PPDTreeView *>(QStringLiteral("ppdTreeView"));
    auto *view = dialog.findChild<PPDOptionView *>(QStringLiteral("ppdOptionView"));
    const QList<PPDTree::OptionItem *> items = optionItems(tree->rootItem());
    if (items.isEmpty())
        return false;
    QList<double> changes;
    for (int i = 0; i < kChanges; ++i) {
        PPDTree::OptionItem *item = items.at((i * 37) % items.size());
        tree->setCurrentItem(item);
        view->setOption(item);
        QApplication::processEvents();
        const ppd_option_t *option = item->option();
        const int current = item->choice() ? int(item->choice() - option->choices) : 0;
        QElapsedTimer clock;
        clock.start();
        view->selectionChanged((current + 1) % std::min(3, option->num_choices));
        QApplication::processEvents();
        changes << msSince(clock);
    }
    std::sort(changes.begin(), changes.end());

    int options = 0;
    for (int i = 0; i < dialog.ppd()->num_groups; ++i)
        options += dialog.ppd()->groups[i].num_options;
    printf("\n%s: %s, %d options, %d constraints, %lld tree rows\n", title, dialog.ppd()->nickname, options,
           dialog.ppd()->num_consts, qlonglong(items.size()));
    printf("%-36s %10s %16s\n", "case", "ms", "vs lpoptions -l");
    printf("%-36s %10.2f %16.2f\n", "lpoptions -p QUEUE -l (baseline)", lpoptions, 1.0);
    printf("%-36s %10.2f %16.2f\n", "cupsGetPPD in this process", fetch, fetch / lpoptions);
    printf("%-36s %10.2f %16.2f\n", "open the dialog", open, open / lpoptions);
    printf("%-36s %10.2f %16s\n", "choice change, median of 50", changes.at(changes.size() / 2), "");
    printf("%-36s %10.2f %16s  (a frame: 16 ms)\n", "choice change, worst of 50", changes.last(), "");
    fflush(stdout);
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    MimeSourceFactory_ppdwidgets::registerFactory();
    const QString requested = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();

    // A warning box would wait for a click: close it.
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, [] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            box->reject();
    });
    closer.start(0);

    QTemporaryDir work;
    IPPLog::openAll(work.path());
    const QString model = work.filePath(QLatin1String(kGeneratedModel));
    QFile file(model);
    if (!file.open(QIODevice::WriteOnly) || file.write(generatedPpd()) < 0)
        return 1;
    file.close();

    CupsSandbox sandbox;
    sandbox.addModel(model);
    QString error;
    if (!sandbox.start(&error)) {
        fprintf(stderr, "bench_ppddialog: %s\n", qPrintable(error));
        return 1;
    }
    sandbox.use();

    // The sandbox leaves the system's driver programs out; bring them in.
    const QDir system{QLatin1String(kSystemDrivers)};
    const QStringList programs = system.entryList(QDir::Files).filter(QRegularExpression(QStringLiteral("^(?!driverless)")));
    for (const QString &program : programs)
        QFile::link(system.filePath(program), sandbox.directory() + QStringLiteral("/lib/driver/") + program);

    const QString large = programs.isEmpty() ? QString() : largestSystemQueue(requested);
    if (large.isEmpty() && !requested.isEmpty())
        printf("(a) skipped: the catalogue has no driver %s\n", qPrintable(requested));
    else if (large.isEmpty())
        printf("(a) skipped: the system's driver set has no large-format models (install e.g. "
               "printer-driver-gutenprint)\n");
    else if (!measure("(a) largest system PPD", large))
        return 1;

    if (!makeQueue(QStringLiteral("generated"), QLatin1String(kGeneratedModel))) {
        fprintf(stderr, "bench_ppddialog: the generated PPD was refused: %s\n",
                qPrintable(CUPSManager::m_CUPSManagerInstance.lastStatusText()));
        return 1;
    }
    return measure("(b) generated PPD", QStringLiteral("generated")) ? 0 : 1;
}
