#include "app/OrrevaApp.h"

#include "app/Browser.h"
#include "app/HelpPages.h"
#include "app/MainFrame.h"
#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "lib/text/Language.h"
#include "lib/text/Log.h"
#include "pages/sheet/Help.h"
#include "painting/QtText.h"
#include "views/ProgramIcon.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QTimer>

namespace {

constexpr Bilingual kLanguageNotStored{"The language could not be stored in %s.",
                                       "Die Sprache konnte nicht in %s gespeichert werden."};

constexpr const char* kLanguageEntry = "Settings/Language";
constexpr int kNoLanguage = 99;

/// Whose status tells of a page that no browser shows, while the frame stands.
COrrevaDoc* g_helpDocument = nullptr;

/// Every help request of the program, the toolkit's own commands too.
void OpenHelp(long data, unsigned command)
{
    LibString line;
    line.Format("COrrevaApp::WinHelp(%ld, %d)", data, static_cast<int>(command));
    LogText(line);
    const QUrl page = HelpPage(data, command, BuiltHelpAddresses(g_nLanguage));
    const bool opened = QDesktopServices::openUrl(page) && HasBrowser();
    const bool missing = page.isLocalFile() && !QFileInfo::exists(page.toLocalFile());
    if ((!opened || missing) && g_helpDocument != nullptr) {
        g_helpDocument->Status().Say(FromQString(UnopenedHelpText(page, g_nLanguage)));
        g_helpDocument->ShowStatus();
    }
}

} // namespace

COrrevaApp::COrrevaApp()
{
    QApplication::setWindowIcon(ProgramIcon("orreva")); // of every window, the first message's too
    SetAssertDesktop(&m_host);
    SetHelpHandler(OpenHelp);
}

COrrevaApp::~COrrevaApp()
{
    m_host.Attach(nullptr, nullptr);
    g_helpDocument = nullptr;
    m_frame.reset();
    m_document.reset();
    m_threadLocale.Set(kEnglish);
    SetHelpHandler(nullptr);
    SetAssertDesktop(nullptr);
}

QSettings COrrevaApp::Profile()
{
    return QSettings(QSettings::NativeFormat, QSettings::UserScope, "VarnholtTelescope");
}

bool COrrevaApp::InitInstance(const QStringList& arguments)
{
    ChooseLanguage();
    m_document = std::make_unique<COrrevaDoc>(m_host);
    m_document->KeepCopies(&m_copies);
    m_frame = std::make_unique<CMainFrame>(*m_document, m_threadLocale);
    QObject::connect(m_frame.get(), &CMainFrame::LanguageChosen, m_frame.get(),
                     [this](int language) { OnLanguage(language); });
    m_host.Attach(m_frame.get(), m_document.get());
    g_helpDocument = m_document.get();
    if (!ProcessShellCommand(arguments)) {
        return false;
    }
    m_frame->showMaximized();
    m_frame->Refresh();
    QTimer::singleShot(0, m_frame.get(), [this] { ShowNews(); });
    return true;
}

/// What a crash or a failed save left behind is offered once, over the window as it opens always.
void COrrevaApp::ShowNews()
{
    if (const auto copy = m_copies.TakeNews()) {
        m_document->BeginCommand();
        m_document->ChooseEarlierDesign(copy->file);
        m_frame->Refresh();
    }
}

void COrrevaApp::ChooseLanguage()
{
    QSettings profile = Profile();
    bool isNumber = false;
    const int language = profile.value(kLanguageEntry, kNoLanguage).toInt(&isNumber);
    if (isNumber && (language == kEnglish || language == kGerman)) {
        g_nLanguage = language;
    } else {
        g_nLanguage = QLocale::system().language() == QLocale::German ? kGerman : kEnglish;
        profile.setValue(kLanguageEntry, g_nLanguage);
    }
    m_threadLocale.Set(g_nLanguage);
}

bool COrrevaApp::ProcessShellCommand(const QStringList& arguments)
{
    for (const QString& word : arguments) {
        if (!word.startsWith('-')) {
            return m_document->OpenByContent(QFile::encodeName(word).constData());
        }
    }
    return true;
}

void COrrevaApp::OnLanguage(int language)
{
    m_host.ShowMessage(language == kGerman ? "Beim nächsten Start wird Orreva Deutsch verwenden."_cp1252
                                           : "Orreva will use English on it's next start.");
    QSettings profile = Profile();
    profile.setValue(kLanguageEntry, language);
    profile.sync();
    if (profile.status() == QSettings::NoError) {
        m_document->Status().Succeed(StatusTopic::Language, {});
    } else {
        const std::string file = FromQString(profile.fileName());
        m_document->Status().Fail(StatusTopic::Language,
                                  FormatText(kLanguageNotStored.In(g_nLanguage), file.c_str()));
    }
    m_document->ShowStatus();
    m_threadLocale.Set(language);
}
