// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <memory>

namespace Ui
{
class Vignette;
}

/// The vignette: where its middle lies, how far it reaches and how strong it is. Says only its initial settings so far.
class Vignette : public QWidget
{
    Q_OBJECT

public:
    explicit Vignette(QWidget *parent = nullptr);
    ~Vignette() override;

signals:
    /// Centre in percent of width and height, radius and strength in percent.
    void signalVignette(float x, float y, float radius, float strength, bool extraBlur);

public slots:
    void on_buttonReset_clicked();

private:
    std::unique_ptr<Ui::Vignette> m_form;
};
