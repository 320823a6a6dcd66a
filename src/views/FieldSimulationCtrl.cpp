#include "views/FieldSimulationCtrl.h"

#include "drawing/FieldPicture.h"

#include <cstdio>

namespace {

void WriteDot() { std::fputc('.', stderr); }

} // namespace

void CFieldSimulationCtrl::Paint(Surface& surface)
{
    if (m_telescope != nullptr) {
        DrawFieldPicture(surface, m_simulation.Table(*m_telescope, WriteDot));
    }
}

#include "moc_FieldSimulationCtrl.cpp"
