// SPDX-License-Identifier: MIT
#include "ui/preview/GLWidget.h"

#include "graphics/image/PreviewImage.h"
#include "ui/preview/ContextEnd.h"
#include "ui/preview/GraphicsStart.h"
#include "ui/preview/PreviewPainter.h"

#include <QDebug>
#include <QScopedValueRollback>

#include <utility>

namespace grisal::ui
{

GLWidget::GLWidget(QWidget *parent) : QOpenGLWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    m_clickTimer.setObjectName(QStringLiteral("clickTimer"));
    m_resizeTimer.setObjectName(QStringLiteral("resizeTimer"));
    m_clickTimer.setSingleShot(true);
    m_resizeTimer.setSingleShot(true);
    connect(&m_clickTimer, &QTimer::timeout, this, &GLWidget::singleClick);
    connect(&m_resizeTimer, &QTimer::timeout, this, qOverload<>(&GLWidget::resize));
}

GLWidget::~GLWidget()
{
    releaseGraphics();
}

void GLWidget::initializeGL()
{
    const QString line(61, QLatin1Char('#'));
    qDebug("%s", qPrintable(line));
    qDebug("INITIALIZE GL");
    qDebug("%s", qPrintable(line));
    if (!isValid() || m_started) {
        return;
    }
    m_problem = startGraphics();
    if (!m_problem.isEmpty()) {
        return;
    }
    m_started = true;
    callBeforeContextEnds(this, SLOT(releaseGraphics()));
    if (const auto waiting = std::exchange(m_waiting, std::nullopt)) {
        showImage(waiting->preview, waiting->imageSize);
        m_stage.setGrain(m_stage.parameters().get<graphics::GrainFilter>());
    }
}

void GLWidget::releaseGraphics()
{
    if (!m_started) {
        return;
    }
    makeCurrent();
    m_stage.release();
    m_started = false;
    doneCurrent();
}

bool GLWidget::makeContextCurrent()
{
    if (m_started) {
        makeCurrent();
    }
    return m_started;
}

graphics::Message GLWidget::graphicsProblem() const
{
    const bool withoutContext = isVisible() && !isValid();
    return withoutContext ? graphics::Message(QT_TRANSLATE_NOOP("Message", "There is no OpenGL on this display."))
                          : m_problem;
}

void GLWidget::loadImage(const graphics::Image &image)
{
    const bool hasPixels = !isEmpty(image);
    qDebug() << "Preview Width: " << widthOf(image);
    qDebug() << "Preview Height: " << heightOf(image);
    qDebug() << "Buffer: " << hasPixels;
    if (!hasPixels) {
        return;
    }
    qDebug() << "Image Width: " << graphics::roundedPreviewSide(widthOf(image));
    qDebug() << "Image Height: " << graphics::roundedPreviewSide(heightOf(image));

    m_formats = graphics::pixelFormatsFor(image);
    qDebug() << "Format Type(GL_RGB8): " << (m_formats.internalFormat == GL_RGB8);
    qDebug() << "Image Format(GL_RGB): " << (m_formats.pixelFormat == GL_RGB);
    qDebug() << "Element Type(GLUB):   " << (m_formats.pixelType == GL_UNSIGNED_BYTE);
    qDebug() << "Buffer: " << hasPixels;
    qDebug() << "(INFO) Max Texture Size: " << graphics::maxPreviewSide;

    graphics::Image preview = graphics::makePreview(image);
    if (makeContextCurrent()) {
        showImage(preview, {widthOf(image), heightOf(image)});
    } else {
        m_waiting = {std::move(preview), {widthOf(image), heightOf(image)}};
    }
}

void GLWidget::showImage(const graphics::Image &preview, QSize imageSize)
{
    const QSizeF size = pixelSize();
    m_stage.load(preview, m_formats, static_cast<float>(size.width()), static_cast<float>(size.height()));
    m_imageSize = imageSize;
    m_previewWidth = widthOf(preview);
    m_previewHeight = heightOf(preview);
    m_dirty = true;
    m_bypass = false;
    slotFitTo(m_previewWidth <= m_previewHeight ? FitLarger : FitSmaller);
}

bool GLWidget::renderFinal(graphics::Image &image, const graphics::TileProgress &progress)
{
    if (!makeContextCurrent()) {
        return false;
    }
    const auto reportAndRestoreContext = [&](int tile, int tiles) {
        if (progress) {
            progress(tile, tiles);
            // Painting may have made another context current.
            makeCurrent();
        }
    };
    fitViewToWidget();
    const QScopedValueRollback<bool> rendering(m_renderingFinal, true);
    const bool rendered = m_stage.renderFinal(image, reportAndRestoreContext);
    update();
    return rendered;
}

void GLWidget::paintGL()
{
    if (!m_started) {
        return;
    }
    bindOwnFramebuffer();
    clearToBlack();
    if (m_stage.preview() != nullptr) {
        paintPreview(*m_stage.preview());
    }
    if (m_focusMark.isSeen()) {
        drawFocusMark(pixelSize(), qRound(devicePixelRatioF()));
    }
}

// The framebuffer of the widget changes with every resize.
void GLWidget::bindOwnFramebuffer()
{
    bindFramebuffer(defaultFramebufferObject(), pixelSize());
}

void GLWidget::paintPreview(graphics::Preview &preview)
{
    fitViewToWidget();
    // During a final render the filters have the sizes of the final render, so the last frame is shown again.
    if (m_dirty && !m_renderingFinal) {
        preview.render();
        m_dirty = false;
        bindOwnFramebuffer();
    }
    drawPreview(preview, {m_previewWidth, m_previewHeight});
}

QSize GLWidget::pixelSize() const
{
    return (QSizeF(size()) * devicePixelRatioF()).toSize();
}

void GLWidget::fitViewToWidget()
{
    if (graphics::Preview *preview = m_stage.preview()) {
        const QSizeF size = pixelSize();
        preview->view().setViewportSize(static_cast<float>(size.width()), static_cast<float>(size.height()));
    }
}

void GLWidget::renderImage()
{
    m_dirty = true;
    update();
}

void GLWidget::slotChangeMixer(float r, float g, float b)
{
    m_stage.set<graphics::MixerFilter>({{r, g, b}});
    renderImage();
}

void GLWidget::slotChangeVignette(float x, float y, float radius, float strength, bool extraBlur)
{
    m_stage.set<graphics::VignetteFilter>({{{x, y, 0}, strength, radius}, extraBlur});
    renderImage();
}

void GLWidget::slotChangeSplit(float weight, float r1, float g1, float b1, float r2, float g2, float b2)
{
    m_stage.set<graphics::HalfToneFilter>({weight, {r1, g1, b1}, {r2, g2, b2}});
    renderImage();
}

void GLWidget::slotChangeGrain(QVector<float> weights, float radius)
{
    makeContextCurrent();
    m_stage.setGrain({weights, radius});
    renderImage();
}

void GLWidget::slotChangeCurves(QVector<float> curve)
{
    makeContextCurrent();
    m_stage.set<graphics::CurveFilter>({curve});
    renderImage();
}

} // namespace grisal::ui
