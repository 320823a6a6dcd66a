#include "app/MainFrame.h"

#include "app/KeyIndicators.h"
#include "app/MenuLetters.h"
#include "app/MyDialogBar.h"
#include "app/Printing.h"
#include "app/SaveReport.h"
#include "app/ThreadLocale.h"
#include "app/ToolWindows.h"
#include "document/Commands.h"
#include "document/WhatIfBar.h"
#include "lib/text/Language.h"
#include "pages/dialogs/AboutBox.h"
#include "pages/sheet/Help.h"
#include "painting/QtText.h"
#include "views/LeftView.h"
#include "views/OrrevaView.h"
#include "views/PaneReading.h"
#include "views/PaneSplitter.h"
#include "views/ProgramIcon.h"

#include "ui_MainFrame.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFile>
#include <QLabel>
#include <QMimeData>
#include <QShortcut>
#include <QToolBar>
#include <QToolButton>

namespace {

constexpr const char* kCommandId = "commandId";
constexpr const char* kIconName = "iconName";
constexpr int kPaneWidth = 260;

// The view styles of a list view, which this program has none of: they are shown and do nothing.
constexpr int kFirstViewStyle = 59408;
constexpr int kLastViewStyle = 59413;

/// A copy of a modified record is brought up to date so often, in milliseconds.
constexpr int kKeepEvery = 400;

/// The files that are dragged, as bytes of the file system.
std::vector<std::string> PathsOf(const QMimeData& data)
{
    std::vector<std::string> paths;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) {
            paths.push_back(QFile::encodeName(url.toLocalFile()).toStdString());
        }
    }
    return paths;
}

bool IsViewStyle(int id) { return id >= kFirstViewStyle && id <= kLastViewStyle; }

} // namespace

CMainFrame::CMainFrame(COrrevaDoc& doc, const CThreadLocale& locale)
    : m_document(doc), m_threadLocale(locale), m_ui(std::make_unique<Ui::MainFrame>())
{
    m_ui->setupUi(this);
    CreateBars();
    CreatePanes();
    BindActions();
    BindAccelerators();
    new CMenuLetters(*this);
    m_toolWindows = new CToolWindows(*this, *m_ui->statusBar, *m_dialogBar, m_document);
    connect(this, &CMainFrame::ViewsUpdated, m_toolWindows, &CToolWindows::Follow);
    SetDocumentTitle({});
    m_keeper.setInterval(kKeepEvery);
    connect(&m_keeper, &QTimer::timeout, this, &CMainFrame::KeepLiveCopy);
    Refresh();
}

CMainFrame::~CMainFrame() = default;

void CMainFrame::CreateBars()
{
    m_dialogBar = new CMyDialogBar(m_document, m_ui->dialogBarBand);
    m_ui->dialogBarBand->addWidget(m_dialogBar);
    connect(m_dialogBar, &CMyDialogBar::Changed, this, &CMainFrame::Refresh);
    CreateStatusFields();
    new KeyIndicators(*m_ui->statusBar);
    NameToolButtons();
}

/// For screen readers, without the key that stands behind a menu's text.
void CMainFrame::NameToolButtons()
{
    for (QAction* const action : m_ui->toolBar->actions()) {
        if (QWidget* const button = m_ui->toolBar->widgetForAction(action); button != nullptr) {
            button->setAccessibleName(action->text().section('\t', 0, 0).remove('&').trimmed());
        }
    }
    constexpr Bilingual kRest{"More", "Weitere"};
    for (const QToolBar* const bar : {m_ui->toolBar, m_ui->dialogBarBand}) {
        if (auto* const rest = bar->findChild<QToolButton*>("qt_toolbar_ext_button")) {
            rest->setAccessibleName(kRest.In(g_nLanguage));
        }
    }
}

/// The message field at the left, which gives way to the prompts of menus while they show; the trial; whether
/// the design is saved.
void CMainFrame::CreateStatusFields()
{
    const auto add = [this](const char* name) {
        auto* const label = new QLabel(m_ui->statusBar);
        label->setObjectName(name);
        label->setTextFormat(Qt::PlainText);
        return label;
    };
    m_message = add("message");
    // A long path is cut at the edge of the window, and does not widen it.
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_message->setMinimumWidth(1);
    m_trial = add("trial");
    m_state = add("state");
    m_ui->statusBar->addWidget(m_message, 1);
    m_ui->statusBar->addPermanentWidget(m_trial);
    m_ui->statusBar->addPermanentWidget(m_state);
}

void CMainFrame::CreatePanes()
{
    const int leftWidth = CLeftView::CreationWidth(kPaneWidth);
    InstallPaneReading();
    m_splitter = new CPaneSplitter(leftWidth, kPaneWidth, this);
    m_left = new CLeftView(m_document, m_splitter);
    m_right = new COrrevaView(m_document, m_splitter);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setSizes({leftWidth, std::max(kPaneWidth, width() - leftWidth)});
    setCentralWidget(m_splitter);
    for (CPane* const pane : {static_cast<CPane*>(m_left), static_cast<CPane*>(m_right)}) {
        connect(pane, &CPane::Activated, this, &CMainFrame::ActivatePane);
    }
    ActivatePane(m_left);
    m_left->setFocus();
}

void CMainFrame::ActivatePane(CPane* pane)
{
    m_active = pane;
    m_splitter->ShowActive(pane);
}

void CMainFrame::BindActions()
{
    for (QAction* const action : findChildren<QAction*>()) {
        const QString icon = action->property(kIconName).toString();
        if (!icon.isEmpty()) {
            action->setIcon(ProgramIcon(icon));
        }
        const int id = action->property(kCommandId).toInt();
        if (id != 0) {
            connect(action, &QAction::triggered, this, [this, id] { OnCommand(id); });
        }
    }
    for (QMenu* const menu : findChildren<QMenu*>()) {
        connect(menu, &QMenu::aboutToShow, this, &CMainFrame::UpdateActions);
    }
}

void CMainFrame::BindAccelerators()
{
    for (const Accelerator& accelerator : Accelerators()) {
        auto* const shortcut = new QShortcut(QKeySequence(accelerator.keys), this);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, this, [this, id = accelerator.id] {
            const Command* const command = FindCommand(id);
            if (command != nullptr && IsEnabled(*command, m_document)) {
                OnCommand(id);
            }
        });
    }
}

void CMainFrame::SetDocumentTitle(const QString& title)
{
    // The toolkit takes "[*]" for the place of a mark that a document was changed, and two of them for one.
    const QString caption = QString(title).replace("[*]", "[*][*]");
    setWindowTitle(caption.isEmpty() ? QString("Orreva") : caption + " - Orreva");
}

void CMainFrame::Freeze(bool frozen)
{
    m_left->setUpdatesEnabled(!frozen);
    m_right->setUpdatesEnabled(!frozen);
    m_dialogBar->Freeze(frozen);
}

void CMainFrame::UpdateAllViews()
{
    for (CPane* const pane : {static_cast<CPane*>(m_left), static_cast<CPane*>(m_right)}) {
        pane->update();
        AnnouncePane(*pane);
    }
    Refresh();
    emit ViewsUpdated();
}

void CMainFrame::Refresh()
{
    UpdateActions();
    m_dialogBar->Follow();
    UpdateStatusFields();
    if (m_document.active_record->IsModified() != 0 && !m_keeper.isActive()) {
        m_keeper.start();
    }
}

void CMainFrame::ShowStatus(const QString& text)
{
    m_message->setText(text);
    m_message->setToolTip(text);
}

void CMainFrame::UpdateStatusFields()
{
    const auto show = [](QLabel& label, const std::string& text) {
        label.setText(ToQString(text));
        label.setVisible(!text.empty());
    };
    show(*m_trial, BarTrialText(m_document, g_nLanguage));
    show(*m_state, m_document.StateText(g_nLanguage));
}

void CMainFrame::KeepLiveCopy()
{
    m_document.KeepLiveCopy();
    if (m_document.active_record->IsModified() == 0) {
        m_keeper.stop();
    }
}

/// While a dialog runs, the record is its own.
bool CMainFrame::IsBusy() const { return m_closing || QApplication::activeModalWidget() != nullptr; }

void CMainFrame::dragEnterEvent(QDragEnterEvent* event)
{
    if (!IsBusy() && !PathsOf(*event->mimeData()).empty()) {
        event->acceptProposedAction();
    }
}

void CMainFrame::dropEvent(QDropEvent* event)
{
    const std::vector<std::string> paths = PathsOf(*event->mimeData());
    if (IsBusy() || paths.empty()) {
        return;
    }
    event->acceptProposedAction();
    // The program that the files come from waits for the end of the drop, and opening may ask something.
    QTimer::singleShot(0, this, [this, paths] {
        if (!IsBusy()) {
            m_document.OpenDropped(paths);
            Refresh();
        }
    });
}

void CMainFrame::UpdateActions()
{
    for (QAction* const action : findChildren<QAction*>()) {
        const int id = action->property(kCommandId).toInt();
        if (IsViewStyle(id)) {
            UpdateViewStyles(*action, id);
        } else if (const Command* const command = FindCommand(id)) {
            action->setEnabled(IsEnabled(*command, m_document));
            if (action->isCheckable()) {
                action->setChecked(IsChecked(*command, m_document));
            }
        }
    }
}

/// As a list view's: a radio mark by the style bits of the right pane, which is no list and has none of them.
void CMainFrame::UpdateViewStyles(QAction& action, int id)
{
    constexpr int kStyleOfThePane = 0;
    action.setEnabled(m_right != nullptr);
    action.setChecked(id - kFirstViewStyle == kStyleOfThePane);
}

void CMainFrame::OnCommand(int id)
{
    if (!m_active->OnCommand(id) && !RunCommand(id, m_document)) {
        RunDesktopCommand(id);
    }
    Refresh();
}

void CMainFrame::RunDesktopCommand(int id)
{
    switch (id) {
    case command_id::kPrint:
        PrintPane(*m_active, m_document, this);
        break;
    case command_id::kPrintPreview:
        PreviewPane(*m_active, m_document, this);
        break;
    case command_id::kPrintSetup:
        SetUpPrinter(this);
        break;
    case command_id::kReportPdf:
        SaveReport(m_document);
        break;
    case command_id::kExit:
        close();
        break;
    case command_id::kGerman:
        emit LanguageChosen(kGerman);
        break;
    case command_id::kEnglish:
        emit LanguageChosen(kEnglish);
        break;
    case command_id::kForum:
        WinHelp(1, kHelpContext);
        break;
    case command_id::kHandbook:
    case command_id::kHelp:
    case command_id::kContextHelp:
        WinHelp(0, kHelpContext);
        break;
    case command_id::kHelpThemes:
        WinHelp(0, kHelpThemesCommand);
        break;
    case command_id::kAbout:
        CAboutBox(m_threadLocale.IsGerman(), this).exec();
        break;
    case command_id::kDesignCheck:
        m_toolWindows->OpenDesignCheck();
        break;
    case command_id::kCompare:
        m_toolWindows->OpenCompare();
        break;
    case command_id::kVariation:
        m_toolWindows->OpenVariation();
        break;
    case command_id::kIllumination:
        m_toolWindows->OpenIllumination();
        break;
    default:
        break; // the view styles: nothing
    }
}

void CMainFrame::closeEvent(QCloseEvent* event)
{
    // The prompt has no Cancel, so that every close goes through; a second one while it stands waits.
    if (m_closing) {
        event->ignore();
        return;
    }
    m_closing = true;
    m_document.OnCloseDocument();
    m_closing = false;
    event->accept();
}

#include "moc_MainFrame.cpp"
