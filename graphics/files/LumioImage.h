// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/Metadata.h"
#include "graphics/image/IPicture.h"
#include "graphics/Message.h"

#include <Magick++.h>

#include <QString>

#include <cstddef>
#include <exception>
#include <memory>
#include <string>

namespace grisal::graphics
{

class PictureFile;
class ReplacementFile;

/// A picture of the image library's. The only place that touches image files.
class LumioImage final : public IPicture
{
public:
    /// An empty picture: isNull().
    LumioImage();
    /// A black picture of the given size and depth: 16 bits a channel, or 8. It takes memory only when it is used;
    /// where there is none, that operation fails. isNull() where there is no such size.
    LumioImage(int width, int height, bool sixteenBit);

    std::unique_ptr<IPicture> copy() const override;
    std::unique_ptr<IPicture> blank() const override;

    /// What PictureFile turns away is not given to the library at all.
    bool read(const QString &path) override;
    /// An existing file is replaced as ReplacementFile does it.
    bool save(const QString &path, int quality) override;

    /// From now on the files that are written say about this picture what the file of `source` said about that one.
    void takeMetadataOf(const LumioImage &source) { m_metadata = source.m_metadata; }

    bool isNull() const override;
    bool is16Bit() const override;
    int width() const override;
    int height() const override;

    bool getPixels(void *buffer, bool alpha, bool sixteenBit) override;
    bool setPixels(const void *buffer, bool alpha, bool sixteenBit) override;
    void *roomForPixels() override;
    bool pack() override;
    const void *packedPixels() const override { return m_packed.get(); }

    std::string info() const override;
    QString problem() const override { return m_problem; }
    QString warning() const override { return m_warning.english(); }
    QString translatedWarning() const override { return m_warning.translated(); }

private:
    template <typename Step>
    bool attempt(Step step)
    {
        m_problem.clear();
        m_warning = {};
        try {
            step();
        } catch (const std::exception &exception) {
            m_problem = QString::fromLocal8Bit(exception.what());
            return false;
        }
        return m_problem.isEmpty();
    }
    template <typename Step>
    bool attemptWithPixels(Step step);
    void readFrom(const PictureFile &file, const QString &path);
    bool prepareForWriting();
    std::size_t pixelCount() const;
    bool hasLibraryPixels() const;
    void forgetLibraryPixels();
    Magick::PixelPacket *libraryPixels();
    bool fill();
    bool putIn(const void *buffer, bool alpha, bool sixteenBit);
    bool takeOut(void *buffer, bool alpha, bool sixteenBit);
    void writeTo(ReplacementFile &target, const QString &path, int quality);
    Message writePixels(const std::string &name);
    void writeMetadata(const OpenFile &file, PictureFormat format, const std::string &name);
    void nameInMessages(int descriptor, const QString &path);

    /// Where the library's samples come from.
    enum class Samples {
        AsRead,    ///< from a file, or words that were put in
        FromBytes, ///< bytes b that were put in: they stand there as b * 257, and as words b << 8 is told
        Blank,     ///< nobody has put any in; the library has none yet
        Room,      ///< nobody has put any in; the library's memory is lent as a buffer
        Packed,    ///< they are in m_packed; the library has none
    };

    Magick::Image m_image;
    Samples m_samples = Samples::AsRead;
    std::shared_ptr<const std::byte[]> m_packed;
    Metadata m_metadata;
    QString m_problem;
    Message m_warning;
};

} // namespace grisal::graphics
