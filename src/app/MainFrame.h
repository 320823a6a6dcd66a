#pragma once

#include "views/Pane.h"

#include <QMainWindow>

#include <memory>

class CLeftView;
class CMyDialogBar;
class CThreadLocale;
class COrrevaDoc;
class COrrevaView;
class KeyIndicators;
class QAction;
class QSplitter;

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
    /// Repaints both panes and refreshes what the actions show.
    void UpdateAllViews();
    /// Keeps panes and what-if bar from the record: they neither read nor write it.
    void Freeze(bool frozen);

    /// One command on its way: the active pane, the document, the desktop.
    void OnCommand(int id);

    CPane* ActivePane() const { return active; }
    CLeftView& LeftView() const { return *left; }
    COrrevaView& RightView() const { return *right; }

signals:
    void LanguageChosen(int language);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void CreateBars();
    void CreatePanes();
    void BindActions();
    void BindAccelerators();
    void UpdateActions();
    void UpdateViewStyles(QAction& action, int id);
    void RunDesktopCommand(int id);

    COrrevaDoc& document;
    const CThreadLocale& threadLocale;
    std::unique_ptr<Ui::MainFrame> ui;
    CLeftView* left = nullptr;
    COrrevaView* right = nullptr;
    CMyDialogBar* dialogBar = nullptr;
    CPane* active = nullptr;
    bool closing = false;
};
