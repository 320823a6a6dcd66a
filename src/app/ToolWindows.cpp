#include "app/ToolWindows.h"

#include "app/ExportFile.h"
#include "app/FieldOpener.h"
#include "app/MyDialogBar.h"
#include "document/EarlierDesigns.h"
#include "document/FileMasks.h"
#include "document/OrrevaDoc.h"
#include "document/RescueCopies.h"
#include "document/TelescopeFile.h"
#include "document/XmlScanner.h"
#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "lib/text/Language.h"
#include "model/analysis/EyepiecePlaces.h"
#include "painting/QtText.h"
#include "windows/CompareWindow.h"
#include "windows/DesignCheckField.h"
#include "windows/DesignCheckWindow.h"
#include "windows/IlluminationWindow.h"
#include "windows/VariationWindow.h"

#include <QFile>
#include <QFileInfo>
#include <QStatusBar>

namespace {

constexpr Bilingual kNotRead{"The file %s cannot be opened.",
                             "Die Datei %s kann nicht geöffnet werden."_cp1252};

void BringUp(QWidget& window)
{
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

CToolWindows::CToolWindows(QWidget& frame, QStatusBar& bar, CMyDialogBar& whatIfBar, COrrevaDoc& document)
    : QObject(&frame), m_frame(frame), m_whatIfBar(whatIfBar), m_document(document),
      m_checkField(new CDesignCheckField(&bar))
{
    bar.addPermanentWidget(m_checkField);
    m_checkField->ShowNothing(); // the bar has shown it
    connect(m_checkField, &QToolButton::clicked, this, &CToolWindows::OpenDesignCheck);
}

void CToolWindows::OpenDesignCheck()
{
    if (m_checkWindow == nullptr) {
        m_checkWindow = new CDesignCheckWindow(&m_frame);
        connect(m_checkWindow, &CDesignCheckWindow::FieldWanted, this,
                [this](const QString& key) { OpenField(m_document, key.toLatin1().constData()); });
        FollowCheck();
    }
    BringUp(*m_checkWindow);
}

void CToolWindows::OpenCompare()
{
    const std::string path = m_document.Host().AskPath(kOpenTelescope);
    if (path.empty()) {
        return;
    }
    const XmlScanner file(path.c_str());
    if (!file.HasText() || !file.IsDesign()) {
        TellNotRead(path);
        return;
    }
    COrrevaData other;
    ReadTelescope(file, other);
    Compare(other, QFileInfo(QFile::decodeName(path.c_str())).fileName());
}

void CToolWindows::TellNotRead(const std::string& path)
{
    const std::string shown = Cp1252FromUtf8(path);
    m_document.Host().ShowMessage(FormatText(kNotRead.In(g_nLanguage), shown.c_str()).c_str());
}

void CToolWindows::CompareEarlier()
{
    const std::vector<RescueCopy> copies = RescueCopies().List();
    const auto chosen = m_document.Host().AskEarlierDesign(copies, std::nullopt);
    if (!chosen || *chosen >= copies.size()) {
        return;
    }
    COrrevaData other;
    if (ReadEarlierDesign(copies[*chosen], other)) {
        Compare(other, QString::fromStdString(copies[*chosen].time));
    } else {
        TellNotRead(copies[*chosen].file);
    }
}

void CToolWindows::Compare(const TelescopeFields& other, const QString& name)
{
    if (m_compareWindow == nullptr) {
        m_compareWindow = new CCompareWindow(&m_frame);
        connect(m_compareWindow, &CCompareWindow::FileWanted, this, &CToolWindows::OpenCompare);
        connect(m_compareWindow, &CCompareWindow::EarlierWanted, this, &CToolWindows::CompareEarlier);
    }
    m_compareWindow->ShowOther(other, name);
    BringUp(*m_compareWindow);
    FollowCompare();
}

void CToolWindows::OpenVariation()
{
    if (m_variationWindow == nullptr) {
        m_variationWindow = new CVariationWindow(&m_frame);
        connect(
            m_variationWindow, &CVariationWindow::FileMade, this,
            [this](const QString& path, const QByteArray& bytes) { ExportFile(m_document, path, bytes); });
        connect(m_variationWindow, &CVariationWindow::TrialWanted, this,
                [this](const RecordField* field, double value) {
                    m_whatIfBar.TryValue(std::get<RealField>(field->field).set, value);
                });
    }
    BringUp(*m_variationWindow);
    FollowVariation();
}

void CToolWindows::Follow()
{
    FollowCheck();
    FollowCompare();
    FollowVariation();
    FollowIllumination();
}

void CToolWindows::OpenIllumination()
{
    if (m_illuminationWindow == nullptr) {
        m_illuminationWindow =
            new CIlluminationWindow(LoadEyepieces(FindEyepieces().c_str()).entries, &m_frame);
        connect(
            m_illuminationWindow, &CIlluminationWindow::FileMade, this,
            [this](const QString& path, const QByteArray& bytes) { ExportFile(m_document, path, bytes); });
        connect(m_illuminationWindow, &CIlluminationWindow::MinorAxisWanted, this, [this](double minorAxis) {
            m_whatIfBar.TryValue(&COrrevaData::SetSecondaryDiameter, minorAxis);
        });
    }
    BringUp(*m_illuminationWindow);
    FollowIllumination();
}

void CToolWindows::FollowIllumination()
{
    if (m_illuminationWindow == nullptr || !m_illuminationWindow->isVisible()) {
        return;
    }
    if (!m_document.HasFile()) {
        m_illuminationWindow->ShowNothing();
        return;
    }
    DesignCopy design(*m_document.active_record);
    COrrevaData& record = design.State().record;
    const IlluminationStops stops = ReadIlluminationStops(record);
    m_illuminationWindow->ShowDesign(stops, record.GetWanted100PercentFow(),
                                     ToQString(record.GetTitle().GetText()));
}

void CToolWindows::FollowVariation()
{
    if (m_variationWindow != nullptr && m_variationWindow->isVisible() && m_document.HasFile()) {
        m_variationWindow->ShowPresent(*m_document.active_record);
    }
}

void CToolWindows::FollowCompare()
{
    if (m_compareWindow != nullptr && m_compareWindow->isVisible() && m_document.HasFile()) {
        m_compareWindow->ShowPresent(*m_document.active_record);
    }
}

void CToolWindows::FollowCheck()
{
    if (!m_document.HasFile()) {
        m_checkField->ShowNothing();
        if (m_checkWindow != nullptr) {
            m_checkWindow->ShowNothing();
        }
        return;
    }
    const std::vector<DesignFinding> findings =
        CheckDesign(DesignCopy(*m_document.active_record).State(), g_nLanguage);
    m_checkField->ShowFindings(findings);
    if (m_checkWindow != nullptr) {
        m_checkWindow->ShowFindings(findings);
    }
}

#include "moc_ToolWindows.cpp"
