// SPDX-License-Identifier: MIT
#include "app/FilterToolBar.h"

#include "app/FilterButtonStyle.h"

#include <QAction>
#include <QLayout>

namespace grisal::ui
{

namespace
{

constexpr int gapSide = 20;
constexpr int iconSide = 32;

QWidget *newGap()
{
    auto *gap = new QWidget;
    gap->setFixedSize(gapSide, gapSide);
    return gap;
}

QWidget *newStretch()
{
    auto *stretch = new QWidget;
    stretch->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return stretch;
}

} // namespace

FilterToolBar::FilterToolBar(QWidget *parent) : QToolBar(parent), m_buttonStyle(new FilterButtonStyle)
{
    m_buttonStyle->setParent(this);
    setFloatable(false);
    setMovable(false);
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setIconSize(QSize(iconSide, iconSide));
    setAllowedAreas(Qt::LeftToolBarArea);
}

void FilterToolBar::addButtons(QAction *mixer, const QList<QAction *> &filters)
{
    addWidget(newGap());
    addButton(mixer);
    addWidget(newGap());
    for (QAction *action : filters) {
        addSeparator();
        addButton(action);
    }
    addSeparator();
    addWidget(newStretch());
}

void FilterToolBar::addButton(QAction *action)
{
    addAction(action);
    QWidget *button = widgetForAction(action);
    button->setAccessibleDescription(action->statusTip());
    button->setStyle(m_buttonStyle);
    // Qt centres each button at its own width; without an alignment, it fills the width of the tool bar.
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    layout()->setAlignment(button, {});
}

void FilterToolBar::markShown(QAction *action)
{
    m_buttonStyle->setShown(widgetForAction(action));
    // Repaints the buttons, too.
    update();
}

} // namespace grisal::ui
