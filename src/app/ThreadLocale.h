#pragma once

#include <QTranslator>

#include <memory>
#include <vector>

/// The language in which forms are built: they take their texts from the translators that are installed at
/// that moment.
class CThreadLocale {
public:
    CThreadLocale() = default;
    ~CThreadLocale();
    CThreadLocale(const CThreadLocale&) = delete;
    CThreadLocale& operator=(const CThreadLocale&) = delete;

    void Set(int language);
    bool IsGerman() const { return m_german; }

private:
    std::vector<std::unique_ptr<QTranslator>> m_translators;
    bool m_german = false;
};
