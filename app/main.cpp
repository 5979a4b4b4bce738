// SPDX-License-Identifier: MIT
#include "app/MainWindow.h"
#include "app/Memory.h"
#include "app/MessageLog.h"
#include "app/PictureModule.h"
#include "app/Translation.h"
#include "graphics/gl/SurfaceFormat.h"

#include <QApplication>
#include <QLocale>
#include <QMessageBox>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>

namespace
{

constexpr int placeholderWidth = 300;
constexpr int placeholderHeight = 200;
constexpr std::uint8_t placeholderGrey = 128;

void tellGraphicsProblem(const grisal::graphics::Message &problem)
{
    qCritical("%s", qPrintable(problem.english()));
    QMessageBox::critical(nullptr, QApplication::tr("No OpenGL"),
                          QApplication::tr("%1\nGrisal needs OpenGL 2.1 to show and save pictures. Please install or "
                                           "update the graphics driver and start Grisal again.")
                              .arg(problem.translated()));
}

} // namespace

int main(int argc, char **argv)
{
    memory::keepFreedBlocks();
    message_log::install();
    grisal::graphics::setDefaultSurfaceFormat();

    QApplication application(argc, argv);
    QApplication::setDesktopFileName(QStringLiteral(GRISAL_APP_ID));
    const Translation translation(QLocale::system());
    auto window = std::make_unique<grisal::ui::MainWindow>(&picture_module::newPicture);

    std::vector<std::uint8_t> placeholder(std::size_t{placeholderWidth} * placeholderHeight * 3, placeholderGrey);
    window->show();
    window->loadBuffer(placeholder.data(), placeholderWidth, placeholderHeight, false);
    if (const auto problem = window->graphicsProblem(); !problem.isEmpty()) {
        // The toolkit crashes when it paints a window that holds an OpenGL widget and there is no OpenGL.
        window->hide();
        tellGraphicsProblem(problem);
        return EXIT_FAILURE;
    }
    return QApplication::exec();
}
