#include "app/QtHost.h"

#include "app/ExportFile.h"
#include "app/MainFrame.h"
#include "app/Modals.h"
#include "document/FileMasks.h"
#include "document/OrrevaDoc.h"
#include "lib/files/FileQueries.h"
#include "lib/platform/Debugger.h"
#include "lib/text/Language.h"
#include "model/analysis/EyepiecePlaces.h"
#include "pages/dialogs/EarlierDesignsDialog.h"
#include "pages/dialogs/QuickNewDialog.h"
#include "pages/dialogs/RaytracingSettingsDialog.h"
#include "painting/QtText.h"
#include "windows/IlluminationWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>

#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace {

/// A question takes its buttons alone for an answer: neither the escape key nor the window's close button
/// stands for one that loses data. A box that only tells, or has a button for them, goes by either.
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
    bool IsQuestion() const { return buttons().size() > 1 && escapeButton() == nullptr; }
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
        QMessageBox::StandardButtons buttons, QMessageBox::StandardButton usual = QMessageBox::NoButton)
{
    MessageBox box(icon, title, text, buttons, owner);
    if (usual != QMessageBox::NoButton) {
        box.setDefaultButton(usual);
        box.setEscapeButton(usual);
    }
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

/// A file dialog that completes the name typed for saving before the toolkit asks whether to replace a file
/// of that name.
class FileChooser : public QFileDialog {
public:
    FileChooser(const FileDialog& dialog, QWidget* owner) : QFileDialog(owner), mask(dialog)
    {
        setAcceptMode(mask.saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
        // A name that is typed and does not exist is the document's to tell.
        setFileMode(QFileDialog::AnyFile);
        setOption(QFileDialog::HideNameFilterDetails);
        if (const QString title = ToQString(mask.title.In(g_nLanguage)); !title.isEmpty()) {
            setWindowTitle(title);
        }
        setNameFilters(NameFilters(mask.filter));
        selectFile(mask.file_name);
    }

    /// What the dialog's answer stands for, bytes of the file system.
    std::string Path() const { return Completed(selectedFiles().value(0)); }

protected:
    void accept() override
    {
        auto* const name = findChild<QLineEdit*>("fileNameEdit");
        if (mask.saving && name != nullptr && !name->text().isEmpty() &&
            !QFileInfo(directory(), name->text()).isDir()) {
            name->setText(QFile::decodeName(Completed(name->text()).c_str()));
        }
        QFileDialog::accept();
    }

private:
    std::string Completed(const QString& path) const
    {
        // The toolkit may tell the choice without the pattern that it hides.
        const bool first = nameFilters().value(0).startsWith(selectedNameFilter());
        return WithEnding(mask, QFile::encodeName(path).toStdString(), first);
    }

    const FileDialog& mask;
};

/// The toolkit's own question.
bool MayReplace(QFileDialog& dialog, const std::string& path)
{
    const QString name = QFileInfo(QFile::decodeName(path.c_str())).fileName();
    return QMessageBox::warning(&dialog, dialog.windowTitle(),
                                QFileDialog::tr("%1 already exists.\nDo you want to replace it?").arg(name),
                                QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
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
    FileChooser dialog(mask, Owner());
    while (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
        const std::string path = dialog.Path();
        // A dialog of the desktop's own knows nothing of the ending, and has not asked for the completed
        // name.
        const bool completed = path != QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString();
        if (!mask.saving || !completed || FileExists(path.c_str()) == 0 || MayReplace(dialog, path)) {
            return path;
        }
    }
    return {};
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

void CQtHost::ShowIllumination(const IlluminationStops& stops, double wanted)
{
    // A child of the sheet that runs, which would keep any other window from the user, and gone with it.
    QWidget* const owner = Owner();
    if (m_illumination == nullptr || m_illumination->parentWidget() != owner) {
        delete m_illumination;
        m_illumination = new CIlluminationWindow(LoadEyepieces(FindEyepieces().c_str()).entries, owner);
        QObject::connect(
            m_illumination, &CIlluminationWindow::FileMade, m_illumination,
            [this](const QString& path, const QByteArray& bytes) { ExportFile(*m_document, path, bytes); });
    }
    const QString title =
        m_document == nullptr ? QString() : ToQString(m_document->active_record->GetTitle().GetText());
    m_illumination->ShowDesign(stops, wanted, title);
    m_illumination->show();
    m_illumination->raise();
    m_illumination->activateWindow();
}

void CQtHost::ShowStatus(const char* text)
{
    if (m_frame != nullptr) {
        m_frame->ShowStatus(ToQString(text));
    }
}

std::optional<std::size_t> CQtHost::AskEarlierDesign(std::span<const RescueCopy> copies,
                                                     std::optional<std::size_t> selected)
{
    CEarlierDesignsDialog dialog(copies, selected, Owner());
    return dialog.exec() == QDialog::Accepted ? dialog.Chosen() : std::nullopt;
}

AssertAnswer CQtHost::AskAssert(const char* title, const char* text)
{
    switch (Box(Owner(), QMessageBox::Critical, ToQString(title), ToQString(text),
                QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore, QMessageBox::Ignore)) {
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

void CQtHost::BreakIntoDebugger()
{
    if (IsDebuggerAttached()) { // without one the signal would end the program
        std::raise(SIGTRAP);
    }
}

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
