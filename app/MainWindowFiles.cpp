// SPDX-License-Identifier: MIT
// The ways a picture takes into the window and out of it again.
#include "app/MainWindow.h"

#include "app/BusyNotice.h"
#include "app/Memory.h"
#include "app/Product.h"
#include "ui_MainWindow.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QTimer>

#include <exception>
#include <memory>
#include <utility>

namespace grisal::ui
{

namespace
{

constexpr int messageDuration = 2000;
constexpr int saveQuality = 90;

/// Whether the path leads to something, if only to a link whose target is missing.
bool isThere(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

QString titleFor(const QString &path, const graphics::IPicture &image)
{
    // These three characters stand for the mark of unsaved changes; twice, they are themselves.
    const QString name = QFileInfo(path).fileName().replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
    return QStringLiteral("%1 - %2 %3x%4")
        .arg(QString::fromLatin1(product::title), name, QString::number(image.width()),
             QString::number(image.height()));
}

} // namespace

void MainWindow::on_actionOpen_triggered()
{
    openImage(m_fileDealer.openDialog());
    activateWindow();
}

void MainWindow::openImage(QString filename)
{
    if (filename.isEmpty()) {
        return;
    }
    try {
        openFile(filename);
    } catch (const std::exception &problem) {
        // A picture that the memory does not hold.
        qWarning("%s", problem.what());
        tellCannotLoad(filename);
    }
    memory::returnFreedBlocks();
}

// Whether there is a picture to show then. A file that is there and cannot be read leaves everything as it is. A file
// that is not there any more leaves the picture that is open, which is then opened again: its panels start afresh under
// the name that was asked for.
bool MainWindow::readFile(graphics::IPicture &image, const QString &filename)
{
    const bool read = image.read(filename);
    tellProblems(image);
    if (!read && isThere(filename)) {
        return false;
    }
    qDebug("%s", image.info().c_str());
    return !image.isNull();
}

void MainWindow::openFile(const QString &filename)
{
    BusyNotice notice(*m_form->statusbar, *m_progressBar);
    notice.show(tr("Reading %1").arg(QFileInfo(filename).fileName()));
    std::unique_ptr<graphics::IPicture> image = m_source ? m_source->copy() : m_newPicture();
    if (!image) {
        notice.end();
        tellCannotLoad(filename, tr("The part of Grisal that opens pictures cannot be loaded. If starting Grisal again "
                                    "does not help, please install it again."));
        return;
    }
    if (!readFile(*image, filename)) {
        notice.end();
        tellCannotLoad(filename);
        return;
    }
    std::unique_ptr<graphics::IPicture> output = image->blank();
    // The memory that the library needed for reading becomes the output's, before anything else can take of it.
    void *room = image->pack() ? output->roomForPixels() : nullptr;
    if (room == nullptr || !showPreviewOf(*image, room)) {
        tellProblems(*image);
        tellProblems(*output);
        notice.end();
        tellCannotLoad(filename);
        return;
    }
    m_source = std::move(image);
    m_output = std::move(output);
    m_fileDealer.addToRecent();
    setWindowTitle(titleFor(filename, *m_source));
    slotResetActions();
    update();
}

// The preview has bytes, whatever the picture has; in `room` there is place for them.
bool MainWindow::showPreviewOf(graphics::IPicture &image, void *room)
{
    if (image.is16Bit() && !image.getPixels(room, false, false)) {
        return false;
    }
    loadBuffer(image.is16Bit() ? room : image.packedPixels(), image.width(), image.height(), false);
    return true;
}

void MainWindow::tellProblems(const graphics::IPicture &image)
{
    if (!image.problem().isEmpty()) {
        qWarning("%s", qPrintable(image.problem()));
    }
    if (!image.warning().isEmpty()) {
        qWarning("%s", qPrintable(image.warning()));
        tell(image.translatedWarning());
    }
}

void MainWindow::tellCannotLoad(const QString &filename, const QString &advice)
{
    QMessageBox box(QMessageBox::Information, tr("Open Image"), tr("Cannot load %1.").arg(filename), QMessageBox::Ok,
                    this);
    // A file name is no HTML, whatever its characters.
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(advice);
    box.exec();
}

void MainWindow::tell(const QString &message)
{
    m_form->statusbar->showMessage(message, messageDuration);
}

void MainWindow::saveImage(const QString &path)
{
    if (path.isEmpty()) {
        qWarning("MainWindow::saveImage(): Invalid filename");
        tell(tr("No filename"));
        return;
    }
    if (!m_output) {
        qWarning("MainWindow::saveImage(): Image is Null");
        tell(tr("No image"));
        return;
    }
    // Once the user has the result: what was needed for it is given back.
    QTimer::singleShot(0, this, &memory::returnFreedBlocks);
    BusyNotice notice(*m_form->statusbar, *m_progressBar);
    if (!renderOutput(notice)) {
        return;
    }
    notice.show(tr("Writing %1").arg(QFileInfo(path).fileName()));
    if (!m_output->save(path, saveQuality)) {
        qWarning("Cannot save %s: %s", qPrintable(path), qPrintable(m_output->problem()));
        tell(tr("Cannot save %1. Choose another place or name.").arg(path));
        return;
    }
    tellProblems(*m_output);
}

void MainWindow::slotFinalRendering()
{
    BusyNotice notice(*m_form->statusbar, *m_progressBar);
    renderOutput(notice);
}

bool MainWindow::renderOutput(BusyNotice &notice)
{
    try {
        return renderIntoOutput(notice);
    } catch (const std::exception &problem) {
        // A render that the memory does not hold.
        return tellRenderFailed(QString::fromLocal8Bit(problem.what()));
    }
}

bool MainWindow::renderIntoOutput(BusyNotice &notice)
{
    update();
    if (!m_output) {
        return tellRenderFailed(QStringLiteral("No picture is open"));
    }
    const bool sixteenBit = m_source->is16Bit();
    void *pixels = m_output->roomForPixels();
    if (pixels == nullptr) {
        return tellRenderFailed(m_output->problem());
    }
    if (!m_source->getPixels(pixels, false, sixteenBit)) {
        return tellRenderFailed(m_source->problem());
    }
    GLWidget *preview = m_form->glWidgetPreview;
    const auto tellTile = [&notice](int tile, int tiles) {
        notice.show(tr("Rendering tile %1 of %2").arg(tile).arg(tiles), tile - 1, tiles);
    };
    if (!preview->renderFinal(pixels, m_source->width(), m_source->height(), sixteenBit, false, tellTile)) {
        return tellRenderFailed(preview->graphicsProblem().english());
    }
    if (!m_output->setPixels(pixels, false, sixteenBit)) {
        return tellRenderFailed(m_output->problem());
    }
    return true;
}

bool MainWindow::tellRenderFailed(const QString &reason)
{
    qWarning("The picture could not be rendered. %s", qPrintable(reason));
    tell(tr("The picture could not be rendered. Nothing was saved; the log tells more."));
    return false;
}

void MainWindow::on_actionSave_triggered()
{
    const QFileInfo file(m_fileDealer.currentPath());
    if (file.exists()) {
        const QString question = tr("File %1 already exists.\n Do you want to replace it?").arg(file.baseName());
        QMessageBox box(QMessageBox::Question, tr("Overwrite?"), question, QMessageBox::Ok | QMessageBox::Cancel);
        box.setTextFormat(Qt::PlainText);
        box.setDefaultButton(QMessageBox::Ok);
        if (box.exec() == QMessageBox::Ok) {
            saveImage(m_fileDealer.currentPath());
        }
    }
    activateWindow();
}

void MainWindow::on_actionSave_As_triggered()
{
    saveImage(m_fileDealer.saveDialog());
    activateWindow();
}

} // namespace grisal::ui
