#include "pages/tube/PropertyPageTube2.h"

#include "model/analysis/TubeDesign.h"
#include "painting/QtText.h"

#include "ui_PropertyPageTube2.h"

CPropertyPageTube2::CPropertyPageTube2(COrrevaDoc& doc, QWidget* parent)
    : CPropertyPageTube(doc, parent), ui(std::make_unique<Ui::PropertyPageTube2>())
{
    ui->setupUi(this);
    BindTubeHelp();
    ui->thickness->setText(ToQString(ShowNumber(Record(), kTubeThickness)));

    connect(ui->thickness, &QLineEdit::textEdited, this, [this](const QString& text) {
        StoreWallThickness(Record(), FromQString(text));
        ShowChange();
    });
    connect(ui->thicknessReset, &QToolButton::clicked, this, [this] {
        ui->thickness->setText(ToQString(ResetTubeMeasure(Record(), kTubeThickness)));
        ShowChange();
    });
}

CPropertyPageTube2::~CPropertyPageTube2() = default;
