#pragma once

#include "views/PictureWidget.h"

#include "lib/text/Language.h"

#include <cstdint>
#include <string>
#include <vector>

class COrrevaDoc;
class QKeyEvent;
class QPrinter;

/// One line of what a pane tells those who do not see it; bytes of code page 1252. A sentence has no value.
struct PaneLine {
    std::string text;
    std::string value;
    bool operator==(const PaneLine&) const = default;
};

/// One of the two panes of the main window. The active pane is the one that commands see first and that
/// printing takes; it becomes active by a click or by the keyboard's focus.
class CPane : public CPictureWidget {
    Q_OBJECT

public:
    CPane(COrrevaDoc& document, const Bilingual& title, QWidget* parent);

    /// What the pane is called on paper.
    const Bilingual& Title() const { return m_title; }
    /// Whether its picture is wider than high.
    virtual bool IsWide() const { return false; }
    /// While it holds, what follows the mouse stands on printed pages as it stood at the beginning.
    virtual void HoldForPrint(bool) {}

    /// Whether its lines are labels with values.
    virtual bool IsTable() const { return false; }
    /// What the pane shows, line by line; while it is frozen, what it showed before.
    const std::vector<PaneLine>& Lines();
    /// What it was found to show when that was last asked.
    const std::vector<PaneLine>& LastLines() const { return m_lines; }

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

    /// The lines as the record stands.
    virtual std::vector<PaneLine> Read() = 0;

    COrrevaDoc& m_document;

private:
    const Bilingual m_title;
    std::vector<PaneLine> m_lines; ///< as last read
};
