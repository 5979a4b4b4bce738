// SPDX-License-Identifier: MIT
//
// Baseline for the start of the program: empty_window [WIDTH HEIGHT] shows an empty window with an empty OpenGL widget,
// of the given size or of Qt's default size. Ends after its first frame.
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
