#pragma once

#include "drawing/paper/Paper.h"

#include <QWidget>

/// The pages of a document beside and below one another, in rows as wide as the widget.
class CPaperPreview : public QWidget {
    Q_OBJECT

public:
    explicit CPaperPreview(QWidget* parent = nullptr);

    void ShowDocument(PaperDocument document);
    /// Per cent of the pages' true size.
    void SetScale(int percent);

    int heightForWidth(int width) const override;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    double PixelsPerMm() const;
    std::vector<QRectF> PlacesIn(double width) const;
    void FollowContent();

    PaperDocument m_document;
    int m_percent = 40;
};
