#pragma once

#include "model/analysis/Values.h"

#include <QWidget>

#include <memory>

/// Two telescopes from the side, beside one another and at one scale.
class CSectionPair : public QWidget {
    Q_OBJECT

public:
    explicit CSectionPair(QWidget* parent = nullptr);

    void ShowDesigns(const TelescopeFields& left, const TelescopeFields& right);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize HalfSize() const;

    std::unique_ptr<DesignCopy> m_designs[2];
};
