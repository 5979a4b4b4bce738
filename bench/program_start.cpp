// SPDX-License-Identifier: MIT
//
// The start of the program: its window with the placeholder, shown as in app/main.cpp. Ends after its first frame and
// prints the width and height of the window.
#include "app/MainWindow.h"
#include "app/MessageLog.h"
#include "graphics/gl/ShaderCache.h"
#include "graphics/gl/SurfaceFormat.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv)
{
    message_log::install();
    grisal::graphics::disableShaderCache();
    grisal::graphics::setDefaultSurfaceFormat();
    const QApplication application(argc, argv);
    grisal::ui::MainWindow window;
    QObject::connect(window.findChild<grisal::ui::GLWidget *>(), &QOpenGLWidget::frameSwapped, &window, [&window] {
        std::printf("%d %d\n", window.width(), window.height());
        std::fflush(stdout);
        std::quick_exit(0);
    });
    const grisal::graphics::Image8 grey(300, 200, grisal::graphics::rgbComponents, 128);
    window.show();
    window.loadBuffer(grey);
    return QApplication::exec();
}
