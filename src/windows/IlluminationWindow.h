#pragma once

#include "drawing/IlluminationPicture.h"
#include "model/analysis/SecondaryChoice.h"

#include <QDialog>

#include <vector>

class CChartView;
class CResultList;
class QLabel;
class QPainter;
class QPushButton;
class QTableWidget;

/// The exact light over the field of a telescope, with what the standard secondaries around its own would
/// give, in a window beside the workbench. It is told each new state.
class CIlluminationWindow : public QDialog {
    Q_OBJECT

public:
    /// `eyepieces` is the user's list; its field stops are marked.
    CIlluminationWindow(std::vector<Eyepiece> eyepieces, QWidget* parent);

    /// `wanted` is the wanted field in mm, `title` that of the design.
    void ShowDesign(const IlluminationStops& stops, double wanted, const QString& title);
    /// No telescope is loaded.
    void ShowNothing();

signals:
    /// The user wants to try a standard minor axis, mm.
    void MinorAxisWanted(double minorAxis);
    /// The user wants these bytes in a file.
    void FileMade(const QString& path, const QByteArray& bytes);

private:
    void MakeCharts();
    void MakeButtons();
    void Refresh();
    void ListAxes();
    void RefreshChoices();
    void RefreshPoints();
    void ReadOut(double field);
    void Choose(int row);
    /// The secondary whose curve runs nearest to a place.
    void ChooseNearest(double field, double percent);
    void Print();
    void Save();
    /// Both charts on paper, one above the other.
    void PaintPage(QPainter& painter, QSize size) const;

    std::vector<Eyepiece> m_eyepieces;
    IlluminationStops m_stops;
    double m_wanted = 0;
    QString m_title;
    std::vector<double> m_listed;           ///< minor axes, from the smallest
    std::vector<SecondaryChoice> m_choices; ///< those of the table, one for each listed axis

    QLabel* m_reading;
    CChartView* m_curve;
    CChartView* m_axesCurves;
    QTableWidget* m_axes;
    CResultList* m_points;
    QPushButton* m_print;
    QPushButton* m_save;
};
