// SPDX-License-Identifier: MIT
//
// The yardstick of the program's start: empty_window [WIDTH HEIGHT] is an empty window with an empty OpenGL widget, of
// that size or as small as the toolkit makes it. Ends with its first frame.
#include <QApplication>
#include <QMainWindow>
#include <QOpenGLWidget>
#include <QSurfaceFormat>

#include <cstdlib>

int main(int argc, char **argv)
{
    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setVersion(2, 1);
    QSurfaceFormat::setDefaultFormat(format);
    const QApplication application(argc, argv);
    QMainWindow window;
    auto *widget = new QOpenGLWidget;
    window.setCentralWidget(widget);
    QObject::connect(widget, &QOpenGLWidget::frameSwapped, &window, [] { std::quick_exit(0); });
    if (argc == 3) {
        window.resize(std::atoi(argv[1]), std::atoi(argv[2]));
    }
    window.show();
    return QApplication::exec();
}
