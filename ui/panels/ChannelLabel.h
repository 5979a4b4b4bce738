// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// The name of a colour channel, written in its colour. On a palette whose windows are not light, it has a white box
/// behind it, because blue on dark grey is illegible.
class ChannelLabel : public QLabel
{
public:
    explicit ChannelLabel(QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool needsBox() const;
    void setMargins();
};
