#pragma once

#include <QSplitter>

/// The two panes beside one another. A thin frame around one of them, outside of its picture, tells that it
/// is the active one. In a window that becomes too narrow for both the left pane gives way first, and has its
/// width back in a wider one.
class CPaneSplitter : public QSplitter {
    Q_OBJECT

public:
    /// The left pane's width, and the width that the right one keeps as long as it can.
    CPaneSplitter(int leftWidth, int leastRight, QWidget* parent);

    void ShowActive(const QWidget* pane);
    const QWidget* Active() const { return m_active; }

    /// Paints what of the frame lies in a child of the splitter.
    void PaintFrame(QWidget& on) const;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    QSplitterHandle* createHandle() override;

private:
    void Share();
    void KeepShares();

    int m_leftWidth;
    int m_leastRight;
    const QWidget* m_active = nullptr;
};
