#pragma once

#include "drawing/paper/Sheets.h"

#include <QDialog>

#include <memory>

class COrrevaDoc;
class QPrinter;

namespace Ui {
class WorkshopSheetsDialog;
}

/// Which workshop sheets to make and on what paper; they are shown at once, and printed or saved as they are
/// shown.
class CWorkshopSheetsDialog : public QDialog {
    Q_OBJECT

public:
    CWorkshopSheetsDialog(COrrevaDoc& document, QWidget* parent);
    ~CWorkshopSheetsDialog() override;

private:
    void ListSheets();
    /// The pages of the sheets that are marked; `faults` tells of those that cannot be made.
    PaperDocument Document(QStringList& faults) const;
    void ShowPages();
    void Save();
    void Print();
    void PrintOn(QPrinter& printer);
    std::string Name() const;

    COrrevaDoc& m_document;
    PaperDocument m_pages;
    std::unique_ptr<Ui::WorkshopSheetsDialog> m_ui;
};
