// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <memory>

namespace Ui
{
class Sharpen;
}

/// Placeholder for sharpening, which is not implemented yet.
class Sharpen : public QWidget
{
    Q_OBJECT

public:
    explicit Sharpen(QWidget *parent = nullptr);
    ~Sharpen() override;

private:
    std::unique_ptr<Ui::Sharpen> m_form;
};
