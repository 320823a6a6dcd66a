#include "views/SectionThumbnail.h"

#include "document/History.h"
#include "drawing/SectionPicture.h"
#include "lib/text/Language.h"

void CSectionThumbnail::SetTelescope(const COrrevaData* record)
{
    m_telescope.Clear();
    if (record != nullptr) {
        PutState({*record, "shown", 0}, m_telescope);
        m_telescope.GetFocalPlaneHeight(); // the first reading is infinite
    }
    update();
}

void CSectionThumbnail::Paint(Surface& surface)
{
    if (!m_telescope.HasFile()) {
        surface.FillRect({0, 0, surface.Width(), surface.Height()}, kWhite);
        return;
    }
    SectionZoom whole;
    PaintSection(surface, whole, m_telescope, ViewSwitches{}, Pixel{0, 0}, g_nLanguage, PixelScale());
}

#include "moc_SectionThumbnail.cpp"
