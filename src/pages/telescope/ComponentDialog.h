#pragma once

#include <QDialog>

#include <cstddef>
#include <memory>

class COrrevaData;

namespace Ui {
class ComponentDialog;
}

/// Weight and balance position of one component. OK writes both to the record; a reset button writes at once,
/// so that its default stays after Cancel.
class CComponentDialog : public QDialog {
    Q_OBJECT

public:
    /// `component` counts the rows of the balance list, from 1 to 8.
    CComponentDialog(COrrevaData& record, std::size_t component, QWidget* parent);
    ~CComponentDialog() override;

    void accept() override;

private:
    std::unique_ptr<Ui::ComponentDialog> m_ui;
    COrrevaData& m_record;
    const std::size_t m_component;
};
