#pragma once

#include "app/FieldHabits.h"
#include "app/HelpKey.h"
#include "app/QtHost.h"
#include "app/ThreadLocale.h"
#include "document/OrrevaDoc.h"
#include "document/RescueCopies.h"

#include <QSettings>
#include <QStringList>

#include <memory>

/// The application: settles the language, builds the document and the main window, and routes help.
class COrrevaApp {
public:
    COrrevaApp();
    ~COrrevaApp();
    COrrevaApp(const COrrevaApp&) = delete;
    COrrevaApp& operator=(const COrrevaApp&) = delete;

    /// The start, in its order; `arguments` are the command line's words behind the program's name. False if
    /// the start fails.
    bool InitInstance(const QStringList& arguments);

    /// The language commands: a message, the profile's entry, and the locale of dialogs that open from now
    /// on. Texts of the code and the menu on the screen change at the next start.
    void OnLanguage(int language);
    /// Whether dialogs are built in German at this moment.
    bool IsThreadGerman() const { return m_threadLocale.IsGerman(); }

    CMainFrame& Frame() { return *m_frame; }
    COrrevaDoc& Document() { return *m_document; }

    /// The program's settings: per user, below `VarnholtTelescope`.
    static QSettings Profile();

private:
    void ChooseLanguage();
    bool ProcessShellCommand(const QStringList& arguments);
    void ShowNews();

    CThreadLocale m_threadLocale;
    CQtHost m_host;
    HelpKey m_helpKey;
    FieldHabits m_fieldHabits;
    RescueCopies m_copies;
    std::unique_ptr<COrrevaDoc> m_document;
    std::unique_ptr<CMainFrame> m_frame;
};
