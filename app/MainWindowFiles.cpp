// SPDX-License-Identifier: MIT
// Opening and saving images in the main window.
#include "app/MainWindow.h"

#include "app/BusyNotice.h"
#include "app/LocalFiles.h"
#include "app/Product.h"
#include "app/StatusBar.h"
#include "ui_MainWindow.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include <malloc.h>

#include <algorithm>
#include <exception>
#include <utility>

namespace grisal::ui
{

namespace
{

// An address that another program passes may have any length.
constexpr int longestName = 200; // characters in the log
constexpr int widestName = 600;  // pixels in a message box

QString titleFor(const QString &path, const graphics::Image &image)
{
    // Qt replaces "[*]" in a window title by the mark of unsaved changes; written twice, it is shown literally.
    const QString name = QFileInfo(path).fileName().replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
    return QStringLiteral("%1 - %2 %3x%4")
        .arg(QString::fromLatin1(product::title), name, QString::number(widthOf(image)),
             QString::number(heightOf(image)));
}

QString memorySize(std::uint64_t bytes)
{
    return QLocale().formattedDataSize(static_cast<qint64>(bytes), 1, QLocale::DataSizeSIFormat);
}

// After a move, the program that the files come from may delete them.
void acceptCopy(QDropEvent &event)
{
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

} // namespace

void MainWindow::on_actionOpen_triggered()
{
    m_panels.takeTypedNumber();
    openImage(m_fileDealer.openDialog());
    activateWindow();
}

void MainWindow::openImage(QString filename)
{
    m_panels.takeTypedNumber();
    if (filename.isEmpty()) {
        return;
    }
    try {
        openFile(filename);
    } catch (const std::exception &problem) {
        // Usually std::bad_alloc: not enough memory for the preview.
        qWarning("%s", problem.what());
        showCannotLoad(filename);
    }
    // Returns the memory of the former image to the system: the allocator would keep it, and the process grew by 480 MB
    // over fifty images of 12 megapixels.
    malloc_trim(0);
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!imagesAmong(localFiles(event->mimeData()->urls())).isEmpty()) {
        acceptCopy(*event);
    }
}

// Opened afterwards, because a message box would block the program that the files come from.
void MainWindow::dropEvent(QDropEvent *event)
{
    const QStringList paths = imagesAmong(localFiles(event->mimeData()->urls()));
    acceptCopy(*event);
    QTimer::singleShot(0, this, [this, paths] { openFirst(paths); });
}

void MainWindow::openFirst(const QStringList &paths)
{
    if (paths.isEmpty()) {
        return;
    }
    const Session::PicturePointer before = m_session.picture();
    openImage(paths.first());
    const bool opened = m_session.picture() != before;
    if (opened && m_session.warning().isEmpty() && paths.size() > 1) {
        m_form->statusbar->showBriefly(tr("Only the first of the %1 pictures was opened").arg(paths.size()));
    }
}

// Without a picture among them, the first file is opened whatever it contains: the message then states why it is no
// picture. Missing files are not, because openImage() would show the open picture under their name.
void MainWindow::openUris(const QStringList &uris)
{
    const QStringList files = localFiles(QUrl::fromStringList(uris));
    const QStringList images = imagesAmong(files);
    const auto existing = std::find_if_not(files.begin(), files.end(), isMissing);
    if (!images.isEmpty()) {
        openFirst(images);
    } else if (existing != files.end()) {
        openImage(*existing);
    } else if (!files.isEmpty()) {
        showNoFile(files.first(), tr("There is no such file. It may have been moved or deleted."));
    } else {
        // Without the password that an address may contain.
        const QString address = QUrl(uris.value(0)).toDisplayString();
        showNoFile(address.isEmpty() ? uris.value(0) : address,
                   tr("It is not a file on this computer, or its name is invalid. Please copy the picture to a "
                      "folder on this computer and open the copy."));
    }
}

void MainWindow::openFile(const QString &filename)
{
    BusyNotice notice(*m_form->statusbar);
    notice.show(tr("Reading %1").arg(QFileInfo(filename).fileName()));
    const Session::PicturePointer picture = m_session.read(filename);
    if (!picture) {
        notice.end();
        showCannotLoad(filename);
        return;
    }
    showPreviewOf(picture->image);
    m_session.setPicture(picture);
    m_form->statusbar->setHint({});
    showScale();
    m_fileDealer.addToRecent();
    setWindowTitle(titleFor(filename, picture->image));
    slotResetActions();
    update();
    showWarning();
}

// The preview has 8 bits per channel for images of any depth.
void MainWindow::showPreviewOf(const graphics::Image &image)
{
    if (const auto *image16 = std::get_if<graphics::Image16>(&image)) {
        loadBuffer(highBytes(*image16));
    } else {
        loadBuffer(image);
    }
}

void MainWindow::showWarning()
{
    if (!m_session.warning().isEmpty()) {
        m_form->statusbar->showBriefly(m_session.warning().translated());
    }
}

void MainWindow::showCannotLoad(const QString &filename)
{
    if (const auto &shortage = m_session.shortage()) {
        showCannotLoad(filename, tr("Opening and saving it takes up to %1 of memory, but only %2 are free.")
                                     .arg(memorySize(shortage->needed), memorySize(shortage->free)));
    } else {
        showCannotLoad(filename, m_session.problem().translated());
    }
}

void MainWindow::showCannotLoad(const QString &name, const QString &reason)
{
    QMessageBox box(QMessageBox::Information, tr("Open Image"), tr("Cannot load %1.").arg(name), QMessageBox::Ok, this);
    box.setInformativeText(reason);
    // A file name may contain characters that look like HTML.
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void MainWindow::showNoFile(const QString &name, const QString &reason)
{
    const QString start = name.left(longestName);
    qWarning("There is no file %s", qPrintable(start));
    showCannotLoad(fontMetrics().elidedText(start, Qt::ElideMiddle, widestName), reason);
}

void MainWindow::saveImage(const QString &path)
{
    if (path.isEmpty()) {
        qWarning("MainWindow::saveImage(): Invalid filename");
        m_form->statusbar->showBriefly(tr("No filename"));
        return;
    }
    if (!m_session.picture()) {
        qWarning("MainWindow::saveImage(): Image is Null");
        m_form->statusbar->showBriefly(tr("No image"));
        return;
    }
    if (!m_session.checkName(path)) {
        showCannotSave(path);
        return;
    }
    BusyNotice notice(*m_form->statusbar);
    std::optional<graphics::Image> output = renderOutput(notice);
    if (!output) {
        return;
    }
    notice.show(tr("Writing %1").arg(QFileInfo(path).fileName()));
    if (!m_session.write(*std::move(output), path, m_panels.look(*m_form->glWidgetPreview))) {
        showCannotSave(path);
        return;
    }
    showSaved(path);
}

void MainWindow::showCannotSave(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    m_form->statusbar->showBriefly(tr("Cannot save %1: %2").arg(name, m_session.problem().translated()));
}

void MainWindow::showSaved(const QString &path)
{
    const QString saved = tr("Saved %1").arg(QFileInfo(path).fileName());
    const QString warning = m_session.warning().translated();
    m_form->statusbar->showBriefly(warning.isEmpty() ? saved : saved + QStringLiteral(". ") + warning);
}

void MainWindow::slotFinalRendering()
{
    BusyNotice notice(*m_form->statusbar);
    renderOutput(notice);
}

std::optional<graphics::Image> MainWindow::renderOutput(BusyNotice &notice)
{
    m_panels.takeTypedNumber();
    try {
        return renderImage(notice);
    } catch (const std::exception &problem) {
        // Usually std::bad_alloc: not enough memory for the result.
        showRenderFailed(QString::fromLocal8Bit(problem.what()));
        return std::nullopt;
    }
}

std::optional<graphics::Image> MainWindow::renderImage(BusyNotice &notice)
{
    update();
    if (!m_session.picture()) {
        showRenderFailed(QStringLiteral("No picture is open"));
        return std::nullopt;
    }
    const auto showTile = [&notice](int tile, int tiles) {
        notice.show(tr("Rendering tile %1 of %2").arg(tile).arg(tiles), tile - 1, tiles);
    };
    GLWidget *preview = m_form->glWidgetPreview;
    graphics::Image image = m_session.picture()->image;
    const bool rendered = preview->renderFinal(image, showTile);
    if (!rendered) {
        showRenderFailed(preview->graphicsProblem().english());
        return std::nullopt;
    }
    return image;
}

void MainWindow::showRenderFailed(const QString &reason)
{
    qWarning("The picture could not be rendered. %s", qPrintable(reason));
    m_form->statusbar->showBriefly(
        tr("The picture could not be rendered. Nothing was saved; the log contains the reason."));
}

void MainWindow::on_actionSave_triggered()
{
    m_panels.takeTypedNumber();
    const QFileInfo file(m_fileDealer.currentPath());
    if (file.exists()) {
        const QString question = tr("File %1 already exists.\n Do you want to replace it?").arg(file.baseName());
        QMessageBox box(QMessageBox::Question, tr("Overwrite?"), question, QMessageBox::Ok | QMessageBox::Cancel);
        // The open picture may be another one of the same name.
        box.setInformativeText(QDir::toNativeSeparators(file.absoluteFilePath()));
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
    m_panels.takeTypedNumber();
    saveImage(m_fileDealer.saveDialog(m_session.picture() ? m_session.picture()->proposedName : QString()));
    activateWindow();
}

} // namespace grisal::ui
