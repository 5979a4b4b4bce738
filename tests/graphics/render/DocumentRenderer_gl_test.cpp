// SPDX-License-Identifier: MIT
#include "graphics/render/DocumentRenderer.h"

#include "graphics/document/Document.h"
#include "graphics/document/FlexibleDocumentView.h"
#include "graphics/filters/MixerFilter.h"
#include "graphics/gl/Textures.h"
#include "tests/support/FilterRun.h"
#include "tests/support/GlTest.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/RecordingFilter.h"
#include "tests/support/ReferencePictures.h"

#include <array>
#include <memory>

namespace grisal::test
{

namespace
{

using graphics::Document;
using graphics::DocumentFilterQueue;
using graphics::DocumentRenderer;
using graphics::FlexibleDocumentView;
using graphics::FramebufferObject;
using graphics::Texture;

constexpr int width = 6;
constexpr int height = 4;
constexpr GLuint source = 4711;

using Passes = std::vector<RecordedPass>;

class DocumentRendererTest : public GlTest
{
protected:
    void SetUp() override
    {
        GlTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        m_view = std::make_unique<FlexibleDocumentView>(80.0F, 60.0F, static_cast<float>(width),
                                                        static_cast<float>(height), GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE);
        m_renderer = std::make_unique<DocumentRenderer>(width, height, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
        m_document.setView(m_view.get());
    }

    void TearDown() override
    {
        m_renderer.reset();
        m_view.reset();
        GlTest::TearDown();
    }

    void addRecording(const std::string &name, bool enabled)
    {
        m_filters.push_back(std::make_unique<RecordingFilter>(name, enabled, m_passes));
        m_queue.add(m_filters.back().get());
    }

    FramebufferObject own() const { return m_renderer->target(); }
    FramebufferObject views() const { return m_view->target(); }

    Passes m_passes;
    std::vector<std::unique_ptr<RecordingFilter>> m_filters;
    DocumentFilterQueue m_queue;
    Document m_document{source, &m_queue};
    std::unique_ptr<FlexibleDocumentView> m_view;
    std::unique_ptr<DocumentRenderer> m_renderer;
};

} // namespace

TEST_F(DocumentRendererTest, HasNoOutputBeforeTheFirstRender)
{
    EXPECT_EQ(m_renderer->output(), 0U);
}

TEST_F(DocumentRendererTest, EmptyQueueOutputsTheSource)
{
    EXPECT_TRUE(m_renderer->render(m_document));

    EXPECT_EQ(m_renderer->output(), source);
}

TEST_F(DocumentRendererTest, WithoutEnabledFiltersOutputsTheSourceAndRunsNothing)
{
    addRecording("mixer", false);
    addRecording("curve", false);

    EXPECT_TRUE(m_renderer->render(m_document));

    EXPECT_EQ(m_renderer->output(), source);
    EXPECT_EQ(m_passes, Passes{});
}

TEST_F(DocumentRendererTest, BypassOutputsTheSourceAndRunsNothing)
{
    addRecording("mixer", true);
    m_document.setBypass(true);

    EXPECT_TRUE(m_renderer->render(m_document));

    EXPECT_EQ(m_renderer->output(), source);
    EXPECT_EQ(m_passes, Passes{});
}

// The first filter runs on the source and again on its own result: the preview depends on it.
TEST_F(DocumentRendererTest, MixerAloneRunsTwiceAndOutputsTheViewTarget)
{
    addRecording("mixer", true);
    addRecording("curve", false);

    EXPECT_TRUE(m_renderer->render(m_document));

    EXPECT_EQ(m_passes, (Passes{{"mixer", source, own().framebuffer}, {"mixer", own().texture, views().framebuffer}}));
    EXPECT_EQ(m_renderer->output(), views().texture);
}

TEST_F(DocumentRendererTest, TwoFiltersOutputTheTargetOfTheRenderer)
{
    addRecording("mixer", true);
    addRecording("curve", true);

    m_renderer->render(m_document);

    EXPECT_EQ(m_passes, (Passes{{"mixer", source, own().framebuffer},
                                {"mixer", own().texture, views().framebuffer},
                                {"curve", views().texture, own().framebuffer}}));
    EXPECT_EQ(m_renderer->output(), own().texture);
}

TEST_F(DocumentRendererTest, FiveFiltersRunSixPassesAndOutputTheViewTarget)
{
    for (const char *name : {"mixer", "curve", "grain", "split tone", "vignette"}) {
        addRecording(name, true);
    }

    m_renderer->render(m_document);

    EXPECT_EQ(m_passes, (Passes{{"mixer", source, own().framebuffer},
                                {"mixer", own().texture, views().framebuffer},
                                {"curve", views().texture, own().framebuffer},
                                {"grain", own().texture, views().framebuffer},
                                {"split tone", views().texture, own().framebuffer},
                                {"vignette", own().texture, views().framebuffer}}));
    EXPECT_EQ(m_renderer->output(), views().texture);
}

TEST_F(DocumentRendererTest, DisabledFirstFilterRunsOnceOnTheSource)
{
    addRecording("mixer", false);
    addRecording("curve", true);

    m_renderer->render(m_document);

    EXPECT_EQ(m_passes, (Passes{{"mixer", source, own().framebuffer}, {"curve", own().texture, views().framebuffer}}));
    EXPECT_EQ(m_renderer->output(), views().texture);
}

TEST_F(DocumentRendererTest, OtherDisabledFiltersDoNotRun)
{
    addRecording("mixer", true);
    addRecording("curve", false);
    addRecording("grain", true);
    addRecording("vignette", false);

    m_renderer->render(m_document);

    EXPECT_EQ(m_passes, (Passes{{"mixer", source, own().framebuffer},
                                {"mixer", own().texture, views().framebuffer},
                                {"grain", views().texture, own().framebuffer}}));
    EXPECT_EQ(m_renderer->output(), own().texture);
}

TEST_F(DocumentRendererTest, FilterAddedTwiceRunsInBothPositions)
{
    addRecording("mixer", true);
    addRecording("curve", true);
    m_queue.add(m_filters.front().get());

    m_renderer->render(m_document);

    EXPECT_EQ(m_passes, (Passes{{"mixer", source, own().framebuffer},
                                {"mixer", own().texture, views().framebuffer},
                                {"curve", views().texture, own().framebuffer},
                                {"mixer", own().texture, views().framebuffer}}));
}

TEST_F(DocumentRendererTest, EveryRenderStartsWithTheTargetOfTheRenderer)
{
    addRecording("mixer", true);
    addRecording("curve", true);
    m_renderer->render(m_document);
    const Passes first = m_passes;
    m_passes.clear();

    m_renderer->render(m_document);

    EXPECT_EQ(m_passes, first);
}

TEST_F(DocumentRendererTest, ViewIsSetUpEvenIfNothingRuns)
{
    m_document.setBypass(true);

    m_renderer->render(m_document);

    std::array<GLint, 4> viewport{};
    glGetIntegerv(GL_VIEWPORT, viewport.data());
    EXPECT_EQ(viewport, (std::array<GLint, 4>{0, 0, 80, 60}));
}

TEST_F(DocumentRendererTest, QueueIsNotChanged)
{
    addRecording("mixer", true);
    addRecording("curve", false);
    const std::vector<graphics::IFilter *> before = m_queue.filters();

    m_renderer->render(m_document);

    EXPECT_EQ(m_queue.filters(), before);
}

// The sum of the weights is 0.75: applied twice, they multiply a grey by 0.5625.
TEST_F(DocumentRendererTest, OutputIsTheMixerAppliedTwice)
{
    const BytePixels grey = reference::flatGrey(width, height, 160);
    const Texture texture(
        graphics::createTexture(width, height, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, grey.values.data()));
    graphics::MixerFilter mixer;
    mixer.weights = {0.25F, 0.25F, 0.25F};
    mixer.width = width;
    mixer.height = height;
    mixer.enabled = true;
    DocumentFilterQueue queue;
    Document document(texture.name(), &queue);
    document.setView(m_view.get());
    document.add(&mixer);

    m_renderer->render(document);

    EXPECT_TRUE(picturesNear("mixed-twice", readTexture(m_renderer->output(), width, height),
                             reference::flatGrey(width, height, 90)));
}

} // namespace grisal::test
