// SPDX-License-Identifier: MIT
#include "graphics/image/ImageBuffer.h"
#include "graphics/image/ImageImporter.h"

#include <gtest/gtest.h>

#include <string>

using namespace grisal::graphics;

namespace
{

/// Appends its letter to a shared record for every buffer that it receives.
class Receiver final : public IImageReceiver
{
public:
    Receiver(char letter, std::string &record) : m_letter(letter), m_record(record) {}

    void receiveImage(ImageBuffer *buffer) override
    {
        m_record += m_letter;
        lastBuffer = buffer;
    }

    ImageBuffer *lastBuffer = nullptr;

private:
    char m_letter;
    std::string &m_record;
};

struct ImageImporterTest : testing::Test {
    std::string record;
    Receiver first{'a', record};
    Receiver second{'b', record};
    ImageBuffer buffer;
    ImageImporter importer;
};

TEST_F(ImageImporterTest, PassesTheBufferToReceiversInOrderOfAddition)
{
    importer.addReceiver(&second);
    importer.addReceiver(&first);
    importer.importImage(&buffer);
    EXPECT_EQ(record, "ba");
    EXPECT_EQ(first.lastBuffer, &buffer);
    EXPECT_EQ(second.lastBuffer, &buffer);
}

TEST_F(ImageImporterTest, CallsAReceiverAsOftenAsItWasAdded)
{
    importer.addReceiver(&first);
    importer.addReceiver(&second);
    importer.addReceiver(&first);
    importer.importImage(&buffer);
    EXPECT_EQ(record, "aba");
}

TEST_F(ImageImporterTest, IgnoresNullReceivers)
{
    importer.addReceiver(nullptr);
    importer.addReceiver(&first);
    importer.addReceiver(nullptr);
    importer.importImage(&buffer);
    EXPECT_EQ(record, "a");
}

TEST_F(ImageImporterTest, IgnoresNullBuffer)
{
    importer.addReceiver(&first);
    importer.importImage(nullptr);
    EXPECT_EQ(record, "");
}

// The result true would mean that the buffer was taken over permanently, which never happens.
TEST_F(ImageImporterTest, AlwaysReturnsFalse)
{
    EXPECT_FALSE(importer.importImage(&buffer));
    EXPECT_FALSE(importer.importImage(nullptr));
    importer.addReceiver(&first);
    EXPECT_FALSE(importer.importImage(&buffer));
}

TEST_F(ImageImporterTest, WorksThroughItsInterface)
{
    IImageImporter &interface = importer;
    interface.addReceiver(&first);
    interface.importImage(&buffer);
    interface.importImage(&buffer);
    EXPECT_EQ(record, "aa");
}

TEST(ImageBufferTest, HasOneLayerAndOneFrameByDefault)
{
    int pixel = 0;
    const ImageBuffer buffer{&pixel, 4, 3};
    EXPECT_EQ(buffer.pixels, &pixel);
    EXPECT_EQ(buffer.width, 4U);
    EXPECT_EQ(buffer.height, 3U);
    EXPECT_EQ(buffer.layers, 1U);
    EXPECT_EQ(buffer.frames, 1U);
}

} // namespace
