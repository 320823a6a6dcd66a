#include "app/MainFrame.h"

#include "app/KeyIndicators.h"
#include "app/MyDialogBar.h"
#include "app/Printing.h"
#include "app/ThreadLocale.h"
#include "document/Commands.h"
#include "lib/text/Language.h"
#include "pages/dialogs/AboutBox.h"
#include "pages/sheet/Help.h"
#include "views/LeftView.h"
#include "views/OrrevaView.h"
#include "views/ProgramIcon.h"

#include "ui_MainFrame.h"

#include <QCloseEvent>
#include <QShortcut>
#include <QSplitter>

namespace {

constexpr const char* kCommandId = "commandId";
constexpr const char* kIconName = "iconName";
constexpr int kPaneWidth = 260;

// The view styles of a list view, which this program has none of: they are shown and do nothing.
constexpr int kFirstViewStyle = 59408;
constexpr int kLastViewStyle = 59413;

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
    SetDocumentTitle({});
    UpdateActions();
}

CMainFrame::~CMainFrame() = default;

void CMainFrame::CreateBars()
{
    m_dialogBar = new CMyDialogBar(m_document, m_ui->dialogBarBand);
    m_ui->dialogBarBand->addWidget(m_dialogBar);
    new KeyIndicators(*m_ui->statusBar);
}

void CMainFrame::CreatePanes()
{
    auto* const splitter = new QSplitter(Qt::Horizontal, this);
    m_left = new CLeftView(m_document, splitter);
    m_right = new COrrevaView(m_document, splitter);
    splitter->setChildrenCollapsible(false);
    splitter->setStretchFactor(1, 1);
    const int leftWidth = CLeftView::CreationWidth(kPaneWidth);
    splitter->setSizes({leftWidth, std::max(kPaneWidth, width() - leftWidth)});
    setCentralWidget(splitter);
    for (CPane* const pane : {static_cast<CPane*>(m_left), static_cast<CPane*>(m_right)}) {
        connect(pane, &CPane::Activated, this, [this](CPane* activated) { m_active = activated; });
    }
    m_active = m_left;
    m_left->setFocus();
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
    m_left->update();
    m_right->update();
    UpdateActions();
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
    UpdateActions();
}

void CMainFrame::RunDesktopCommand(int id)
{
    switch (id) {
    case command_id::kPrint:
        PrintPane(*m_active, this);
        break;
    case command_id::kPrintPreview:
        PreviewPane(*m_active, this);
        break;
    case command_id::kPrintSetup:
        SetUpPrinter(this);
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
    default:
        break; // the toolkit's save and the view styles: nothing
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
