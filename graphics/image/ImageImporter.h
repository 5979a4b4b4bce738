// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace grisal::graphics
{

struct ImageBuffer;

/// Whoever wants to be told of an imported buffer.
class IImageReceiver
{
public:
    /// Receives a buffer, never null. The buffer belongs to whoever imports it and is only lent for the call.
    virtual void receiveImage(ImageBuffer *buffer) = 0;

protected:
    ~IImageReceiver() = default;
};

/// Hands buffers on to receivers.
class IImageImporter
{
public:
    /// Adds a receiver, not owned, at the end of the list. Null is accepted, and the same receiver more than once.
    virtual void addReceiver(IImageReceiver *receiver) = 0;

    /// Hands `buffer` to every receiver that is not null, in the order in which they were added. A null buffer goes
    /// to nobody. Always false.
    virtual bool importImage(ImageBuffer *buffer) = 0;

protected:
    ~IImageImporter() = default;
};

/// The importer of the program.
class ImageImporter final : public IImageImporter
{
public:
    void addReceiver(IImageReceiver *receiver) override;
    bool importImage(ImageBuffer *buffer) override;

private:
    std::vector<IImageReceiver *> m_receivers;
};

} // namespace grisal::graphics
