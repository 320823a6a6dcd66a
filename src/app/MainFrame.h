#pragma once

#include "views/Pane.h"

#include <QMainWindow>
#include <QTimer>

#include <memory>

class CLeftView;
class CMyDialogBar;
class CPaneSplitter;
class CThreadLocale;
class CToolWindows;
class COrrevaDoc;
class COrrevaView;
class KeyIndicators;
class QAction;
class QLabel;
class QMimeData;

namespace Ui {
class MainFrame;
}

/// The single main window: menus, toolbar and what-if bar, a status bar with its indicators, and the two
/// panes. Actions carry their command's number; what they do, and when they are enabled and checked, stands
/// in the document's command table.
class CMainFrame : public QMainWindow {
    Q_OBJECT

public:
    CMainFrame(COrrevaDoc& document, const CThreadLocale& threadLocale);
    ~CMainFrame() override;

    /// The caption is the document's title with " - Orreva" behind it; "Orreva" for an empty title.
    void SetDocumentTitle(const QString& title);
    /// Repaints both panes and refreshes what actions, bar and status bar show.
    void UpdateAllViews();
    /// The message of the status bar, empty for none.
    void ShowStatus(const QString& text);
    /// Refreshes what actions, bar and status bar show; no pane is repainted.
    void Refresh();
    /// Keeps panes and what-if bar from the record: they neither read nor write it.
    void Freeze(bool frozen);

    /// One command on its way: the active pane, the document, the desktop.
    void OnCommand(int id);

    CPane* ActivePane() const { return m_active; }
    CLeftView& LeftView() const { return *m_left; }
    COrrevaView& RightView() const { return *m_right; }

signals:
    void LanguageChosen(int language);
    /// All views have been told to repaint.
    void ViewsUpdated();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void CreateBars();
    void NameToolButtons();
    void CreateStatusFields();
    void CreatePanes();
    void ActivatePane(CPane* pane);
    void BindActions();
    void BindAccelerators();
    void UpdateActions();
    void UpdateStatusFields();
    void KeepLiveCopy();
    bool IsBusy() const;
    void UpdateViewStyles(QAction& action, int id);
    void RunDesktopCommand(int id);

    COrrevaDoc& m_document;
    const CThreadLocale& m_threadLocale;
    std::unique_ptr<Ui::MainFrame> m_ui;
    CLeftView* m_left = nullptr;
    COrrevaView* m_right = nullptr;
    CMyDialogBar* m_dialogBar = nullptr;
    CToolWindows* m_toolWindows = nullptr;
    CPaneSplitter* m_splitter = nullptr;
    CPane* m_active = nullptr;
    QLabel* m_message = nullptr;
    QLabel* m_trial = nullptr;
    QLabel* m_state = nullptr;
    QTimer m_keeper; ///< runs while the record is modified
    bool m_closing = false;
};
