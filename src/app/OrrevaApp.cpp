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
#include <QLibraryInfo>
#include <QLocale>

namespace {

constexpr const char* kLanguageEntry = "Settings/Language";
constexpr int kNoLanguage = 99;

COrrevaApp* g_app = nullptr;

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
    g_app = this;
    SetAssertDesktop(&host);
    SetHelpHandler(OpenHelp);
}

COrrevaApp::~COrrevaApp()
{
    host.Attach(nullptr, nullptr);
    frame.reset();
    document.reset();
    SetThreadLocale(kEnglish);
    SetHelpHandler(nullptr);
    SetAssertDesktop(nullptr);
    g_app = nullptr;
}

COrrevaApp& COrrevaApp::Instance() { return *g_app; }

QSettings COrrevaApp::Profile()
{
    return QSettings(QSettings::NativeFormat, QSettings::UserScope, "VarnholtTelescope");
}

bool COrrevaApp::InitInstance(const QStringList& arguments)
{
    ChooseLanguage();
    document = std::make_unique<COrrevaDoc>(host);
    frame = std::make_unique<CMainFrame>(*document);
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
    SetThreadLocale(g_nLanguage);
}

/// Forms take their texts from the translator that is installed at the moment they are built.
void COrrevaApp::SetThreadLocale(int language)
{
    translators.clear(); // a translator that goes takes itself off the application
    threadGerman = language == kGerman;
    if (!threadGerman) {
        return;
    }
    const auto install = [this](const QString& name, const QString& folder) {
        auto translator = std::make_unique<QTranslator>();
        if (translator->load(name, folder)) {
            QApplication::installTranslator(translator.get());
            translators.push_back(std::move(translator));
        }
    };
    install("qtbase_de", QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install("orreva_de", ":/translations");
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
    SetThreadLocale(language);
}
