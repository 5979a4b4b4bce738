// SPDX-License-Identifier: MIT
#include "ui/preview/GLWidget.h"

#include "graphics/image/ImageBuffer.h"
#include "graphics/image/ImageImporter.h"
#include "graphics/image/PreviewPixels.h"
#include "ui/preview/ContextEnd.h"

#include <QDebug>
#include <QScopedValueRollback>

#include <utility>

namespace grisal::ui
{

namespace
{

QString glText(GLenum name)
{
    return QString::fromUtf8(reinterpret_cast<const char *>(glGetString(name)));
}

/// Creates the preview's own pixels from an imported buffer.
class PreviewMaker final : public graphics::IImageReceiver
{
public:
    PreviewMaker(bool sixteenBit, bool alpha) : m_sixteenBit(sixteenBit), m_alpha(alpha) {}

    void receiveImage(graphics::ImageBuffer *buffer) override
    {
        pixels = std::make_unique<graphics::PreviewPixels>(graphics::makePreviewPixels(
            buffer->pixels, static_cast<int>(buffer->width), static_cast<int>(buffer->height), m_sixteenBit, m_alpha));
    }

    std::unique_ptr<graphics::PreviewPixels> pixels;

private:
    bool m_sixteenBit;
    bool m_alpha;
};

} // namespace

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
    switch (graphics::initialiseGlEntryPoints()) {
    case graphics::GlStart::Ready:
        startGraphics();
        break;
    case graphics::GlStart::TooOld:
        m_problem = graphics::Message(QT_TRANSLATE_NOOP("Message", "The graphics driver offers only OpenGL %1."),
                                      glText(GL_VERSION));
        break;
    case graphics::GlStart::NoContext:
        m_problem = graphics::Message(QT_TRANSLATE_NOOP("Message", "The graphics driver does not start OpenGL."));
        break;
    }
}

void GLWidget::startGraphics()
{
    m_started = true;
    qDebug("GL vendor: %s", qPrintable(glText(GL_VENDOR)));
    qDebug("GL renderer: %s", qPrintable(glText(GL_RENDERER)));
    qDebug("GL version: %s", qPrintable(glText(GL_VERSION)));
    callBeforeContextEnds(this, SLOT(releaseGraphics()));
    if (const auto waiting = std::exchange(m_waitingPixels, nullptr)) {
        showPicture(*waiting);
        m_stage.setGrain(m_stage.look().get<graphics::GrainFilter>());
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

void GLWidget::loadImage(const void *pixels, int width, int height, bool sixteenBit, bool alpha)
{
    qDebug() << "Preview Width: " << width;
    qDebug() << "Preview Height: " << height;
    qDebug() << "Buffer: " << (pixels != nullptr);
    if (pixels == nullptr || width < 1 || height < 1) {
        return;
    }
    qDebug() << "Image Width: " << graphics::roundedPreviewSide(width);
    qDebug() << "Image Height: " << graphics::roundedPreviewSide(height);

    m_formats = graphics::pixelFormatsFor(sixteenBit, alpha);
    qDebug() << "Format Type(GL_RGB8): " << (m_formats.internalFormat == GL_RGB8);
    qDebug() << "Image Format(GL_RGB): " << (m_formats.pixelFormat == GL_RGB);
    qDebug() << "Element Type(GLUB):   " << (m_formats.pixelType == GL_UNSIGNED_BYTE);
    qDebug() << "Buffer: " << (pixels != nullptr);
    qDebug() << "(INFO) Max Texture Size: " << graphics::maxPreviewSide;

    // The importer passes the buffer to receivers that only read it.
    graphics::ImageBuffer buffer{const_cast<void *>(pixels), static_cast<std::uint32_t>(width),
                                 static_cast<std::uint32_t>(height), 1, 1};
    PreviewMaker maker(sixteenBit, alpha);
    graphics::ImageImporter importer;
    importer.addReceiver(&maker);
    importer.importImage(&buffer);

    if (makeContextCurrent()) {
        showPicture(*maker.pixels);
    } else {
        m_waitingPixels = std::move(maker.pixels);
    }
}

void GLWidget::showPicture(const graphics::PreviewPixels &pixels)
{
    const QSizeF size = pixelSize();
    m_previewWidth = pixels.width;
    m_previewHeight = pixels.height;
    m_stage.load(pixels, m_formats, static_cast<float>(size.width()), static_cast<float>(size.height()));
    m_dirty = true;
    m_bypass = false;
    slotFitTo(m_previewWidth <= m_previewHeight ? FitLarger : FitSmaller);
}

bool GLWidget::renderFinal(void *pixels, int width, int height, bool sixteenBit, bool hasAlpha,
                           const graphics::TileProgress &progress)
{
    if (!makeContextCurrent()) {
        return false;
    }
    const auto tellAndComeBack = [&](int tile, int tiles) {
        if (progress) {
            progress(tile, tiles);
            // Painting may have made another context current.
            makeCurrent();
        }
    };
    fitViewToWidget();
    const QScopedValueRollback<bool> rendering(m_renderingFinal, true);
    const graphics::FinalImage picture{
        .pixels = pixels, .width = width, .height = height, .sixteenBit = sixteenBit, .hasAlpha = hasAlpha};
    const bool rendered = m_stage.renderFinal(picture, tellAndComeBack);
    update();
    return rendered;
}

void GLWidget::paintGL()
{
    if (!m_started) {
        return;
    }
    bindScreen();
    // Pixels that are not opaque would show the desktop where windows can be transparent, for example on Wayland.
    glClearColor(0, 0, 0, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    if (m_stage.preview() != nullptr) {
        paintPreview();
    }
    paintFocusMark();
}

void GLWidget::paintPreview()
{
    graphics::Preview *preview = m_stage.preview();
    fitViewToWidget();
    // During a final render the filters have the sizes of the final render, so the last frame is shown again.
    if (m_dirty && !m_renderingFinal) {
        preview->render();
        m_dirty = false;
        bindScreen();
    }
    preview->view().setup();
    // After the render, because creating textures switches them off.
    glEnable(GL_TEXTURE_2D);
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_FALSE); // transparent parts of the image stay opaque on the screen
    drawPreview(preview->output());
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    glDisable(GL_TEXTURE_2D);
}

// Drawn by clearing, which needs neither the view nor a QPainter, whose state changes would affect the next paint. The
// mark is symmetrical, so the direction of the y axis makes no difference.
void GLWidget::paintFocusMark() const
{
    if (!m_focusMark.isSeen()) {
        return;
    }
    glEnable(GL_SCISSOR_TEST);
    for (const FocusMarkLine &line : focusMarkLines(QRect(QPoint(), pixelSize()), qRound(devicePixelRatioF()))) {
        const float grey = line.dark ? 0 : 1;
        glScissor(line.place.x(), line.place.y(), line.place.width(), line.place.height());
        glClearColor(grey, grey, grey, 1);
        glClear(GL_COLOR_BUFFER_BIT);
    }
    glDisable(GL_SCISSOR_TEST);
}

void GLWidget::bindScreen()
{
    // The widget has its own framebuffer, which changes with every resize.
    glBindFramebuffer(GL_FRAMEBUFFER, defaultFramebufferObject());
    const QSize size = pixelSize();
    glViewport(0, 0, size.width(), size.height());
    glActiveTexture(GL_TEXTURE0);
}

void GLWidget::drawPreview(GLuint texture) const
{
    glBindTexture(GL_TEXTURE_2D, texture);
    glBegin(GL_QUADS);
    glTexCoord2i(0, 1);
    glVertex2i(0, 0);
    glTexCoord2i(0, 0);
    glVertex2i(0, m_previewHeight);
    glTexCoord2i(1, 0);
    glVertex2i(m_previewWidth, m_previewHeight);
    glTexCoord2i(1, 1);
    glVertex2i(m_previewWidth, 0);
    glEnd();
    glBindTexture(GL_TEXTURE_2D, 0);
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
