#include "pages/telescope/MyPropertyPage07.h"

#include "document/OrrevaDoc.h"
#include "lib/text/Language.h"
#include "painting/QtText.h"

#include "ui_MyPropertyPage07.h"

#include <QAbstractListModel>
#include <QListView>

namespace {

/// The names as the drop-down shows them; made when they are looked at, for a list of any length.
class EyepieceNames : public QAbstractListModel {
public:
    EyepieceNames(const std::vector<Eyepiece>& all, const std::vector<std::size_t>& rows, QObject* parent)
        : QAbstractListModel(parent), eyepieces(all), order(rows)
    {}

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(order.size());
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DisplayRole) {
            return {};
        }
        return ToQString(eyepieces[order[static_cast<std::size_t>(index.row())]].name);
    }

private:
    const std::vector<Eyepiece>& eyepieces;
    const std::vector<std::size_t>& order;
};

} // namespace

CMyPropertyPage07::CMyPropertyPage07(COrrevaDoc& doc, QWidget* parent)
    : CTelescopePage(doc, kWizardNext, parent), eyepieces(LoadEyepieces("eyepiece.dat")),
      order(SortEyepieces(eyepieces)), ui(std::make_unique<Ui::MyPropertyPage07>())
{
    ui->setupUi(this);
    BindHelpStrip();
    // For a list of any length: rows of one height, in the form's kind of drop-down that scrolls; the other
    // kind measures every row before it opens.
    if (auto* const list = qobject_cast<QListView*>(ui->eyepiece->view())) {
        list->setUniformItemSizes(true);
    }
    ui->eyepiece->setModel(new EyepieceNames(eyepieces, order, this));
    ui->eyepiece->setCurrentIndex(-1);
    ui->results->SetColumns(kEyepieceColumns, g_nLanguage);
    connect(ui->eyepiece, &QComboBox::activated, this, &CMyPropertyPage07::ShowEyepiece);
}

CMyPropertyPage07::~CMyPropertyPage07() = default;

void CMyPropertyPage07::ShowEyepiece(int index)
{
    if (index >= 0) {
        const Eyepiece& eyepiece = eyepieces[order[static_cast<std::size_t>(index)]];
        ui->results->SetRows(EyepieceRows(Record(), eyepiece, g_nLanguage));
    }
}
