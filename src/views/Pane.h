#pragma once

#include "views/PictureWidget.h"

#include <cstdint>

class COrrevaDoc;
class QPrinter;

/// One of the two panes of the main window. The active pane is the one that commands see first and that
/// printing takes; it becomes active by a click or by the keyboard's focus.
class CPane : public CPictureWidget {
    Q_OBJECT

public:
    CPane(COrrevaDoc& document, QWidget* parent);

    /// A chance to take a command before the document does; true ends its way here.
    virtual bool OnCommand(std::int32_t id);
    /// One page on paper.
    void OnPrint(QPrinter& printer);

signals:
    void Activated(CPane* pane);

protected:
    bool event(QEvent* event) override;
    /// The page on a surface of the paper's size, in pixels.
    virtual void PaintPage(Surface& surface) = 0;
    // A pane looks the same with and without the focus. The toolkit would repaint it, and a repaint reads the
    // record, which a dialog that has just taken the focus may not have filled yet.
    void focusInEvent(QFocusEvent*) override {}
    void focusOutEvent(QFocusEvent*) override {}

    COrrevaDoc& m_document;
};
