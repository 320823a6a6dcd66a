#include "pages/tube/PropertyPageTube2.h"

#include "model/analysis/TubeDesign.h"

#include "ui_PropertyPageTube2.h"

CPropertyPageTube2::CPropertyPageTube2(COrrevaDoc& doc, QWidget* parent)
    : CPropertyPageTube(doc, parent), m_ui(std::make_unique<Ui::PropertyPageTube2>())
{
    m_ui->setupUi(this);
    BindTubeHelp();
    ShowText(m_ui->thickness, ShowNumber(Record(), kTubeThickness));
    BindTyping({m_ui->thickness}, [this] {
        StoreWallThickness(Record(), TextOf(m_ui->thickness));
        ShowChange();
    });
    BindReset(m_ui->thicknessReset, m_ui->thickness, kTubeThickness);
}

CPropertyPageTube2::~CPropertyPageTube2() = default;

#include "moc_PropertyPageTube2.cpp"
