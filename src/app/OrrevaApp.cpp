#include "app/OrrevaApp.h"

#include "app/HelpPages.h"
#include "app/MainFrame.h"
#include "lib/text/CodePage.h"
#include "lib/text/Language.h"
#include "lib/text/Log.h"
#include "pages/sheet/Help.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFile>
#include <QLocale>

namespace {

constexpr const char* kLanguageEntry = "Settings/Language";
constexpr int kNoLanguage = 99;

/// Every help request of the program, the toolkit's own commands too.
void OpenHelp(long data, unsigned command)
{
    LibString line;
    line.Format("COrrevaApp::WinHelp(%ld, %d)", data, static_cast<int>(command));
    LogText(line);
    QDesktopServices::openUrl(HelpPage(data, command));
}

} // namespace

COrrevaApp::COrrevaApp()
{
    SetAssertDesktop(&host);
    SetHelpHandler(OpenHelp);
}

COrrevaApp::~COrrevaApp()
{
    host.Attach(nullptr, nullptr);
    frame.reset();
    document.reset();
    threadLocale.Set(kEnglish);
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
    document = std::make_unique<COrrevaDoc>(host);
    frame = std::make_unique<CMainFrame>(*document, threadLocale);
    QObject::connect(frame.get(), &CMainFrame::LanguageChosen, frame.get(),
                     [this](int language) { OnLanguage(language); });
    host.Attach(frame.get(), document.get());
    if (!ProcessShellCommand(arguments)) {
        return false;
    }
    frame->showMaximized();
    return true;
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
    threadLocale.Set(g_nLanguage);
}

bool COrrevaApp::ProcessShellCommand(const QStringList& arguments)
{
    for (const QString& word : arguments) {
        if (!word.startsWith('-')) {
            return document->OpenOldFormat(QFile::encodeName(word).constData());
        }
    }
    return true;
}

void COrrevaApp::OnLanguage(int language)
{
    host.ShowMessage(language == kGerman ? "Beim nächsten Start wird Orreva Deutsch verwenden."_cp1252
                                         : "Orreva will use English on it's next start.");
    Profile().setValue(kLanguageEntry, language);
    threadLocale.Set(language);
}
