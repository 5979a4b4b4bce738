// SPDX-License-Identifier: MIT
#pragma once

#include "app/MainWindow.h"

#include <QAction>
#include <QApplication>

namespace grisal::bench
{

/// The program's window on the screen, first with the placeholder. Each step ends when its image is on the screen.
class ScreenWindow
{
public:
    ScreenWindow()
    {
        const graphics::Image8 grey(300, 200, graphics::rgbComponents, 128);
        m_window.resize(1200, 800);
        m_window.show();
        m_window.loadBuffer(grey);
        paint();
        // Handles the events that follow the first frame.
        QApplication::processEvents();
    }

    void open(const QString &path)
    {
        m_window.openImage(path);
        paint();
    }

    void enableAllFilters()
    {
        for (const char *name : {"actionCurves", "actionVignette", "actionGrain", "actionSplitTone"}) {
            m_window.findChild<QAction *>(QString::fromLatin1(name))->trigger();
        }
        paint();
    }

    void save(const QString &path) { m_window.saveImage(path); }

    void zoom(int step)
    {
        preview().zoom(static_cast<float>(step));
        paint();
    }

private:
    ui::GLWidget &preview() { return *m_window.findChild<ui::GLWidget *>(); }

    void paint()
    {
        bool swapped = false;
        const QMetaObject::Connection frame =
            QObject::connect(&preview(), &QOpenGLWidget::frameSwapped, [&swapped] { swapped = true; });
        preview().update();
        while (!swapped) {
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        QObject::disconnect(frame);
        preview().makeCurrent();
        glFinish();
    }

    ui::MainWindow m_window;
};

} // namespace grisal::bench
