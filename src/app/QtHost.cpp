#include "app/QtHost.h"

#include "app/MainFrame.h"
#include "app/Modals.h"
#include "document/FileMasks.h"
#include "document/OrrevaDoc.h"
#include "lib/text/Language.h"
#include "pages/dialogs/QuickNewDialog.h"
#include "pages/dialogs/RaytracingSettingsDialog.h"
#include "painting/QtText.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFile>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>

#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace {

/// A question takes its buttons alone for an answer: neither the escape key nor the window's close button
/// stands for one that loses data. A box that only tells goes by either.
class MessageBox : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (!IsQuestion() || !event->matches(QKeySequence::Cancel)) {
            QMessageBox::keyPressEvent(event);
        }
    }
    void closeEvent(QCloseEvent* event) override
    {
        if (IsQuestion()) {
            event->ignore();
        } else {
            QMessageBox::closeEvent(event);
        }
    }

private:
    bool IsQuestion() const { return buttons().size() > 1; }
};

/// The lines of a message stay lines; longer ones than this are broken between words.
void KeepLines(QMessageBox& box)
{
    constexpr int kMostCharacters = 100;
    auto* const label = box.findChild<QLabel*>("qt_msgbox_label");
    if (label == nullptr) {
        return;
    }
    label->ensurePolished();
    label->setWordWrap(false);
    const int width = label->sizeHint().width();
    if (width <= kMostCharacters * label->fontMetrics().averageCharWidth()) {
        label->setMinimumWidth(width); // the box would break a line that is wider than half of the screen
    }
}

int Box(QWidget* owner, QMessageBox::Icon icon, const QString& title, const QString& text,
        QMessageBox::StandardButtons buttons)
{
    MessageBox box(icon, title, text, buttons, owner);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    KeepLines(box);
    return box.exec();
}

/// The choices of a filter in pipe notation, "Text (*.ext)|*.ext|...||", each with its pattern once more for
/// the toolkit, which hides it. There `*.*` would leave out the names without a point.
QStringList NameFilters(const char* pipes)
{
    const QStringList pieces = QString::fromUtf8(pipes).split('|', Qt::SkipEmptyParts);
    QStringList filters;
    for (qsizetype i = 0; i + 1 < pieces.size(); i += 2) {
        filters << pieces[i] + '(' + (pieces[i + 1] == "*.*" ? "*" : pieces[i + 1]) + ')';
    }
    return filters;
}

/// Keeps the main window from the record while it lives.
class FrozenFrame {
public:
    explicit FrozenFrame(CMainFrame* mainFrame) : m_frame(mainFrame) { Freeze(true); }
    ~FrozenFrame() { Freeze(false); }
    FrozenFrame(const FrozenFrame&) = delete;
    FrozenFrame& operator=(const FrozenFrame&) = delete;

private:
    void Freeze(bool frozen) const
    {
        if (m_frame != nullptr) {
            m_frame->Freeze(frozen);
        }
    }

    CMainFrame* m_frame;
};

} // namespace

void CQtHost::Attach(CMainFrame* mainFrame, COrrevaDoc* doc)
{
    m_frame = mainFrame;
    m_document = doc;
}

QWidget* CQtHost::Owner() const
{
    // The active window is none of them for a while after a box has closed.
    QWidget* const modal = QApplication::activeModalWidget();
    return modal == nullptr && m_frame != nullptr && m_frame->isVisible() ? m_frame : modal;
}

bool CQtHost::AskYesNo(const char* text)
{
    return Box(Owner(), QMessageBox::Question, "Orreva", ToQString(text),
               QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

void CQtHost::ShowMessage(const char* text)
{
    Box(Owner(), QMessageBox::Warning, "Orreva", ToQString(text), QMessageBox::Ok);
}

void CQtHost::SetDocumentTitle(const char* path)
{
    if (m_frame != nullptr) {
        m_frame->SetDocumentTitle(QFile::decodeName(path));
    }
}

void CQtHost::BeginWait() { QApplication::setOverrideCursor(Qt::WaitCursor); }

void CQtHost::EndWait() { QApplication::restoreOverrideCursor(); }

void CQtHost::UpdateAllViews()
{
    if (m_frame != nullptr) {
        m_frame->UpdateAllViews();
    }
}

std::string CQtHost::AskPath(const FileDialog& mask)
{
    QFileDialog dialog(Owner());
    dialog.setAcceptMode(mask.saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    // A name that is typed and does not exist is the document's to tell.
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    if (const QString title = ToQString(mask.title.In(g_nLanguage)); !title.isEmpty()) {
        dialog.setWindowTitle(title);
    }
    dialog.setNameFilters(NameFilters(mask.filter));
    dialog.setDefaultSuffix(QString::fromStdString(FilterEnding(mask)));
    dialog.selectFile(mask.file_name);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return {};
    }
    return WithEnding(mask, QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString());
}

bool CQtHost::AskQuickNew(QuickNewTexts& texts)
{
    // The record is reset and waits for its two numbers: who read it now would fix its defaults.
    const FrozenFrame frozen(m_frame);
    CQuickNewDialog dialog(texts, Owner());
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    texts = dialog.Texts();
    return true;
}

bool CQtHost::AskRaytracingSettings(std::uint8_t miss_in_grey)
{
    return CRaytracingSettingsDialog(miss_in_grey, Owner()).exec() == QDialog::Accepted;
}

bool CQtHost::RunModal(Modal modal)
{
    return m_document != nullptr && RunModalDialog(modal, *m_document, Owner());
}

AssertAnswer CQtHost::AskAssert(const char* title, const char* text)
{
    switch (Box(Owner(), QMessageBox::Critical, ToQString(title), ToQString(text),
                QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore)) {
    case QMessageBox::Abort:
        return AssertAnswer::Abort;
    case QMessageBox::Retry:
        return AssertAnswer::Retry;
    default:
        return AssertAnswer::Ignore;
    }
}

void CQtHost::CloseMainWindow()
{
    // The message goes to the main window's handle, which nothing sets; so no window gets it.
    if (g_hMainWnd != nullptr) {
        static_cast<QWidget*>(g_hMainWnd)->close();
    }
}

void CQtHost::BreakIntoDebugger() { std::raise(SIGTRAP); }

void CQtHost::FatalAppExit(const char* text)
{
    std::fprintf(stderr, "%s\n", text);
    std::_Exit(EXIT_FAILURE);
}

void CQtHost::ShowBox(const char* title, const char* text, bool bStop)
{
    Box(Owner(), bStop ? QMessageBox::Critical : QMessageBox::Information, ToQString(title), ToQString(text),
        QMessageBox::Ok);
}

bool CQtHost::ChooseFolder(const char* title, const char* root, LibString& target)
{
    const QString start = root != nullptr ? QFile::decodeName(root) : QString();
    const QString folder = QFileDialog::getExistingDirectory(Owner(), ToQString(title), start);
    if (folder.isEmpty()) {
        return false;
    }
    target = QFile::encodeName(folder).constData();
    return true;
}
