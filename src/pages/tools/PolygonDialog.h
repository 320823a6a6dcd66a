#pragma once

#include <QDialog>

#include <cstdint>
#include <memory>
#include <string>

namespace Ui {
class PolygonDialog;
}

/// Cutting measures of a polygonal tube around a circular mirror, as labels of a drawing.
class CPolygonDialog : public QDialog {
    Q_OBJECT

public:
    explicit CPolygonDialog(QWidget* parent);
    ~CPolygonDialog() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void OnChange();
    void CopyValues();

    std::unique_ptr<Ui::PolygonDialog> m_ui;
    std::int32_t m_nType = -1; ///< row of the list
    std::string m_strDiameter;
    std::string m_strThickness;
};
