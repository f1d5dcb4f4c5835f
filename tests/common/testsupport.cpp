#include "testsupport.h"

#include "testpaths.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <cstdio>
#include <unistd.h>
#include <vector>
#include <QTimer>

#include <memory>

namespace TestSupport {

bool writeFile(const QString &path, const QByteArray &content, bool executable)
{
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly | QIODevice::Truncate)
        || file.write(content) != content.size())
        return false;
    file.close();
    return !executable
        || file.setPermissions(file.permissions() | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther);
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

Run run(const QString &program, const QStringList &args, const QProcessEnvironment &env, const QByteArray &input,
        int timeoutMs)
{
    QProcess process;
    process.setProcessEnvironment(env);
    process.start(program, args);
    process.write(input);
    process.closeWriteChannel();
    Run result;
    if (!process.waitForFinished(timeoutMs) || process.exitStatus() != QProcess::NormalExit) {
        process.kill();
        process.waitForFinished(5000);
        result.err = QStringLiteral("%1 did not end normally").arg(program);
        return result;
    }
    result.status = process.exitCode();
    result.out = QString::fromLocal8Bit(process.readAllStandardOutput());
    result.err = QString::fromLocal8Bit(process.readAllStandardError());
    return result;
}

void failOnWarnings()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not).*")));
}

void answerMessageBox(const QString &answer, QString *seen, int timeoutMs)
{
    auto *timer = new QTimer;
    auto deadline = std::make_shared<QDeadlineTimer>(timeoutMs);
    QObject::connect(timer, &QTimer::timeout, [timer, deadline, answer, seen] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (box || deadline->hasExpired()) {
            timer->stop();
            timer->deleteLater();
        }
        if (!box)
            return;
        if (seen)
            *seen = box->windowTitle() + QStringLiteral("|") + box->text();
        for (QAbstractButton *b : box->buttons()) {
            if (b->text() == answer)
                return QTest::mouseClick(b, Qt::LeftButton);
        }
        box->reject();
    });
    timer->start(20);
}

bool inDnssdNetwork(int argc, char **argv)
{
    if (qEnvironmentVariableIsSet("QW_DNSSD_NETWORK"))
        return true;
    const QByteArray network = TestPaths::sourceDir().toLocal8Bit() + "/tests/common/dnssd-network";
    std::vector<char *> args{ const_cast<char *>(network.constData()) };
    args.insert(args.end(), argv, argv + argc + 1);
    execv(network.constData(), args.data());
    perror(network.constData());
    return false;
}

} // namespace TestSupport
