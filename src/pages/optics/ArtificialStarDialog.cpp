#include "pages/optics/ArtificialStarDialog.h"

#include "document/OrrevaDoc.h"
#include "pages/sheet/Fields.h"
#include "painting/QtText.h"

#include "ui_ArtificialStarDialog.h"

CArtificialStarDialog::CArtificialStarDialog(COrrevaDoc& document, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::ArtificialStarDialog>()), m_texts(*document.active_record)
{
    m_ui->setupUi(this);
    m_ui->resolutionDistance->viewport()->setBackgroundRole(QPalette::Window); // as a line that only shows
    ShowText(m_ui->precision, m_texts.Precision());
    m_ui->precision->selectAll();
    ShowText(m_ui->errorDistance, m_texts.DistanceByError());
    ShowText(m_ui->starDiameter, m_texts.StarDiameter());
    m_ui->resolutionDistance->setPlainText(ToQString(m_texts.DistanceByResolution()));
    BindTyping({m_ui->precision}, [this] { OnChangePrecision(); });
    BindTyping({m_ui->starDiameter}, [this] { OnChangeStarDiameter(); });
}

CArtificialStarDialog::~CArtificialStarDialog() = default;

void CArtificialStarDialog::OnChangePrecision()
{
    ShowText(m_ui->errorDistance, m_texts.TypePrecision(TextOf(m_ui->precision).c_str()));
}

void CArtificialStarDialog::OnChangeStarDiameter()
{
    const std::string diameter = TextOf(m_ui->starDiameter);
    m_ui->resolutionDistance->setPlainText(ToQString(m_texts.TypeStarDiameter(diameter.c_str())));
}

#include "moc_ArtificialStarDialog.cpp"
