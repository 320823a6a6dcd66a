#include "pages/telescope/MyPropertyPage07.h"

#include "document/OrrevaDoc.h"
#include "lib/text/Language.h"
#include "painting/QtText.h"

#include "ui_MyPropertyPage07.h"

#include <QAbstractListModel>
#include <QListView>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

/// The names as the drop-down shows them; made when they are looked at, for a list of any length.
class EyepieceNames : public QAbstractListModel {
public:
    EyepieceNames(const std::vector<Eyepiece>& all, const std::vector<std::size_t>& rows, QObject* parent)
        : QAbstractListModel(parent), m_eyepieces(all), m_order(rows)
    {}

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_order.size());
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DisplayRole) {
            return {};
        }
        return ToQString(m_eyepieces[m_order[static_cast<std::size_t>(index.row())]].name);
    }

private:
    const std::vector<Eyepiece>& m_eyepieces;
    const std::vector<std::size_t>& m_order;
};

} // namespace

CMyPropertyPage07::CMyPropertyPage07(COrrevaDoc& doc, QWidget* parent)
    : CTelescopePage(doc, kWizardNext, parent), m_ui(std::make_unique<Ui::MyPropertyPage07>())
{
    m_ui->setupUi(this);
    BindHelpStrip();
    // For a list of any length: rows of one height, in the form's kind of drop-down that scrolls; the other
    // kind measures every row before it opens.
    if (auto* const list = qobject_cast<QListView*>(m_ui->eyepiece->view())) {
        list->setUniformItemSizes(true);
    }
    m_ui->results->SetColumns(kEyepieceColumns, g_nLanguage);
    connect(m_ui->eyepiece, &QComboBox::activated, this, &CMyPropertyPage07::ShowEyepiece);
    connect(m_ui->useInstalled, &QPushButton::clicked, this, &CMyPropertyPage07::UseInstalledList);
    const std::vector<std::string> places = EyepiecePlaces();
    m_ui->places->setText(ToQString(EyepiecePlacesText(places, g_nLanguage)));
    ShowList(LoadEyepieces(FindEyepieces(places).c_str()));
}

CMyPropertyPage07::~CMyPropertyPage07() = default;

void CMyPropertyPage07::ShowList(EyepieceList list)
{
    m_list = std::move(list);
    m_order = SortEyepieces(m_list.entries);
    m_ui->eyepiece->setModel(
        new EyepieceNames(m_list.entries, m_order, m_ui->eyepiece)); // and ends the one before
    m_ui->eyepiece->setCurrentIndex(-1);
    m_ui->results->SetRows(ListNote());
    const bool nothing = m_list.entries.empty();
    m_ui->places->setVisible(nothing);
    m_ui->useInstalled->setVisible(nothing && !InstalledEyepieces().empty());
}

/// In place of a list that is empty or cannot be read.
void CMyPropertyPage07::UseInstalledList()
{
    ShowList(LoadEyepieces(InstalledEyepieces().c_str()));
    m_ui->eyepiece->setFocus();
}

ListRows CMyPropertyPage07::ListNote() const
{
    const std::string text = EyepieceEndText(m_list, g_nLanguage);
    return text.empty() ? ListRows{} : ListRows{ListRow{text}};
}

void CMyPropertyPage07::ShowEyepiece(int index)
{
    if (index >= 0) {
        const Eyepiece& eyepiece = m_list.entries[m_order[static_cast<std::size_t>(index)]];
        ListRows rows = ListNote(); // the last row stands on top
        std::ranges::move(EyepieceRows(Record(), eyepiece, g_nLanguage), std::back_inserter(rows));
        m_ui->results->SetRows(std::move(rows));
    }
}

#include "moc_MyPropertyPage07.cpp"
