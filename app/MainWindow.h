// SPDX-License-Identifier: MIT
#pragma once

// GLEW has to be included before any Qt header that includes the OpenGL headers.
#include "ui/preview/GLWidget.h"

#include "app/FileDealer.h"
#include "app/FilterPanels.h"
#include "app/Session.h"
#include "graphics/image/Image.h"
#include "graphics/Message.h"

#include <QList>
#include <QMainWindow>

#include <memory>
#include <optional>

class BusyNotice;
class UserGuide;

namespace Ui
{
class MainWindow;
}

namespace grisal::ui
{

class FilterToolBar;

/// The only window of the application: preview, filter panels, menus and tool bar, opening and saving.
///
/// The action of a filter is checked while the filter is on. Switching between panels leaves the filters on; triggering
/// the action of the visible panel switches its filter off and returns to the mixer.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    /// Shows an image in the preview, which copies it, and resets all panels. An empty image is reported in the log.
    void loadBuffer(const graphics::Image &image);

    /// Renders the image at full size and writes it to `path`. Failures are reported in the status bar and in the log;
    /// if rendering fails, nothing is written.
    void saveImage(const QString &path);

    /// Opens the first picture among files that another program passes, like a choice from the Recent menu. Shows a
    /// message if none is an existing file on this computer.
    void openUris(const QStringList &uris);

    /// Why OpenGL cannot draw images; empty if there is no problem.
    graphics::Message graphicsProblem() const;

signals:
    void signalFinished();

public slots:
    void on_actionMixer_triggered();
    void on_actionVignette_triggered();
    void on_actionSplitTone_triggered();
    void on_actionGrain_triggered();
    void slotFinalRendering();
    void slotAbout();
    void slotResetFilters();
    void slotResetActions();
    void openImage(QString filename);
    void on_actionQuit_triggered();
    void on_actionOpen_triggered();
    void on_actionSave_triggered();
    void on_actionSave_As_triggered();
    void on_actionSharpen_triggered();
    void on_actionCurves_triggered();
    void on_actionWebsite_triggered();
    void on_actionAbout_triggered();
    void on_actionZoomIn_triggered();
    void on_actionZoomOut_triggered();
    void on_actionFitOnWidth_triggered();
    void on_actionFitOnHeight_triggered();
    void on_actionActualPixels_triggered();

protected:
    bool event(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    /// The actions of the filters other than the mixer, in the order of the tool bar.
    QList<QAction *> filterActions() const;
    void setUpToolBar();
    void setUpStatusBar();
    void showScale();
    void showGuide();
    void showPreferences();
    bool togglePanel(QWidget *panel, QAction *action);
    void toggleFilter(QWidget *panel, QAction *action, graphics::IFilter *filter, const char *problem);
    void showPreviewOf(const graphics::Image &image);
    void showWarning();
    void showCannotSave(const QString &path);
    void showSaved(const QString &path);
    void showCannotLoad(const QString &filename);
    void showCannotLoad(const QString &name, const QString &reason);
    void openFile(const QString &filename);
    void openFirst(const QStringList &paths);
    void showNoFile(const QString &name, const QString &reason);
    std::optional<graphics::Image> renderOutput(BusyNotice &notice);
    std::optional<graphics::Image> renderImage(BusyNotice &notice);
    void showRenderFailed(const QString &reason);

    FilterPanels m_panels{*this};
    FilterToolBar *m_toolBar;
    Session m_session;
    FileDealer m_fileDealer;
    UserGuide *m_guide = nullptr; // null until it is shown for the first time
    std::unique_ptr<Ui::MainWindow> m_form;
};

} // namespace grisal::ui
