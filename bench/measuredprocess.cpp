#include "bench/measuredprocess.h"

#include <QElapsedTimer>
#include <QFile>
#include <QMap>
#include <QRegularExpression>

#include <X11/Xlib.h>

#include <csignal>
#include <ctime>
#include <memory>

#include <sys/socket.h>

namespace
{
constexpr int mostWaitMilliseconds = 10000;
} // namespace

double processorSeconds(qint64 process)
{
    clockid_t clock = 0;
    timespec time = {};
    if (clock_getcpuclockid(pid_t(process), &clock) != 0 || clock_gettime(clock, &time) != 0)
        qFatal("process %lld cannot be measured", process);
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

qint64 xServerProcess()
{
    const std::unique_ptr<Display, int (*)(Display *)> display(XOpenDisplay(nullptr), XCloseDisplay);
    ucred server = {};
    socklen_t length = sizeof server;
    if (!display ||
        getsockopt(ConnectionNumber(display.get()), SOL_SOCKET, SO_PEERCRED, &server, &length) != 0)
        qFatal("there is no X server on this machine");
    return server.pid;
}

MeasuredProcess::MeasuredProcess(const QString &program, const QStringList &arguments)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(program, arguments);
    if (!m_process.waitForStarted())
        qFatal("%s does not start", qPrintable(program));
}

MeasuredProcess::~MeasuredProcess()
{
    m_process.terminate();
    if (!m_process.waitForFinished(mostWaitMilliseconds))
        m_process.kill();
    m_process.waitForFinished();
}

double MeasuredProcess::memory() const
{
    QFile file(QString("/proc/%1/smaps").arg(m_process.processId()));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("the memory of %s cannot be measured", qPrintable(m_process.program()));
    QMap<QByteArray, double> mapping; // in kilobytes
    double kilobytes = 0;
    for (const QByteArray &line : file.readAll().split('\n')) {
        const QList<QByteArray> words = line.simplified().split(' ');
        // What a driver has mapped past the kernel's count of pages has a size and no share.
        if (words.first() == "VmFlags:")
            kilobytes += mapping[words.contains("pf") ? "Size:" : "Pss:"];
        else if (words.size() > 1)
            mapping[words.first()] = words[1].toDouble();
    }
    return kilobytes / 1024;
}

int MeasuredProcess::nextRendered()
{
    static const QRegularExpression counter("rendered: (\\d+)");
    QElapsedTimer waited;
    waited.start();
    while (waited.elapsed() < mostWaitMilliseconds) {
        while (m_process.canReadLine()) {
            const auto match = counter.match(m_process.readLine());
            if (match.hasMatch())
                return match.captured(1).toInt();
        }
        m_process.waitForReadyRead(mostWaitMilliseconds);
    }
    qFatal("%s shows nothing", qPrintable(m_process.program()));
}

void MeasuredProcess::interrupt()
{
    kill(pid_t(m_process.processId()), SIGINT);
    if (!m_process.waitForFinished(mostWaitMilliseconds))
        qFatal("%s does not end", qPrintable(m_process.program()));
}

QStringList launchLine(const QString &pipeline)
{
    return pipeline.simplified().split(' ');
}
