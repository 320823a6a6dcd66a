#pragma once

class CPane;
class QWidget;

/// The toolkit's printing of one pane: at the screen's resolution, so that fonts keep their proportion.
void PrintPane(CPane& pane, QWidget* parent);
void PreviewPane(CPane& pane, QWidget* parent);
/// The printer dialog alone; what it sets serves the next print.
void SetUpPrinter(QWidget* parent);
