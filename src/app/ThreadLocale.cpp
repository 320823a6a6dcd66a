#include "app/ThreadLocale.h"

#include "lib/text/Language.h"

#include <QApplication>
#include <QLibraryInfo>

CThreadLocale::~CThreadLocale() { Set(kEnglish); }

void CThreadLocale::Set(int language)
{
    m_translators.clear(); // a translator that goes takes itself off the application
    m_german = language == kGerman;
    if (!m_german) {
        return;
    }
    const auto install = [this](const QString& name, const QString& folder) {
        auto translator = std::make_unique<QTranslator>();
        if (translator->load(name, folder)) {
            QApplication::installTranslator(translator.get());
            m_translators.push_back(std::move(translator));
        }
    };
    install("qtbase_de", QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install("orreva_de", ":/translations");
}
