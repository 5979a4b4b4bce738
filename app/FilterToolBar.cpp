// SPDX-License-Identifier: MIT
#include "app/FilterToolBar.h"

#include <QAction>

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

FilterToolBar::FilterToolBar(QWidget *parent) : QToolBar(parent)
{
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
    widgetForAction(action)->setAccessibleDescription(action->statusTip());
}

} // namespace grisal::ui
