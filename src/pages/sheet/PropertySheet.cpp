#include "pages/sheet/PropertySheet.h"

#include "pages/sheet/Controls.h"
#include "pages/sheet/Help.h"
#include "pages/sheet/PageArea.h"
#include "views/HandCursorStatic.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kPanelWidth = 285;
constexpr int kUsualDpi = 96;

bool TakesTab(const QWidget* widget) { return (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus; }

/// Not the pictures for help at a page's edge, and of radio buttons the one that is chosen.
bool IsField(const QWidget* widget)
{
    const auto* const radio = qobject_cast<const QRadioButton*>(widget);
    return widget->isEnabled() && TakesTab(widget) &&
           qobject_cast<const CHandCursorStatic*>(widget) == nullptr &&
           (radio == nullptr || radio->isChecked());
}

/// Where the keyboard begins on a page, null if it has no field.
QWidget* FirstField(QWidget* page)
{
    for (QWidget* next = page->nextInFocusChain(); next != page; next = next->nextInFocusChain()) {
        if (page->isAncestorOf(next) && IsField(next)) {
            return next;
        }
    }
    return nullptr;
}

} // namespace

CPropertySheet::CPropertySheet(const QString& caption, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(caption);
    m_tabs = new QTabWidget(this);
    m_heading = new QLabel(this);
    m_heading->setObjectName("heading");
    m_heading->setStyleSheet("font-weight: bold");
    m_heading->hide();
    m_body = new QHBoxLayout;
    m_body->addWidget(m_tabs, 1);

    m_buttons = new QDialogButtonBox(this);
    m_back = NewButton(tr("< &Back"), "back");
    m_next = NewButton(tr("&Next >"), "next");
    m_finish = NewButton(tr("Finish"), "finish");
    m_ok = NewButton(tr("OK"), "ok");
    m_cancel = NewButton(tr("Cancel"), "cancel");
    m_apply = NewButton(tr("&Apply"), "apply");
    AddButton(m_ok, QDialogButtonBox::AcceptRole);
    AddButton(m_cancel, QDialogButtonBox::RejectRole);
    AddButton(m_apply, QDialogButtonBox::ApplyRole);
    m_apply->setEnabled(false);
    m_ok->setDefault(true);
    ConnectButtons();

    auto* const column = new QVBoxLayout(this);
    column->addWidget(m_heading);
    column->addLayout(m_body, 1);
    column->addWidget(m_buttons);
    connect(m_tabs, &QTabWidget::currentChanged, this, [this](int index) {
        const QSize before = size();
        Activate(index);
        if (size() != before) {
            StayOnScreen();
        }
    });
    BindPageKeys();
}

/// The keys that change tabs, in place of the tabs' own, which know of no wizard: a page of that is left by
/// its buttons, which store it.
void CPropertySheet::BindPageKeys()
{
    const auto bind = [this](QKeyCombination keys, int step) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, [this, step] {
            if (!m_wizard) {
                SetActivePage((ActiveIndex() + step + PageCount()) % PageCount());
            }
        });
    };
    bind(Qt::CTRL | Qt::Key_Tab, 1);
    bind(Qt::CTRL | Qt::Key_PageDown, 1);
    bind(Qt::CTRL | Qt::Key_Backtab, -1);
    bind(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, -1);
    bind(Qt::CTRL | Qt::Key_PageUp, -1);
}

/// A button that is not shown yet.
QPushButton* CPropertySheet::NewButton(const QString& text, const char* name)
{
    auto* const button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    button->hide();
    return button;
}

void CPropertySheet::AddButton(QPushButton* button, QDialogButtonBox::ButtonRole role)
{
    if (!m_buttons->buttons().contains(button)) {
        m_buttons->addButton(button, role);
    }
}

void CPropertySheet::SetAside(QPushButton* button)
{
    m_buttons->removeButton(button);
    button->setParent(this);
    button->hide(); // or it would be shown with the sheet
}

void CPropertySheet::ConnectButtons()
{
    connect(m_buttons, &QDialogButtonBox::accepted, this, &CPropertySheet::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &CPropertySheet::reject);
    connect(m_back, &QPushButton::clicked, this, &CPropertySheet::OnBack);
    connect(m_next, &QPushButton::clicked, this, &CPropertySheet::OnNext);
    connect(m_finish, &QPushButton::clicked, this, &CPropertySheet::OnFinish);
    connect(m_apply, &QPushButton::clicked, this, &CPropertySheet::Apply);
}

void CPropertySheet::AddPage(const QString& title, MakePage make)
{
    m_entries.push_back({std::move(make), nullptr});
    auto* const place = new QWidget(m_tabs);
    auto* const fill = new QVBoxLayout(place);
    fill->setContentsMargins(0, 0, 0, 0);
    const QSignalBlocker quiet(m_tabs); // the first page, too, waits until the sheet is shown
    m_tabs->addTab(place, title);
}

void CPropertySheet::RemovePage(int index)
{
    QWidget* const place = m_tabs->widget(index);
    m_entries.erase(m_entries.begin() + index);
    m_tabs->removeTab(index);
    place->deleteLater();
}

void CPropertySheet::SetWizardMode()
{
    m_wizard = true;
    m_tabs->tabBar()->hide();
    m_heading->show();
    SetAside(m_ok);
    SetAside(m_apply);
    AddButton(m_back, QDialogButtonBox::ActionRole);
    ShowWizardButtons(kWizardNext);
}

int CPropertySheet::ActiveIndex() const { return m_tabs->currentIndex(); }

void CPropertySheet::SetActivePage(int index)
{
    if (index >= 0 && index < PageCount()) {
        m_tabs->setCurrentIndex(index);
    }
}

void CPropertySheet::AddPanel(QWidget* panel)
{
    panel->setParent(this);
    panel->setFixedWidth(kPanelWidth);
    m_panels += kPanelWidth + m_body->spacing();
    m_body->addWidget(panel);
}

void CPropertySheet::showEvent(QShowEvent* event)
{
    if (!event->spontaneous()) { // a window that comes back from its icon is no new visit
        Activate(m_tabs->currentIndex());
    }
    QDialog::showEvent(event);
}

/// Builds the page at its first visit, and tells it that it came to the front.
void CPropertySheet::Activate(int index)
{
    if (index < 0 || index >= PageCount()) {
        return;
    }
    Entry& entry = m_entries[static_cast<std::size_t>(index)];
    if (entry.page == nullptr) {
        Build(entry, *m_tabs->widget(index));
    }
    m_heading->setText(m_tabs->tabText(index));
    entry.page->OnSetActive();
    // The keyboard was on a page that went to the back, or nowhere yet.
    if (focusWidget() == nullptr || focusWidget() == m_tabs->widget(index)) {
        if (QWidget* const field = FirstField(entry.page)) {
            field->setFocus(Qt::TabFocusReason); // which selects what stands there, to type over it
        }
    }
}

void CPropertySheet::Build(Entry& entry, QWidget& place)
{
    entry.page = entry.make(&place);
    place.layout()->addWidget(new CPageArea(entry.page, RoomForPages()));
    connect(entry.page, &CPropertyPage::Modified, this, [this] { m_apply->setEnabled(true); });
    connect(entry.page, &CPropertyPage::WizardButtons, this, &CPropertySheet::ShowWizardButtons);
    entry.page->show();
    GrowFor(entry.page);
    PutButtonsLast();
}

void CPropertySheet::OpenWithRoom(QSize room)
{
    resize((room * logicalDpiY() / kUsualDpi).boundedTo(RoomOnScreen(*this)));
}

QSize CPropertySheet::RoomForPages() const
{
    constexpr int kFrame = 8; // of the tabs, on both sides
    const QMargins margins = layout()->contentsMargins();
    const QWidget* const title = m_wizard ? static_cast<QWidget*>(m_heading) : m_tabs->tabBar();
    const int around = margins.top() + margins.bottom() + 2 * layout()->spacing() + kFrame;
    return RoomOnScreen(*this) - QSize(margins.left() + margins.right() + m_panels + kFrame,
                                       around + title->sizeHint().height() + m_buttons->sizeHint().height());
}

/// Moves a sheet that has grown past an edge of the screen back, so that its buttons can be reached.
void CPropertySheet::StayOnScreen()
{
    const QRect room = screen()->availableGeometry();
    const QRect frame = frameGeometry();
    if (isVisible() && !room.contains(frame)) { // before it is shown it has no place yet
        move(std::max(room.left(), std::min(frame.left(), room.right() + 1 - frame.width())),
             std::max(room.top(), std::min(frame.top(), room.bottom() + 1 - frame.height())));
    }
}

/// The sheet becomes as large as its largest page asks for, as far as the screen allows.
void CPropertySheet::GrowFor(QWidget* page)
{
    // What the page asks for goes up from parent to parent by events; it is wanted now.
    for (QWidget* widget = page; widget != nullptr && widget != parentWidget();
         widget = widget->parentWidget()) {
        QCoreApplication::sendPostedEvents(widget, QEvent::LayoutRequest);
    }
    resize(size().expandedTo(sizeHint().boundedTo(RoomOnScreen(*this))));
}

/// TAB meets a page before the buttons below it, though the page was built after them.
void CPropertySheet::PutButtonsLast()
{
    QWidget* last = previousInFocusChain();
    while (last != this && (!TakesTab(last) || m_buttons->isAncestorOf(last))) {
        last = last->previousInFocusChain();
    }
    m_buttons->setFocusProxy(nullptr); // the box would stand for its first button, before the page
    for (QPushButton* const button : {m_back, m_next, m_finish, m_ok, m_cancel, m_apply}) {
        if (m_buttons->isAncestorOf(button)) {
            setTabOrder(last, button);
            last = button;
        }
    }
}

void CPropertySheet::Apply()
{
    for (const Entry& entry : m_entries) {
        if (entry.page != nullptr) {
            entry.page->OnApply();
        }
    }
    m_apply->setEnabled(false);
    emit Applied();
}

void CPropertySheet::accept()
{
    if (!m_wizard) {
        Apply();
    }
    QDialog::accept();
}

void CPropertySheet::OnBack()
{
    m_entries[static_cast<std::size_t>(ActiveIndex())].page->OnWizardBack();
    SetActivePage(ActiveIndex() - 1);
}

void CPropertySheet::OnNext()
{
    m_entries[static_cast<std::size_t>(ActiveIndex())].page->OnWizardNext();
    SetActivePage(ActiveIndex() + 1);
}

void CPropertySheet::OnFinish()
{
    m_entries[static_cast<std::size_t>(ActiveIndex())].page->OnWizardFinish();
    accept();
}

void CPropertySheet::ShowWizardButtons(unsigned buttons)
{
    if (!m_wizard) {
        return;
    }
    const bool finishes = (buttons & kWizardFinish) != 0;
    QPushButton* const forward = finishes ? m_finish : m_next;
    QPushButton* const other = finishes ? m_next : m_finish;
    m_back->setEnabled((buttons & kWizardBack) != 0);
    if (!finishes) {
        m_next->setEnabled((buttons & kWizardNext) != 0);
    }
    AddButton(forward, QDialogButtonBox::ActionRole);
    forward->setDefault(true);
    if (other->hasFocus()) { // else the focus would go on to Cancel
        forward->setFocus();
    }
    SetAside(other);
    PutButtonsLast();
}

void CPropertySheet::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::StyleChange) {
        QTimer::singleShot(0, this, &CPropertySheet::PutButtonsLast); // the box has put them anew by then
    }
}

void CPropertySheet::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F1 && ActiveIndex() >= 0) {
        const CPropertyPage* const page = Page(ActiveIndex());
        WinHelp(page != nullptr ? page->property(kDialogId).toInt() : 0, kHelpContext);
        return;
    }
    QDialog::keyPressEvent(event);
}

#include "moc_PropertySheet.cpp"
