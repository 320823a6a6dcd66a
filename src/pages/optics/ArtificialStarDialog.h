#pragma once

#include "model/optics/StarDistance.h"

#include <QDialog>

#include <memory>

class COrrevaDoc;
namespace Ui {
class ArtificialStarDialog;
}

/// How far away an artificial star must stand. What is typed reaches the record at once; no view is redrawn.
class CArtificialStarDialog : public QDialog {
    Q_OBJECT

public:
    CArtificialStarDialog(COrrevaDoc& document, QWidget* parent);
    ~CArtificialStarDialog() override;

private:
    void OnChangePrecision();
    void OnChangeStarDiameter();

    std::unique_ptr<Ui::ArtificialStarDialog> m_ui;
    StarDialogTexts m_texts;
};
