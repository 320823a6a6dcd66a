#include "app/MyDialogBar.h"

#include "painting/QtText.h"

#include "ui_MyDialogBar.h"

CMyDialogBar::CMyDialogBar(COrrevaDoc& doc, QWidget* parent)
    : QWidget(parent), document(doc), ui(std::make_unique<Ui::MyDialogBar>())
{
    ui->setupUi(this);
    for (const BarParameter& parameter : BarParameters()) {
        ui->parameter->addItem(ToQString(parameter.text));
    }
    ui->parameter->setCurrentIndex(-1);

    // Also the entry that the list shows may be chosen, to be tried on a telescope that has come since.
    connect(ui->parameter, &QComboBox::activated, this,
            [this](int selection) { Show(SelectBarParameter(document, selection)); });
    // Kept: the slider writes on its repaint too.
    connect(ui->slider, &CPaintedSlider::Painted, this,
            [this](int position) { SlideBar(document, position); });
    connect(ui->reset, &QPushButton::clicked, this, [this] { Show(ResetBar(document)); });
    connect(ui->accept, &QPushButton::clicked, this, [this] { Show(AcceptBar(document)); });
}

CMyDialogBar::~CMyDialogBar() = default;

void CMyDialogBar::Freeze(bool frozen) { ui->slider->blockSignals(frozen); }

void CMyDialogBar::Show(const std::optional<SliderState>& state)
{
    if (!state) {
        return;
    }
    ui->slider->setRange(state->low, state->high);
    if (state->position) {
        ui->slider->setValue(*state->position);
    }
}
