#include "views/FieldSimulationCtrl.h"

#include "drawing/FieldPicture.h"
#include "painting/PainterSurface.h"

#include <QPainter>

#include <cstdio>

namespace {

void WriteDot() { std::fputc('.', stderr); }

} // namespace

CFieldSimulationCtrl::CFieldSimulationCtrl(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void CFieldSimulationCtrl::paintEvent(QPaintEvent*)
{
    if (m_telescope == nullptr) {
        return;
    }
    QPainter painter(this);
    PainterSurface surface(painter, width(), height());
    DrawFieldPicture(surface, m_simulation.Table(*m_telescope, WriteDot));
}
