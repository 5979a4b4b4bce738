// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace grisal::graphics
{

struct ImageBuffer;

/// Receives imported buffers.
class IImageReceiver
{
public:
    /// Receives a buffer, never null. The buffer belongs to the caller and is valid only during the call.
    virtual void receiveImage(ImageBuffer *buffer) = 0;

protected:
    ~IImageReceiver() = default;
};

/// Passes buffers to receivers.
class IImageImporter
{
public:
    /// Appends a receiver, which is not owned. Null is accepted, and so is a receiver that has already been added.
    virtual void addReceiver(IImageReceiver *receiver) = 0;

    /// Passes `buffer` to every receiver that is not null, in the order in which they were added. A null buffer is
    /// ignored. Always returns false.
    virtual bool importImage(ImageBuffer *buffer) = 0;

protected:
    ~IImageImporter() = default;
};

/// The importer that the program uses.
class ImageImporter final : public IImageImporter
{
public:
    void addReceiver(IImageReceiver *receiver) override;
    bool importImage(ImageBuffer *buffer) override;

private:
    std::vector<IImageReceiver *> m_receivers;
};

} // namespace grisal::graphics
