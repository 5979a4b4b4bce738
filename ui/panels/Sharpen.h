// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <memory>

namespace Ui
{
class Sharpen;
}

/// Holds the place of sharpening, which does not exist yet.
class Sharpen : public QWidget
{
    Q_OBJECT

public:
    explicit Sharpen(QWidget *parent = nullptr);
    ~Sharpen() override;

private:
    std::unique_ptr<Ui::Sharpen> m_form;
};
