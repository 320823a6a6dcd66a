#pragma once

#include <QWidget>

class CHandCursorStatic;

/// The Info and help pictures, 1019 and 1020, at the left edge of a page.
class CHelpStrip : public QWidget {
    Q_OBJECT

public:
    static constexpr int kInfoControl = 1019;
    static constexpr int kHelpControl = 1020;

    explicit CHelpStrip(QWidget* parent = nullptr);

    /// Another number for the help picture; forms set it as a property.
    void setHelpControl(int controlId);

private:
    CHandCursorStatic* m_help;
};
