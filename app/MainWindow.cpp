// SPDX-License-Identifier: MIT
#include "app/MainWindow.h"

#include "app/About.h"
#include "app/FilterToolBar.h"
#include "app/Preferences.h"
#include "app/Product.h"
#include "app/StatusBar.h"
#include "app/UserGuide.h"
#include "graphics/image/ToneHistogram.h"
#include "ui/panels/Curves.h"
#include "ui/panels/Grain.h"
#include "ui/panels/Mixer.h"
#include "ui/panels/Sharpen.h"
#include "ui/panels/SplitTone.h"
#include "ui/panels/Vignette.h"
#include "ui_MainWindow.h"

#include <QDesktopServices>
#include <QShortcut>
#include <QUrl>

namespace grisal::ui
{

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent), m_toolBar(new FilterToolBar(this)), m_form(std::make_unique<Ui::MainWindow>())
{
    m_form->setupUi(this);
    setContextMenuPolicy(Qt::NoContextMenu);
    m_fileDealer.setUpRecentMenu(m_form->menuRecent);
    setUpToolBar();
    setUpStatusBar();
    setAcceptDrops(true);
    m_panels.setUp(*m_form->container, *m_form->glWidgetPreview);
    connect(&m_fileDealer, &FileDealer::signalOpenImage, this, &MainWindow::openImage, Qt::UniqueConnection);
    connect(m_form->actionHelp, &QAction::triggered, this, &MainWindow::showGuide);
    new QShortcut(Qt::Key_F1, this, this, &MainWindow::showGuide);
    connect(m_form->actionPreferences, &QAction::triggered, this, &MainWindow::showPreferences);
}

MainWindow::~MainWindow() = default;

QList<QAction *> MainWindow::filterActions() const
{
    return {m_form->actionCurves, m_form->actionSharpen, m_form->actionVignette, m_form->actionGrain,
            m_form->actionSplitTone};
}

void MainWindow::setUpToolBar()
{
    m_toolBar->setAccessibleName(tr("Filters"));
    m_toolBar->addButtons(m_form->actionMixer, filterActions());
    m_toolBar->markShown(m_form->actionMixer);
    addToolBar(Qt::LeftToolBarArea, m_toolBar);
}

void MainWindow::setUpStatusBar()
{
    const QString shortcut = m_form->actionOpen->shortcut().toString(QKeySequence::NativeText);
    m_form->statusbar->setHint(tr("%1 opens a picture").arg(shortcut));
    connect(m_form->glWidgetPreview, &GLWidget::signalScaleChanged, this, &MainWindow::showScale);
}

// A message is shown for its full time, even while the mouse moves over something that has a status tip.
bool MainWindow::event(QEvent *event)
{
    if (event->type() == QEvent::StatusTip && m_form->statusbar->isShowingBriefly()) {
        return true;
    }
    return QMainWindow::event(event);
}

void MainWindow::showScale()
{
    const GLWidget &preview = *m_form->glWidgetPreview;
    if (m_session.picture() && preview.previewWidth() > 0) {
        m_form->statusbar->setScale(preview.percentOfImage(), preview.previewDownscaling());
    }
}

graphics::Message MainWindow::graphicsProblem() const
{
    return m_form->glWidgetPreview->graphicsProblem();
}

void MainWindow::loadBuffer(const graphics::Image &image)
{
    GLWidget *preview = m_form->glWidgetPreview;
    preview->makeCurrent();
    preview->initializeGL();
    if (isEmpty(image)) {
        qWarning("Buffer is invalid!");
        return;
    }
    const QVector<float> histogram = graphics::toneHistogram(image);
    // It throws where there is not enough memory: the panels then stay as they are.
    preview->loadImage(image);
    m_panels.curves->slotSetHistogram(histogram);
    m_panels.vignette->setImageSize({widthOf(image), heightOf(image)});
    preview->setDirty();
    slotResetFilters();
}

void MainWindow::slotResetFilters()
{
    m_panels.reset();
    m_form->glWidgetPreview->setDirty();
}

void MainWindow::slotResetActions()
{
    m_form->actionMixer->trigger();
    for (QAction *action : filterActions()) {
        action->setChecked(false);
    }
}

bool MainWindow::togglePanel(QWidget *panel, QAction *action)
{
    const bool on = m_panels.toggle(panel, *action);
    m_toolBar->markShown(on ? action : m_form->actionMixer);
    return on;
}

void MainWindow::toggleFilter(QWidget *panel, QAction *action, graphics::IFilter *filter, const char *problem)
{
    if (filter == nullptr) {
        qWarning("%s", problem);
    }
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
    m_panels.show(m_panels.mixer);
    m_toolBar->markShown(m_form->actionMixer);
}

void MainWindow::on_actionVignette_triggered()
{
    graphics::IFilter *filter = m_form->glWidgetPreview->filter<graphics::VignetteFilter>();
    toggleFilter(m_panels.vignette, m_form->actionVignette, filter, "vignette filter is invalid");
}

void MainWindow::on_actionSplitTone_triggered()
{
    graphics::IFilter *filter = m_form->glWidgetPreview->filter<graphics::HalfToneFilter>();
    toggleFilter(m_panels.splitTone, m_form->actionSplitTone, filter, "split tone filter is invalid");
}

void MainWindow::on_actionGrain_triggered()
{
    graphics::IFilter *filter = m_form->glWidgetPreview->filter<graphics::GrainFilter>();
    toggleFilter(m_panels.grain, m_form->actionGrain, filter, "grain filter is invalid");
}

void MainWindow::on_actionCurves_triggered()
{
    graphics::IFilter *filter = m_form->glWidgetPreview->filter<graphics::CurveFilter>();
    toggleFilter(m_panels.curves, m_form->actionCurves, filter, "curve filter is invalid");
}

void MainWindow::on_actionSharpen_triggered()
{
    if (togglePanel(m_panels.sharpen, m_form->actionSharpen)) {
        m_form->glWidgetPreview->setDirty();
    }
    m_form->glWidgetPreview->update();
}

void MainWindow::on_actionQuit_triggered()
{
    m_panels.takeTypedNumber();
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

void MainWindow::showGuide()
{
    if (m_guide == nullptr) {
        m_guide = new UserGuide(this);
    }
    m_guide->present();
}

void MainWindow::showPreferences()
{
    Preferences(m_fileDealer, this).exec();
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
