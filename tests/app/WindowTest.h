// SPDX-License-Identifier: MIT
#pragma once

#include "app/MainWindow.h"
#include "tests/support/GlPresence.h"
#include "tests/support/GuiTest.h"
#include "tests/support/Images.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QStackedLayout>
#include <QStatusBar>
#include <QTest>

#include <cstdint>
#include <stdexcept>
#include <vector>

namespace grisal::test
{

/// A test of the program's window.
class WindowTest : public GuiTest
{
protected:
    void SetUp() override
    {
        GRISAL_SKIP_WITHOUT_GL();
        // The mouse may still be over the tool bar, which would show a status tip.
        QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
    }

    /// Shows the window with a placeholder of 300 x 200 mid-grey pixels like the program at its start. Ends the test if
    /// there is no OpenGL.
    void start()
    {
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window)) {
            throw std::runtime_error("the window does not come to the front");
        }
        if (!window.graphicsProblem().isEmpty()) {
            throw std::runtime_error(window.graphicsProblem().english().toStdString());
        }
        window.loadBuffer(greyImage(300, 200, 128));
    }

    /// Shows the window with a preview of even width and height, so that its middle is between two pixels.
    void startEven()
    {
        start();
        window.resize(window.width() + preview().width() % 2, window.height() + preview().height() % 2);
        // Otherwise the delayed fit after the resize would change the scale later.
        timeOutNow(child<QTimer>(preview(), "resizeTimer"));
    }

    ui::GLWidget &preview() { return child<ui::GLWidget>(window, "glWidgetPreview"); }

    QStackedLayout &panels()
    {
        const QWidget &container = child<QWidget>(window, "container");
        return *container.findChild<QStackedLayout *>();
    }

    /// Class name of the current panel.
    std::string shownPanel() { return panels().currentWidget()->metaObject()->className(); }

    std::string status() { return child<QStatusBar>(window, "statusbar").currentMessage().toStdString(); }

    QAction &action(const char *name) { return child<QAction>(window, name); }

    ui::MainWindow window;
};

} // namespace grisal::test
