// SPDX-License-Identifier: MIT
#pragma once

// GLEW has to be included before any Qt header that includes the OpenGL headers.
#include "graphics/gl/GL.h"

#include "graphics/Message.h"
#include "graphics/render/PreviewStage.h"
#include "ui/accessible/AccessibleControl.h"
#include "ui/accessible/FocusMark.h"
#include "ui/preview/Navigation.h"

#include <QOpenGLWidget>
#include <QTimer>
#include <QVector>

#include <optional>

namespace grisal::ui
{

/// Shows an image with the filters applied, with zoom and pan, and renders it at full size on request.
///
/// The mouse pans, zooms, fits and, while a button is held without moving, shows the image without filters. The
/// keyboard does the same with the arrow keys, plus and minus, and the space bar held down.
///
/// Owns the GL context, the filters and all render targets. All lengths are device pixels: at a scale of 1, a preview
/// pixel is a screen pixel. Without a GL context (before the widget is shown, or if the machine has no OpenGL) nothing
/// is drawn, a loaded image is kept until there is a context, and renderFinal() fails.
class GLWidget : public QOpenGLWidget, public AccessibleControl
{
    Q_OBJECT

public:
    /// How an image is fitted into the widget.
    enum enumFitTo {
        FitLarger = 0,  ///< the larger of the two ratios: the image fills the widget
        FitSmaller = 1, ///< the smaller of the two ratios: the whole image is visible
        FitActual = 2,  ///< one image pixel per device pixel
    };
    Q_ENUM(enumFitTo)

    explicit GLWidget(QWidget *parent = nullptr);
    ~GLWidget() override;

    /// Loads the GL entry points. The context must be current; may be called repeatedly.
    void initializeGL() override;

    /// Shows an image, of which it keeps a copy at preview size without alpha. Switches off every filter except the
    /// mixer, keeps the parameters and sends them to the filters again, and resets the zoom. Ignores an empty image.
    void loadImage(const graphics::Image &image);

    /// Renders the image at full size in place with the current filters and parameters; alpha stays unchanged. Returns
    /// false on failure; the image is then unchanged. The preview is unchanged afterwards. `progress` is called for
    /// each tile and may paint.
    bool renderFinal(graphics::Image &image, const graphics::TileProgress &progress = {});

    /// Makes the next paint render the preview again.
    void setDirty() { m_dirty = true; }

    /// Fills the queue of the preview again, in the order of the preview.
    void rebuildQueue() { m_stage.rebuildQueue(); }

    /// A filter, to be switched on and off; null before the first image is loaded.
    template <typename Filter>
    graphics::IFilter *filter() const
    {
        return m_stage.filters() ? &m_stage.filters()->template get<Filter>() : nullptr;
    }

    /// The fit mode whose ratio is currently that of the width (of the height).
    enumFitTo fitOnWidth() const;
    enumFitTo fitOnHeight() const;

    /// Why OpenGL cannot draw the preview; empty if there is no problem.
    graphics::Message graphicsProblem() const;

    const graphics::FilterParameters &parameters() const { return m_stage.parameters(); }
    /// Which filters are on; those of a newly opened image before the first one is loaded.
    graphics::EnabledFilters enabledFilters() const
    {
        return m_stage.filters() != nullptr ? m_stage.filters()->enabled() : graphics::EnabledFilters();
    }
    QAccessible::Role accessibleRole() const override { return QAccessible::Canvas; }
    QString accessibleValue() const override;

    int previewWidth() const { return m_previewWidth; }
    int previewHeight() const { return m_previewHeight; }
    enumFitTo fitMode() const { return m_fitMode; }
    float scale() const;
    QPointF offset() const;

    /// By how much the preview is downscaled: 1 if it is not, otherwise 2, 4 and so on.
    int previewDownscaling() const;
    /// Size of the image on the screen, in percent of its full size.
    int percentOfImage() const;

signals:
    void signalScaleChanged();

public slots:
    void renderImage();
    void slotZoomIn();
    void slotZoomOut();
    void slotFitTo(grisal::ui::GLWidget::enumFitTo mode);
    void slotActualPixels();
    void slotChangeMixer(float r, float g, float b);
    void slotChangeVignette(float x, float y, float radius, float strength, bool extraBlur);
    void slotChangeSplit(float weight, float r1, float g1, float b1, float r2, float g2, float b2);
    void slotChangeGrain(QVector<float> weights, float radius);
    void slotChangeCurves(QVector<float> curve);
    void zoom(float step);

protected:
    void paintGL() override;
    void resizeGL(int width, int height) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private slots:
    void singleClick();
    void resize();
    void releaseGraphics();

private:
    struct Waiting {
        graphics::Image preview;
        QSize imageSize;
    };

    bool makeContextCurrent();
    void showImage(const graphics::Image &preview, QSize imageSize);
    void bindOwnFramebuffer();
    void paintPreview(graphics::Preview &preview);
    void setBypass(bool bypass);
    void pan(QPointF drag);
    bool handleKey(const QKeyEvent &event);
    void fitViewToWidget();
    void showCentred(float scale);
    void showScale();
    FitRatios ratios() const;
    QSize pixelSize() const;
    QPointF pixelPosition(const QMouseEvent *event) const;

    graphics::PreviewStage m_stage;
    graphics::PixelFormats m_formats;
    std::optional<Waiting> m_waiting; ///< to be shown as soon as there is a context
    int m_previewWidth = 0;
    int m_previewHeight = 0;
    QSize m_imageSize; ///< of the full image
    bool m_dirty = false;
    bool m_started = false;
    bool m_renderingFinal = false;
    Drag m_drag;
    bool m_bypass = false;
    enumFitTo m_fitMode = FitSmaller;
    QTimer m_clickTimer{this};
    QTimer m_resizeTimer{this};
    graphics::Message m_problem;
    FocusMark m_focusMark{this};
};

} // namespace grisal::ui
