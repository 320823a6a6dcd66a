#pragma once

class CPane;
class QWidget;

/// The toolkit's printing of one pane: at the screen's resolution, so that fonts keep their proportion.
void PrintPane(CPane& pane, QWidget* parent);
void PreviewPane(CPane& pane, QWidget* parent);
/// The paper and how it is printed on; what is set serves the next print. The printer is chosen when
/// printing.
void SetUpPrinter(QWidget* parent);
