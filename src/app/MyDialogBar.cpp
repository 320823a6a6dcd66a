#include "app/MyDialogBar.h"

#include "views/QtText.h"

#include "ui_MyDialogBar.h"

CMyDialogBar::CMyDialogBar(COrrevaDoc& doc, QWidget* parent)
    : QWidget(parent), document(doc), ui(std::make_unique<Ui::MyDialogBar>())
{
    ui->setupUi(this);
    for (const BarParameter& parameter : BarParameters()) {
        ui->parameter->addItem(ToQString(parameter.text));
    }
    ui->parameter->setCurrentIndex(-1);

    connect(ui->parameter, &QComboBox::currentIndexChanged, this,
            [this](int selection) { Show(SelectBarParameter(document, selection)); });
    // Kept: the slider writes on its repaint too.
    connect(ui->slider, &CPaintedSlider::Painted, this,
            [this](int position) { SlideBar(document, position); });
    connect(ui->reset, &QPushButton::clicked, this, [this] { Show(ResetBar(document)); });
    connect(ui->accept, &QPushButton::clicked, this, [this] { Show(AcceptBar(document)); });
}

CMyDialogBar::~CMyDialogBar() = default;

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
