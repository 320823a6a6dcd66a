#pragma once

#include <QObject>

#include <string>

class CDesignCheckField;
class CCompareWindow;
class CDesignCheckWindow;
class CIlluminationWindow;
class CMyDialogBar;
class COrrevaDoc;
struct TelescopeFields;
class CVariationWindow;
class QStatusBar;
class QWidget;

/// The windows that stand beside the workbench and follow its design, and the field of the design check, the
/// last one of the status bar. A window is built when it is first asked for.
class CToolWindows : public QObject {
    Q_OBJECT

public:
    CToolWindows(QWidget& frame, QStatusBar& bar, CMyDialogBar& whatIfBar, COrrevaDoc& document);

    void OpenDesignCheck();
    /// Asks for the file of the other design; nothing for Cancel.
    void OpenCompare();
    /// The same with one of the copies that were kept of earlier designs.
    void CompareEarlier();
    void OpenVariation();
    void OpenIllumination();

    /// The design may have changed. Looks at a copy of it: the record's first readings are its own.
    void Follow();

private:
    void TellNotRead(const std::string& path);
    void Compare(const TelescopeFields& other, const QString& name);
    void FollowCheck();
    void FollowCompare();
    void FollowVariation();
    void FollowIllumination();

    QWidget& m_frame;
    CMyDialogBar& m_whatIfBar;
    COrrevaDoc& m_document;
    CDesignCheckField* m_checkField;
    CDesignCheckWindow* m_checkWindow = nullptr;
    CCompareWindow* m_compareWindow = nullptr;
    CVariationWindow* m_variationWindow = nullptr;
    CIlluminationWindow* m_illuminationWindow = nullptr;
};
