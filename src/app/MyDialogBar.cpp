#include "app/MyDialogBar.h"

#include "painting/QtText.h"

#include "ui_MyDialogBar.h"

CMyDialogBar::CMyDialogBar(COrrevaDoc& doc, QWidget* parent)
    : QWidget(parent), m_document(doc), m_ui(std::make_unique<Ui::MyDialogBar>())
{
    m_ui->setupUi(this);
    for (const BarParameter& parameter : BarParameters()) {
        m_ui->parameter->addItem(ToQString(parameter.text));
    }
    m_ui->parameter->setCurrentIndex(-1);

    // Also the entry that the list shows may be chosen, to be tried on a telescope that has come since.
    connect(m_ui->parameter, &QComboBox::activated, this,
            [this](int selection) { Show(SelectBarParameter(m_document, selection)); });
    // Kept: the slider writes on its repaint too.
    connect(m_ui->slider, &CPaintedSlider::Painted, this,
            [this](int position) { SlideBar(m_document, position); });
    connect(m_ui->reset, &QPushButton::clicked, this, [this] { Show(ResetBar(m_document)); });
    connect(m_ui->accept, &QPushButton::clicked, this, [this] { Show(AcceptBar(m_document)); });
}

CMyDialogBar::~CMyDialogBar() = default;

void CMyDialogBar::Freeze(bool frozen) { m_ui->slider->blockSignals(frozen); }

void CMyDialogBar::Show(const std::optional<SliderState>& state)
{
    if (!state) {
        return;
    }
    m_ui->slider->setRange(state->low, state->high);
    if (state->position) {
        m_ui->slider->setValue(*state->position);
    }
}
