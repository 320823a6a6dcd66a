#pragma once

#include "drawing/VariationChart.h"
#include "model/record/TelescopeFields.h"

#include <QDialog>

#include <array>

class CChartView;
class CVariationRun;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QSpinBox;

/// What a parameter does: curves of up to four values over a range of it, in a window beside the workbench
/// that follows the present design. The curves are computed aside, with their progress shown.
class CVariationWindow : public QDialog {
    Q_OBJECT

public:
    explicit CVariationWindow(QWidget* parent);
    ~CVariationWindow() override;

    /// The present design.
    void ShowPresent(const TelescopeFields& fields);

signals:
    /// The user chose a place on the curve of a parameter.
    void TrialWanted(const RecordField* field, double value);
    /// The user wants these bytes in a file.
    void FileMade(const QString& path, const QByteArray& bytes);

private:
    static constexpr std::size_t kMostValues = 4;

    void MakeFields();
    void MakeButtons();
    void ProposeRange();
    /// Computes anew; nothing while a field of the range holds no number.
    void Restart();
    void Take(const std::vector<double>& table);
    void Choose(double x);
    void ExportTable();
    void ExportPicture();
    const RecordField* Parameter() const;
    std::vector<const DesignValue*> Values() const;

    TelescopeFields m_present{};
    bool m_hasPresent = false;
    VariationCurves m_next;   ///< of the run that goes on
    VariationCurves m_curves; ///< those that are shown
    CVariationRun* m_run;
    CChartView* m_chart;
    QComboBox* m_parameter;
    QLineEdit* m_from;
    QLineEdit* m_to;
    QSpinBox* m_points;
    std::array<QComboBox*, kMostValues> m_values{};
    QLabel* m_told;
    QProgressBar* m_progress;
    QPushButton* m_stop;
    QPushButton* m_table;
    QPushButton* m_picture;
};
