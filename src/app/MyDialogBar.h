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

    /// Shows none in list and slider while nothing is under trial: a trial may have ended elsewhere.
    void Follow();
    /// Puts the parameter that `set` stores under trial at a value, the slider as near to it as it comes;
    /// false if it is none of the seven.
    bool TryValue(void (COrrevaData::*set)(double), double value);
    /// Keeps the slider, whatever repaints it, from writing to the record.
    void Freeze(bool frozen);

signals:
    /// The user did something: what other parts say of the trial may have changed.
    void Changed();

protected:
    /// Escape and Delete in the list end the trial.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Show(const std::optional<SliderState>& state);

    COrrevaDoc& m_document;
    std::unique_ptr<Ui::MyDialogBar> m_ui;
    bool m_shows = false; ///< a trial, at the last refresh
};
