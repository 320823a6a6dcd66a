#pragma once

#include "pages/optics/FoucaultSession.h"
#include "pages/sheet/PropertyPage.h"

/// A page that works on the session's readings: it shows them whenever they differ, and OK and Apply hand
/// them to the document.
class CFoucaultPage : public CPropertyPage {
    Q_OBJECT

public:
    CFoucaultPage(CFoucaultSession& session, QWidget* parent) : CPropertyPage(parent), m_session(session)
    {
        connect(&m_session, &CFoucaultSession::Modified, this, &CPropertyPage::Modified);
        connect(&m_session, &CFoucaultSession::Changed, this, [this] { ShowSession(); });
    }

    void Store() override { m_session.Store(); }

protected:
    virtual void ShowSession() = 0;

    CFoucaultSession& m_session;
};
