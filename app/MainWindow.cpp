// SPDX-License-Identifier: MIT
#include "app/MainWindow.h"

#include "app/About.h"
#include "app/Preferences.h"
#include "app/Product.h"
#include "app/UserGuide.h"
#include "graphics/image/ToneHistogram.h"
#include "ui/panels/Curves.h"
#include "ui/panels/Grain.h"
#include "ui/panels/Mixer.h"
#include "ui/panels/Sharpen.h"
#include "ui/panels/SplitTone.h"
#include "ui/panels/Vignette.h"
#include "ui_MainWindow.h"

#include <QAbstractSpinBox>
#include <QDesktopServices>
#include <QProgressBar>
#include <QStackedLayout>
#include <QToolBar>
#include <QUrl>

namespace grisal::ui
{

namespace
{

constexpr int toolBarGap = 20;
constexpr int toolBarIconSide = 32;
constexpr QSize progressBarSize(140, 12);

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
      m_toolBar(new QToolBar(this)), m_progressBar(new QProgressBar), m_form(std::make_unique<Ui::MainWindow>())
{
    m_form->setupUi(this);
    setContextMenuPolicy(Qt::NoContextMenu);
    m_fileDealer.setUpRecentMenu(m_form->menuRecent);
    setUpToolBar();
    setUpStatusBar();
    setUpPanels();
    connectPanels();
    connect(m_form->actionHelp, &QAction::triggered, this, &MainWindow::showGuide);
    connect(m_form->actionPreferences, &QAction::triggered, this, &MainWindow::showPreferences);
}

MainWindow::~MainWindow() = default;

void MainWindow::setUpToolBar()
{
    m_toolBar->setFloatable(false);
    m_toolBar->setMovable(false);
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    m_toolBar->setIconSize(QSize(toolBarIconSide, toolBarIconSide));
    m_toolBar->setAllowedAreas(Qt::LeftToolBarArea);
    m_toolBar->setAccessibleName(tr("Filters"));
    const auto addButton = [this](QAction *action) {
        m_toolBar->addAction(action);
        m_toolBar->widgetForAction(action)->setAccessibleDescription(action->statusTip());
    };
    m_toolBar->addWidget(newGap());
    addButton(m_form->actionMixer);
    m_toolBar->addWidget(newGap());
    for (QAction *action : {m_form->actionCurves, m_form->actionSharpen, m_form->actionVignette, m_form->actionGrain,
                            m_form->actionSplitTone}) {
        m_toolBar->addSeparator();
        addButton(action);
    }
    m_toolBar->addSeparator();
    m_toolBar->addWidget(newStretch());
    addToolBar(Qt::LeftToolBarArea, m_toolBar);
}

void MainWindow::setUpStatusBar()
{
    m_progressBar->setObjectName(QStringLiteral("progressBar"));
    m_progressBar->setAccessibleName(tr("Progress"));
    m_progressBar->setAccessibleDescription(tr("How much of reading, rendering or writing is done"));
    m_progressBar->setTextVisible(false);
    m_progressBar->setFixedSize(progressBarSize);
    // The progress bar appears during a job, while the layout cannot be updated, so its space is always reserved.
    QSizePolicy placed = m_progressBar->sizePolicy();
    placed.setRetainSizeWhenHidden(true);
    m_progressBar->setSizePolicy(placed);
    m_form->statusbar->addPermanentWidget(m_progressBar);
    m_progressBar->hide();
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

graphics::Message MainWindow::graphicsProblem() const
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
    const QVector<float> histogram = graphics::toneHistogram(pixels, count, sixteenBit, false);
    // It throws where there is not enough memory: the panels then stay as they are.
    preview->loadImage(pixels, width, height, sixteenBit, false);
    m_curves->slotSetHistogram(histogram);
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

// A shortcut leaves the focus in the spin box, which emits a typed number only when the input is complete.
void MainWindow::takeTypedNumber()
{
    if (auto *spinBox = qobject_cast<QAbstractSpinBox *>(focusWidget())) {
        spinBox->interpretText();
    }
}

void MainWindow::showPanel(QWidget *panel)
{
    takeTypedNumber();
    m_panels->setCurrentWidget(panel);
}

bool MainWindow::togglePanel(QWidget *panel, QAction *action)
{
    const bool on = m_panels->currentWidget() != panel;
    showPanel(on ? panel : m_mixer);
    action->setChecked(on);
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
    showPanel(m_mixer);
}

void MainWindow::on_actionVignette_triggered()
{
    graphics::IFilter *filter = m_form->glWidgetPreview->filter<graphics::VignetteFilter>();
    toggleFilter(m_vignette, m_form->actionVignette, filter, "vignette filter is invalid");
}

void MainWindow::on_actionSplitTone_triggered()
{
    graphics::IFilter *filter = m_form->glWidgetPreview->filter<graphics::HalfToneFilter>();
    toggleFilter(m_splitTone, m_form->actionSplitTone, filter, "split tone filter is invalid");
}

void MainWindow::on_actionGrain_triggered()
{
    graphics::IFilter *filter = m_form->glWidgetPreview->filter<graphics::GrainFilter>();
    toggleFilter(m_grain, m_form->actionGrain, filter, "grain filter is invalid");
}

void MainWindow::on_actionCurves_triggered()
{
    graphics::IFilter *filter = m_form->glWidgetPreview->filter<graphics::CurveFilter>();
    toggleFilter(m_curves, m_form->actionCurves, filter, "curve filter is invalid");
}

void MainWindow::on_actionSharpen_triggered()
{
    if (togglePanel(m_sharpen, m_form->actionSharpen)) {
        m_form->glWidgetPreview->setDirty();
    }
    m_form->glWidgetPreview->update();
}

void MainWindow::on_actionQuit_triggered()
{
    takeTypedNumber();
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
