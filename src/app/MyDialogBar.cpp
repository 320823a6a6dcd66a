#include "app/MyDialogBar.h"

#include "lib/text/Numbers.h"
#include "painting/QtText.h"

#include "ui_MyDialogBar.h"

#include <QKeyEvent>

#include <algorithm>
#include <cmath>

CMyDialogBar::CMyDialogBar(COrrevaDoc& doc, QWidget* parent)
    : QWidget(parent), m_document(doc), m_ui(std::make_unique<Ui::MyDialogBar>())
{
    m_ui->setupUi(this);
    for (const BarParameter& parameter : BarParameters()) {
        m_ui->parameter->addItem(ToQString(parameter.text));
    }
    m_ui->parameter->installEventFilter(this);
    Follow();

    connect(m_ui->parameter, &QComboBox::activated, this,
            [this](int selection) { Show(SelectBarParameter(m_document, selection)); });
    connect(m_ui->slider, &CPaintedSlider::Painted, this,
            [this](int position) { SlideBar(m_document, position); });
    connect(m_ui->reset, &QPushButton::clicked, this, [this] { Show(ResetBar(m_document)); });
    connect(m_ui->accept, &QPushButton::clicked, this, [this] { Show(AcceptBar(m_document)); });
}

CMyDialogBar::~CMyDialogBar() = default;

void CMyDialogBar::Freeze(bool frozen) { m_ui->slider->blockSignals(frozen); }

void CMyDialogBar::Follow()
{
    const auto trial = TrialAmong(m_document.bar_params);
    // What was chosen before there was a telescope may stay until there is one.
    if (trial || m_shows || m_document.HasFile()) {
        m_ui->parameter->setCurrentIndex(trial.value_or(-1));
    }
    if (!trial) {
        m_ui->slider->setRange(0, 0);
    }
    m_shows = trial.has_value();
}

bool CMyDialogBar::TryValue(void (COrrevaData::*set)(double), double value)
{
    const auto parameters = BarParameters();
    const auto parameter = std::ranges::find(parameters, set, &BarParameter::set);
    if (parameter == parameters.end()) {
        return false;
    }
    Show(SelectBarParameter(m_document, static_cast<std::int32_t>(parameter - parameters.begin())));
    const QSignalBlocker still(m_ui->slider); // until the document knows where it stands
    m_ui->slider->setValue(TruncToInt32(std::round(value)));
    TryBarValue(m_document, value, m_ui->slider->value());
    emit Changed();
    return true;
}

bool CMyDialogBar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_ui->parameter && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape || key == Qt::Key_Delete) {
            CancelBar(m_document);
            Show(std::nullopt);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void CMyDialogBar::Show(const std::optional<SliderState>& state)
{
    if (state) {
        m_ui->slider->setRange(state->low, state->high);
        if (state->position) {
            m_ui->slider->setValue(*state->position);
        }
    }
    Follow();
    emit Changed();
}

#include "moc_MyDialogBar.cpp"
