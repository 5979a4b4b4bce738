// SPDX-License-Identifier: MIT
#pragma once

/// The names of the program.
namespace product
{

constexpr const char *title = "Lumio Grisal (Alpha)"; ///< title of the window
constexpr const char *website = GRISAL_WEBSITE;
constexpr const char *organisation = "grisal.example"; ///< organisation name in the settings
constexpr const char *settingsName = "Quillmark";      ///< application name in the settings

} // namespace product
