// SPDX-License-Identifier: MIT
// A program that KilledSave_gui_test kills: SavingProgram IN OUT COUNT opens IN in the window and saves it COUNT times
// to OUT, alternately with and without grain. Prints the start of each save to standard output.
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
