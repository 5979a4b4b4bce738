// SPDX-License-Identifier: MIT
//
// A whole job in its own process: window_job IN OUT opens an image in the program's window, switches all filters on and
// saves the result. Prints the duration of opening (until the image is on the screen) and of saving, and the peak
// memory in bytes above that with the placeholder.
#include "app/MainWindow.h"
#include "bench/ScreenWindow.h"
#include "graphics/gl/ShaderCache.h"
#include "graphics/gl/SurfaceFormat.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>

#include <cstdio>
#include <cstdlib>

namespace
{

void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) {}

/// A memory figure of this process in bytes, from /proc/self/status: VmRSS is the current use, VmHWM the peak.
qint64 memoryOf(const char *name)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(name)) {
            return line.simplified().split(' ').value(1).toLongLong() * 1024;
        }
    }
    return 0;
}

/// Resets the peak memory (VmHWM) to the current use.
void forgetHighest()
{
    QFile references(QStringLiteral("/proc/self/clear_refs"));
    if (references.open(QIODevice::WriteOnly)) {
        references.write("5");
    }
}

double millisecondsOf(const QElapsedTimer &timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

} // namespace

int main(int argc, char **argv)
{
    qInstallMessageHandler(ignoreMessage);
    grisal::graphics::disableShaderCache();
    grisal::graphics::setDefaultSurfaceFormat();
    const QApplication application(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: window_job IN OUT\n");
        return EXIT_FAILURE;
    }
    grisal::bench::ScreenWindow window;
    const qint64 idle = memoryOf("VmRSS");
    forgetHighest();

    QElapsedTimer timer;
    timer.start();
    window.open(QString::fromLocal8Bit(argv[1]));
    const double open = millisecondsOf(timer);
    const qint64 opened = memoryOf("VmHWM");
    window.enableAllFilters();
    timer.restart();
    window.save(QString::fromLocal8Bit(argv[2]));
    const double save = millisecondsOf(timer);

    std::printf("{\"open\": %.3f, \"save\": %.3f, \"idle\": %lld, \"openPeak\": %lld, \"peak\": %lld}\n", open, save,
                idle, opened - idle, memoryOf("VmHWM") - idle);
    return EXIT_SUCCESS;
}
