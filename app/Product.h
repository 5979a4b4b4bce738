// SPDX-License-Identifier: MIT
#pragma once

/// The names that the program goes by.
namespace product
{

constexpr const char *title = "Lumio Grisal (Alpha)"; ///< of the window
constexpr const char *website = GRISAL_WEBSITE;
constexpr const char *organisation = "grisal.example"; ///< of the settings
constexpr const char *settingsName = "Quillmark";      ///< the application's name in the settings

} // namespace product
