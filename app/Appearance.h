// SPDX-License-Identifier: MIT
#pragma once

#include "app/ToolTipWrapper.h"

/// What all windows and dialogs have in common, also those without a parent: the icon of the window, and tool tips in
/// several lines. To be created after the application object.
class Appearance
{
public:
    Appearance();

private:
    ToolTipWrapper m_toolTips;
};
