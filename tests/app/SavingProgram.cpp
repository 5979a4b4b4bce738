// SPDX-License-Identifier: MIT
// A program to be killed: opens the picture of its first argument in the window and saves it to the file of its second,
// with grain and without by turns, as often as its third says. Tells each save's start on its standard output.
#include "app/MainWindow.h"
#include "graphics/gl/SurfaceFormat.h"

#include <QAction>
#include <QApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    grisal::graphics::setDefaultSurfaceFormat();
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    grisal::ui::MainWindow window;
    window.show();
    QApplication::processEvents();
    window.openImage(arguments.at(1));
    for (int save = 0; save < arguments.at(3).toInt(); ++save) {
        window.findChild<QAction *>(QStringLiteral("actionGrain"))->trigger();
        std::puts("saving");
        std::fflush(stdout);
        window.saveImage(arguments.at(2));
    }
    return 0;
}
