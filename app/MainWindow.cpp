// SPDX-License-Identifier: MIT
#include "app/MainWindow.h"

#include "app/About.h"
#include "app/Product.h"
#include "graphics/filters/IFilter.h"
#include "graphics/image/ToneHistogram.h"
#include "ui/panels/Curves.h"
#include "ui/panels/Grain.h"
#include "ui/panels/Mixer.h"
#include "ui/panels/Sharpen.h"
#include "ui/panels/SplitTone.h"
#include "ui/panels/Vignette.h"
#include "ui_MainWindow.h"

#include <QDebug>
#include <QDesktopServices>
#include <QFileInfo>
#include <QMessageBox>
#include <QStackedLayout>
#include <QToolBar>
#include <QUrl>

#include <cstdint>
#include <vector>

namespace grisal::ui
{

namespace
{

constexpr int messageDuration = 2000;
constexpr int saveQuality = 90;
constexpr int toolBarGap = 20;

std::size_t pixelCount(const graphics::LumioImage &image)
{
    return static_cast<std::size_t>(image.width()) * static_cast<std::size_t>(image.height());
}

/// The pixels as bytes, R, G, B; empty where they cannot be had.
std::vector<std::uint8_t> bytesOf(graphics::LumioImage &image)
{
    std::vector<std::uint8_t> pixels(pixelCount(image) * 3);
    if (!image.getPixels(pixels.data(), false, false)) {
        pixels.clear();
    }
    return pixels;
}

QWidget *newGap()
{
    auto *gap = new QWidget;
    gap->setFixedSize(toolBarGap, toolBarGap);
    return gap;
}

QWidget *newStretch()
{
    auto *stretch = new QWidget;
    stretch->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return stretch;
}

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent), m_mixer(new Mixer(this)), m_vignette(new Vignette(this)), m_splitTone(new SplitTone(this)),
      m_grain(new Grain(this)), m_sharpen(new Sharpen(this)), m_curves(new Curves(this)), m_panels(new QStackedLayout),
      m_toolBar(new QToolBar(this)), m_form(std::make_unique<Ui::MainWindow>())
{
    m_form->setupUi(this);
    setContextMenuPolicy(Qt::NoContextMenu);
    m_fileDealer.setUpRecentMenu(m_form->menuRecent);
    setUpToolBar();
    setUpPanels();
    connectPanels();
}

MainWindow::~MainWindow() = default;

void MainWindow::setUpToolBar()
{
    m_toolBar->setFloatable(false);
    m_toolBar->setMovable(false);
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    m_toolBar->setAllowedAreas(Qt::LeftToolBarArea);
    m_toolBar->addWidget(newGap());
    m_toolBar->addAction(m_form->actionMixer);
    m_toolBar->addWidget(newGap());
    for (QAction *action : {m_form->actionCurves, m_form->actionSharpen, m_form->actionVignette, m_form->actionGrain,
                            m_form->actionSplitTone}) {
        m_toolBar->addSeparator();
        m_toolBar->addAction(action);
    }
    m_toolBar->addSeparator();
    m_toolBar->addWidget(newStretch());
    addToolBar(Qt::LeftToolBarArea, m_toolBar);
}

void MainWindow::setUpPanels()
{
    m_form->container->setContentsMargins(0, 0, 0, 0);
    auto *layout = new QVBoxLayout(m_form->container);
    layout->setContentsMargins(0, 0, 4, 0);
    layout->addLayout(m_panels);
    for (QWidget *panel :
         std::initializer_list<QWidget *>{m_mixer, m_vignette, m_splitTone, m_grain, m_sharpen, m_curves}) {
        m_panels->addWidget(panel);
    }
}

void MainWindow::connectPanels()
{
    GLWidget *preview = m_form->glWidgetPreview;
    connect(&m_fileDealer, &FileDealer::signalOpenImage, this, &MainWindow::openImage, Qt::UniqueConnection);
    connect(m_mixer, &Mixer::signalMixer, preview, &GLWidget::slotChangeMixer, Qt::UniqueConnection);
    connect(m_vignette, &Vignette::signalVignette, preview, &GLWidget::slotChangeVignette, Qt::UniqueConnection);
    connect(m_splitTone, &SplitTone::signalSplit, preview, &GLWidget::slotChangeSplit, Qt::UniqueConnection);
    connect(m_grain, &Grain::signalGrain, preview, &GLWidget::slotChangeGrain, Qt::UniqueConnection);
    connect(m_curves, &Curves::signalCurves, preview, &GLWidget::slotChangeCurves, Qt::UniqueConnection);
    connect(m_curves, &Curves::signalOutHistogram, m_grain, &Grain::slotSetHistogram, Qt::UniqueConnection);
}

QString MainWindow::graphicsProblem() const
{
    return m_form->glWidgetPreview->graphicsProblem();
}

void MainWindow::loadBuffer(const void *pixels, int width, int height, bool sixteenBit)
{
    GLWidget *preview = m_form->glWidgetPreview;
    preview->makeCurrent();
    preview->initializeGL();
    if (pixels == nullptr) {
        qWarning("Buffer is invalid!");
        return;
    }
    const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    m_curves->slotSetHistogram(graphics::toneHistogram(pixels, count, sixteenBit, false));
    preview->loadImage(pixels, width, height, sixteenBit, false);
    preview->setDirty();
    slotResetFilters();
}

void MainWindow::slotResetFilters()
{
    m_mixer->on_buttonReset_clicked();
    m_vignette->on_buttonReset_clicked();
    m_splitTone->on_buttonReset_clicked();
    m_grain->on_buttonReset_clicked();
    m_curves->on_buttonReset_clicked();
    m_form->glWidgetPreview->setDirty();
}

void MainWindow::slotResetActions()
{
    m_form->actionMixer->trigger();
    for (QAction *action : {m_form->actionCurves, m_form->actionSharpen, m_form->actionVignette, m_form->actionGrain,
                            m_form->actionSplitTone}) {
        action->setChecked(false);
    }
}

bool MainWindow::togglePanel(QWidget *panel, QAction *action)
{
    const bool on = m_panels->currentWidget() != panel;
    m_panels->setCurrentWidget(on ? panel : m_mixer);
    action->setChecked(on);
    return on;
}

void MainWindow::toggleFilter(QWidget *panel, QAction *action, graphics::IFilter *filter)
{
    const bool on = togglePanel(panel, action);
    if (filter != nullptr) {
        filter->enabled = on;
    }
    GLWidget *preview = m_form->glWidgetPreview;
    preview->setDirty();
    preview->rebuildQueue();
    preview->update();
}

void MainWindow::on_actionMixer_triggered()
{
    m_panels->setCurrentWidget(m_mixer);
}

void MainWindow::on_actionVignette_triggered()
{
    graphics::IFilter *filter = m_form->glWidgetPreview->vignetteFilter();
    if (filter == nullptr) {
        qWarning("vignette filter is invalid");
    }
    toggleFilter(m_vignette, m_form->actionVignette, filter);
}

void MainWindow::on_actionSplitTone_triggered()
{
    graphics::IFilter *filter = m_form->glWidgetPreview->splitToneFilter();
    if (filter == nullptr) {
        qWarning("split tone filter is invalid");
    }
    toggleFilter(m_splitTone, m_form->actionSplitTone, filter);
}

void MainWindow::on_actionGrain_triggered()
{
    graphics::IFilter *filter = m_form->glWidgetPreview->grainFilter();
    if (filter == nullptr) {
        qWarning("grain filter is invalid");
    }
    toggleFilter(m_grain, m_form->actionGrain, filter);
}

void MainWindow::on_actionCurves_triggered()
{
    graphics::IFilter *filter = m_form->glWidgetPreview->curveFilter();
    if (filter == nullptr) {
        qWarning("curve filter is invalid");
    }
    toggleFilter(m_curves, m_form->actionCurves, filter);
}

void MainWindow::on_actionSharpen_triggered()
{
    if (togglePanel(m_sharpen, m_form->actionSharpen)) {
        m_form->glWidgetPreview->setDirty();
    }
    m_form->glWidgetPreview->update();
}

void MainWindow::on_actionOpen_triggered()
{
    openImage(m_fileDealer.openDialog());
    activateWindow();
}

void MainWindow::openImage(QString filename)
{
    if (filename.isEmpty() || !readSource(filename)) {
        return;
    }
    std::vector<std::uint8_t> pixels = bytesOf(m_source);
    loadBuffer(pixels.data(), m_source.width(), m_source.height(), false);
    m_fileDealer.addToRecent();
    setWindowTitle(QStringLiteral("%1 - %2 %3x%4")
                       .arg(QString::fromLatin1(product::title), QFileInfo(filename).fileName())
                       .arg(m_source.width())
                       .arg(m_source.height()));
    slotResetActions();
    update();
}

// A file that is there and cannot be read leaves everything as it is. A file that is not there any more leaves the
// picture that is open, which is then opened again: its panels start afresh under the name that was asked for.
bool MainWindow::readSource(const QString &filename)
{
    graphics::LumioImage image;
    if (image.read(filename)) {
        if (!image.warning().isEmpty()) {
            qWarning("%s", qPrintable(image.warning()));
            tell(image.warning());
        }
        m_source = image;
    } else if (QFileInfo::exists(filename)) {
        qWarning("%s", qPrintable(image.problem()));
        tellCannotLoad(filename);
        return false;
    }
    qDebug("%s", m_source.info().c_str());
    if (m_source.isNull()) {
        tellCannotLoad(filename);
        return false;
    }
    m_output = graphics::LumioImage(m_source.width(), m_source.height(), m_source.is16Bit());
    return true;
}

void MainWindow::tellCannotLoad(const QString &filename)
{
    QMessageBox::information(this, tr("Open Image"), tr("Cannot load %1.").arg(filename));
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
    if (m_output.isNull()) {
        qWarning("MainWindow::saveImage(): Image is Null");
        tell(tr("No image"));
        return;
    }
    if (!renderOutput()) {
        return;
    }
    if (!m_output.save(path, saveQuality)) {
        qWarning("Cannot save %s: %s", qPrintable(path), qPrintable(m_output.problem()));
        tell(tr("Cannot save %1. Choose another place or name.").arg(path));
    }
}

void MainWindow::slotFinalRendering()
{
    renderOutput();
}

bool MainWindow::renderOutput()
{
    update();
    const bool sixteenBit = m_source.is16Bit();
    std::vector<std::uint8_t> pixels(pixelCount(m_source) * 3 * (sixteenBit ? 2 : 1));
    const bool done =
        m_source.getPixels(pixels.data(), false, sixteenBit) &&
        m_form->glWidgetPreview->renderFinal(pixels.data(), m_source.width(), m_source.height(), sixteenBit, false) &&
        m_output.setPixels(pixels.data(), false, sixteenBit);
    if (!done) {
        qWarning("The picture could not be rendered. %s%s", qPrintable(m_source.problem()),
                 qPrintable(m_output.problem()));
        tell(tr("The picture could not be rendered. Nothing was saved; the log tells more."));
    }
    return done;
}

void MainWindow::on_actionSave_triggered()
{
    const QFileInfo file(m_fileDealer.currentPath());
    if (file.exists()) {
        const QString question = tr("File %1 already exists.\n Do you want to replace it?").arg(file.baseName());
        if (QMessageBox::question(nullptr, tr("Overwrite?"), question, QMessageBox::Ok | QMessageBox::Cancel,
                                  QMessageBox::Ok) == QMessageBox::Ok) {
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

void MainWindow::on_actionQuit_triggered()
{
    qWarning("Bye bye...\n\n\n");
    emit signalFinished();
    close();
}

void MainWindow::on_actionAbout_triggered()
{
    slotAbout();
}

void MainWindow::slotAbout()
{
    About().exec();
}

void MainWindow::on_actionWebsite_triggered()
{
    QDesktopServices::openUrl(QUrl(QString::fromLatin1(product::website)));
}

void MainWindow::on_actionZoomIn_triggered()
{
    m_form->glWidgetPreview->slotZoomIn();
}

void MainWindow::on_actionZoomOut_triggered()
{
    m_form->glWidgetPreview->slotZoomOut();
}

void MainWindow::on_actionFitOnWidth_triggered()
{
    m_form->glWidgetPreview->slotFitTo(m_form->glWidgetPreview->fitOnWidth());
}

void MainWindow::on_actionFitOnHeight_triggered()
{
    m_form->glWidgetPreview->slotFitTo(m_form->glWidgetPreview->fitOnHeight());
}

void MainWindow::on_actionActualPixels_triggered()
{
    m_form->glWidgetPreview->slotActualPixels();
}

} // namespace grisal::ui
