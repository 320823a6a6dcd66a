#pragma once

#include "pages/sheet/TelescopePage.h"

/// A telescope page with the wanted field in mm and, following it, in degrees. Several pages have it: a page
/// that comes to the front reads it again from the record, and nothing else.
class CWantedFieldPage : public CTelescopePage {
    Q_OBJECT

public:
    using CTelescopePage::CTelescopePage;

    void OnSetActive() override;

protected:
    /// Shows the record's field and follows it from then on. To be called before a page binds other data: its
    /// list rests on the degrees.
    void BindWantedField(QLineEdit* millimetres, QLineEdit* degrees, QAbstractButton* reset);

private:
    void ShowWantedField(const std::string& text);
    void ShowDegrees();

    QLineEdit* m_wantedField = nullptr;
    QLineEdit* m_wantedDegrees = nullptr;
};
