#pragma once

#include "pages/sheet/PropertyPage.h"

#include <QDialog>
#include <QDialogButtonBox>

#include <functional>
#include <vector>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QTabWidget;

/// A modal sheet of pages: tabs with OK, Cancel and Apply, or a wizard with Back, Next and Finish. OK applies
/// every visited page as Apply does and then closes; Cancel closes and leaves in the record what resets have
/// already written.
class CPropertySheet : public QDialog {
    Q_OBJECT

public:
    using MakePage = std::function<CPropertyPage*(QWidget* parent)>;

    CPropertySheet(const QString& caption, QWidget* parent);

    void AddPage(const QString& title, MakePage make);
    void RemovePage(int index);
    /// To be called after the pages are added and before the sheet is shown.
    void SetWizardMode();
    void SetActivePage(int index);

    int PageCount() const { return static_cast<int>(m_entries.size()); }
    int ActiveIndex() const;
    /// The page at an index, null until it is first visited.
    CPropertyPage* Page(int index) const { return m_entries.at(static_cast<std::size_t>(index)).page; }

    /// Widens the sheet by a strip at the right of the pages that holds `panel`.
    void AddPanel(QWidget* panel);

    /// Opens the sheet with room for its largest page, so that it keeps its size from page to page: pixels at
    /// 96 dpi. A page that asks for more still gets it when it is visited.
    void OpenWithRoom(QSize room);

    void accept() override;

signals:
    /// Every visited page was applied, by Apply or by OK.
    void Applied();

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Entry {
        MakePage make;
        CPropertyPage* page;
    };

    QPushButton* NewButton(const QString& text, const char* name);
    void AddButton(QPushButton* button, QDialogButtonBox::ButtonRole role);
    void SetAside(QPushButton* button);
    void ConnectButtons();
    void BindPageKeys();
    void Activate(int index);
    void StayOnScreen();
    /// What the pages may have of the screen.
    QSize RoomForPages() const;
    void Build(Entry& entry, QWidget& place);
    void GrowFor(QWidget* page);
    void PutButtonsLast();
    void Apply();
    void OnBack();
    void OnNext();
    void OnFinish();
    void ShowWizardButtons(unsigned buttons);

    std::vector<Entry> m_entries;
    QTabWidget* m_tabs;
    QLabel* m_heading; ///< the page's title where no tab shows it: in the wizard
    QHBoxLayout* m_body;
    int m_panels = 0;            ///< their width
    QDialogButtonBox* m_buttons; ///< it shows all buttons that it holds; the others are set aside
    QPushButton* m_back;
    QPushButton* m_next;
    QPushButton* m_finish;
    QPushButton* m_ok;
    QPushButton* m_cancel;
    QPushButton* m_apply;
    bool m_wizard = false;
};
