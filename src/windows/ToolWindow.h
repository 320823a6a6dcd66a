#pragma once

#include <QSize>

class QWidget;

/// The pages of help on the windows beside the main one: contexts of our own, behind those of dialogs and
/// pages.
enum class WindowHelp { Check = 152, Compare, Variation, Illumination };

/// To be called at the end of a window's making: it opens in its usual size, or in the room that the screen
/// has, and F1 asks for help on it.
void PrepareToolWindow(QWidget& window, QSize usual, WindowHelp help);
