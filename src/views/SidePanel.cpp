#include "views/SidePanel.h"

#include "painting/PainterSurface.h"

#include <QPainter>

namespace {

constexpr int kPanelControl = 4096;
constexpr int kLeastHeight = 330; // rows, and below them a picture of 260 pixels

Colour ToColour(const QColor& color)
{
    return {static_cast<std::uint8_t>(color.red()), static_cast<std::uint8_t>(color.green()),
            static_cast<std::uint8_t>(color.blue())};
}

} // namespace

CSidePanel::CSidePanel(COrrevaDoc& doc, QWidget* parent) : QWidget(parent), m_document(doc)
{
    setProperty("controlId", kPanelControl);
    setMinimumHeight(kLeastHeight);
}

void CSidePanel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    PainterSurface surface(painter, width(), height());
    Paint(surface, ToColour(palette().color(QPalette::Window)),
          ToColour(palette().color(QPalette::WindowText)));
}
