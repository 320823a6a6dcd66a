#pragma once

#include "document/WhatIfBar.h"

#include <QWidget>

#include <memory>

namespace Ui {
class MyDialogBar;
}

/// The what-if bar: one of seven parameters, a slider between half and twice its value, and two buttons that
/// take the trial back or over.
class CMyDialogBar : public QWidget {
    Q_OBJECT

public:
    CMyDialogBar(COrrevaDoc& document, QWidget* parent);
    ~CMyDialogBar() override;

    /// Keeps the slider, whatever repaints it, from writing to the record.
    void Freeze(bool frozen);

private:
    void Show(const std::optional<SliderState>& state);

    COrrevaDoc& m_document;
    std::unique_ptr<Ui::MyDialogBar> m_ui;
};
