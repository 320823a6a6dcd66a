#include "pages/tube/PropertyPageTube2.h"

#include "model/analysis/TubeDesign.h"
#include "painting/QtText.h"

#include "ui_PropertyPageTube2.h"

CPropertyPageTube2::CPropertyPageTube2(COrrevaDoc& doc, QWidget* parent)
    : CPropertyPageTube(doc, parent), m_ui(std::make_unique<Ui::PropertyPageTube2>())
{
    m_ui->setupUi(this);
    BindTubeHelp();
    m_ui->thickness->setText(ToQString(ShowNumber(Record(), kTubeThickness)));

    connect(m_ui->thickness, &QLineEdit::textEdited, this, [this](const QString& text) {
        StoreWallThickness(Record(), FromQString(text));
        ShowChange();
    });
    connect(m_ui->thicknessReset, &QToolButton::clicked, this, [this] {
        m_ui->thickness->setText(ToQString(ResetTubeMeasure(Record(), kTubeThickness)));
        ShowChange();
    });
}

CPropertyPageTube2::~CPropertyPageTube2() = default;
