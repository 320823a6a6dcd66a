#include "views/SidePanel.h"

namespace {

constexpr int kPanelControl = 4096;
constexpr int kLeastHeight = 330; // rows, and below them a picture of 260 pixels

} // namespace

CSidePanel::CSidePanel(COrrevaDoc& doc, QWidget* parent) : CPictureWidget(parent), m_document(doc)
{
    setProperty("controlId", kPanelControl);
    setMinimumHeight(kLeastHeight);
}

void CSidePanel::Paint(Surface& surface)
{
    PaintPanel(surface, ToColour(palette().color(QPalette::Window)),
               ToColour(palette().color(QPalette::WindowText)));
}

#include "moc_SidePanel.cpp"
