// SPDX-License-Identifier: MIT
// The values that the preview reports to screen readers.
#include "tests/ui/preview/GLWidgetTest.h"

#include "tests/support/AccessibilityEventRecorder.h"

namespace
{

using namespace grisal::test;

class GLWidgetSpeech : public GLWidgetTest
{
protected:
    void SetUp() override
    {
        GRISAL_SKIP_WITHOUT_SCREEN_READER();
        GLWidgetTest::SetUp();
    }

    std::string value() { return accessibleText(widget, QAccessible::Value).toStdString(); }
};

TEST_F(GLWidgetSpeech, ReportsSizeZoomAndComparison)
{
    EXPECT_EQ(roleOf(widget), QAccessible::Canvas);
    EXPECT_EQ(value(), "No picture");
    showPictureAtOneToOne();
    EXPECT_EQ(value(), "120 x 80 pixels at 100 %");
    AccessibilityEventRecorder recorder;
    widget.slotZoomIn();
    EXPECT_EQ(recorder.valuesOf(widget), QStringList(QStringLiteral("120 x 80 pixels at 104 %")));
    widget.slotActualPixels();
    EXPECT_EQ(recorder.valuesOf(widget), QStringList(QStringLiteral("120 x 80 pixels at 100 %")));
    QTest::keyPress(&widget, Qt::Key_Space);
    EXPECT_EQ(recorder.valuesOf(widget), QStringList(QStringLiteral("120 x 80 pixels at 100 %, without the filters")));
    QTest::keyRelease(&widget, Qt::Key_Space);
    EXPECT_EQ(recorder.valuesOf(widget), QStringList(QStringLiteral("120 x 80 pixels at 100 %")));
}

TEST_F(GLWidgetSpeech, DownscaledPreviewIsDescribedByTheImage)
{
    show();
    load(BytePixels(4101, 8));
    widget.slotActualPixels();
    EXPECT_EQ(value(), "4101 x 8 pixels at 50 %");
}

} // namespace
