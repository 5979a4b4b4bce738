// SPDX-License-Identifier: MIT
#include "app/Appearance.h"
#include "app/DesktopRequests.h"
#include "app/DesktopService.h"
#include "app/MainWindow.h"
#include "app/MessageLog.h"
#include "app/Settings.h"
#include "app/Translation.h"
#include "graphics/files/ImageLibrary.h"
#include "graphics/gl/ShaderCache.h"
#include "graphics/gl/SurfaceFormat.h"

#include <QApplication>
#include <QDBusConnection>
#include <QLocale>
#include <QMessageBox>
#include <QString>

#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace
{

constexpr int placeholderWidth = 300;
constexpr int placeholderHeight = 200;
constexpr std::uint8_t placeholderGrey = 128;

// Qt calls abort() if there is no display or no platform plug-in with the requested name. A signal handler may only
// write and exit.
extern "C" void reportMissingDisplay(int /*signal*/)
{
    constexpr std::string_view text =
        "Grisal cannot open a window: there is no display that can be reached, or no window system with the name in "
        "QT_QPA_PLATFORM or after -platform. Please start it on a desktop, or set DISPLAY or WAYLAND_DISPLAY.\n";
    [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, text.data(), text.size());
    _exit(EXIT_FAILURE);
}

/// Reports what the program does without, in the log and on the console.
void reportProblem(const grisal::graphics::Message &problem)
{
    if (!problem.isEmpty()) {
        qWarning("%s", qPrintable(problem.english()));
        std::fprintf(stderr, "%s\n", qPrintable(problem.translated()));
    }
}

void reportGraphicsProblem(const grisal::graphics::Message &problem)
{
    qCritical("%s", qPrintable(problem.english()));
    const QString text = QApplication::tr("%1\nGrisal needs OpenGL 2.1 to show and save pictures. Please install or "
                                          "update the graphics driver and start Grisal again.")
                             .arg(problem.translated());
    std::fprintf(stderr, "%s\n", qPrintable(text));
    QMessageBox::critical(nullptr, QApplication::tr("No OpenGL"), text);
}

} // namespace

int main(int argc, char **argv)
{
    grisal::graphics::initializeImageLibrary(argv[0]);
    message_log::install();
    grisal::graphics::disableShaderCache();
    grisal::graphics::setDefaultSurfaceFormat();

    std::signal(SIGABRT, reportMissingDisplay);
    QApplication application(argc, argv);
    std::signal(SIGABRT, SIG_DFL);
    QApplication::setDesktopFileName(QStringLiteral(GRISAL_APP_ID));
    const Appearance appearance;
    const Translation translation(QLocale::system());
    reportProblem(message_log::problem());
    reportProblem(Settings::problem());
    auto window = std::make_unique<grisal::ui::MainWindow>();

    const grisal::graphics::Image8 placeholder(placeholderWidth, placeholderHeight, grisal::graphics::rgbComponents,
                                               placeholderGrey);
    window->show();
    window->loadBuffer(placeholder);
    if (const auto problem = window->graphicsProblem(); !problem.isEmpty()) {
        // Without OpenGL, Qt crashes when it paints a window that contains an OpenGL widget.
        window->hide();
        reportGraphicsProblem(problem);
        return EXIT_FAILURE;
    }
    grisal::DesktopRequests requests(*window);
    grisal::DesktopService service;
    QObject::connect(&service, &grisal::DesktopService::requested, &requests, &grisal::DesktopRequests::add);
    QObject::connect(&requests, &grisal::DesktopRequests::signalOpen, window.get(), &grisal::ui::MainWindow::openUris);
    service.start(QDBusConnection::sessionBus(), QStringLiteral(GRISAL_APP_ID));
    return QApplication::exec();
}
