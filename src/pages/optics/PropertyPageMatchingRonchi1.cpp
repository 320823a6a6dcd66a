#include "pages/optics/PropertyPageMatchingRonchi1.h"

#include "model/optics/RonchiSetup.h"

#include "ui_PropertyPageMatchingRonchi1.h"

CPropertyPageMatchingRonchi1::CPropertyPageMatchingRonchi1(COrrevaDoc& doc, QWidget* parent)
    : CTelescopePage(doc, 0, parent), ui(std::make_unique<Ui::PropertyPageMatchingRonchi1>())
{
    ui->setupUi(this);
    ShowText(ui->grating, ShowNumber(Record(), kRonchiGrating));
    ShowText(ui->constant, ShowNumber(Record(), kRonchiConstant));
    BindData({ui->grating, ui->constant});
    BindReset(ui->gratingReset, ui->grating, kRonchiGrating);
    BindReset(ui->constantReset, ui->constant, kRonchiConstant);
}

CPropertyPageMatchingRonchi1::~CPropertyPageMatchingRonchi1() = default;

void CPropertyPageMatchingRonchi1::Store()
{
    StoreNumber(Record(), kRonchiGrating, TextOf(ui->grating));
    StoreNumber(Record(), kRonchiConstant, TextOf(ui->constant));
}
