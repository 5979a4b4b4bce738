// SPDX-License-Identifier: MIT
//
// Baseline for the start of the program: empty_window WIDTH HEIGHT shows an empty window of that size with an empty
// OpenGL widget. Ends after its first frame.
#include <QApplication>
#include <QMainWindow>
#include <QOpenGLWidget>
#include <QSurfaceFormat>

#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv)
{
    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setVersion(2, 1);
    QSurfaceFormat::setDefaultFormat(format);
    const QApplication application(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: empty_window WIDTH HEIGHT\n");
        return EXIT_FAILURE;
    }
    QMainWindow window;
    auto *widget = new QOpenGLWidget;
    window.setCentralWidget(widget);
    QObject::connect(widget, &QOpenGLWidget::frameSwapped, &window, [] { std::quick_exit(0); });
    window.resize(std::atoi(argv[1]), std::atoi(argv[2]));
    window.show();
    return QApplication::exec();
}
