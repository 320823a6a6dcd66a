#pragma once

class COrrevaDoc;
class CPane;
class QWidget;

/// The toolkit's printing of one pane: at the screen's resolution, so that fonts keep their proportion. A
/// file is replaced whole or not at all; the status bar says which.
void PrintPane(CPane& pane, COrrevaDoc& document, QWidget* parent);
void PreviewPane(CPane& pane, COrrevaDoc& document, QWidget* parent);
/// The paper and how it is printed on; what is set serves the next print. The printer is chosen when
/// printing.
void SetUpPrinter(QWidget* parent);
