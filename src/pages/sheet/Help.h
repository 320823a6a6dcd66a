#pragma once

/// The toolkit's command for help on one context; every other command opens the manual's start page.
inline constexpr unsigned kHelpContext = 1;
/// The toolkit's command for the list of themes.
inline constexpr unsigned kHelpThemesCommand = 3;

/// Asks the application for help: see COrrevaApp::WinHelp. Pages pass their dialog's number as `data`.
void WinHelp(long data, unsigned command);

/// Who answers; the application sets itself at its start.
using HelpHandler = void (*)(long data, unsigned command);
void SetHelpHandler(HelpHandler handler);
