#include "views/SectionThumbnail.h"

#include "document/History.h"
#include "drawing/SectionPicture.h"
#include "lib/text/Language.h"
#include "painting/PainterSurface.h"

#include <QPainter>

CSectionThumbnail::CSectionThumbnail(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void CSectionThumbnail::SetTelescope(const COrrevaData* record)
{
    m_telescope.Clear();
    if (record != nullptr) {
        PutState({*record, "shown", 0}, m_telescope);
        m_telescope.GetFocalPlaneHeight(); // the first reading is infinite
    }
    update();
}

void CSectionThumbnail::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    PainterSurface surface(painter, width(), height());
    if (!m_telescope.HasFile()) {
        painter.fillRect(rect(), palette().base());
        return;
    }
    SectionZoom whole;
    PaintSection(surface, whole, m_telescope, ViewSwitches{}, Pixel{0, 0}, g_nLanguage);
}
