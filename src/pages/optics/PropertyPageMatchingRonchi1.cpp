#include "pages/optics/PropertyPageMatchingRonchi1.h"

#include "model/optics/RonchiSetup.h"

#include "ui_PropertyPageMatchingRonchi1.h"

CPropertyPageMatchingRonchi1::CPropertyPageMatchingRonchi1(COrrevaDoc& doc, QWidget* parent)
    : CTelescopePage(doc, 0, parent), m_ui(std::make_unique<Ui::PropertyPageMatchingRonchi1>())
{
    m_ui->setupUi(this);
    ShowText(m_ui->grating, ShowNumber(Record(), kRonchiGrating));
    ShowText(m_ui->constant, ShowNumber(Record(), kRonchiConstant));
    BindData({m_ui->grating, m_ui->constant});
    BindReset(m_ui->gratingReset, m_ui->grating, kRonchiGrating);
    BindReset(m_ui->constantReset, m_ui->constant, kRonchiConstant);
}

CPropertyPageMatchingRonchi1::~CPropertyPageMatchingRonchi1() = default;

void CPropertyPageMatchingRonchi1::Store()
{
    StoreNumber(Record(), kRonchiGrating, TextOf(m_ui->grating));
    StoreNumber(Record(), kRonchiConstant, TextOf(m_ui->constant));
}

#include "moc_PropertyPageMatchingRonchi1.cpp"
