#include "app/MyDialogBar.h"

#include "painting/QtText.h"

#include "ui_MyDialogBar.h"

#include <QKeyEvent>

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
