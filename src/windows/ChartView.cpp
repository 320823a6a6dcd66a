#include "windows/ChartView.h"

#include "painting/PainterSurface.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

CChartView::CChartView(QWidget* parent) : QWidget(parent)
{
    setMinimumSize(320, 200);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
}

bool CChartView::IsDark() const { return palette().color(QPalette::Base).lightness() < 128; }

void CChartView::ShowChart(Chart chart)
{
    m_chart = std::move(chart);
    update();
}

void CChartView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    PainterSurface surface(painter, width(), height());
    const ChartColours& colours = IsDark() ? kDarkChart : kLightChart;
    PaintChart(surface, m_chart, colours);
    const ChartPlot plot = PlotOf(m_chart, width(), height());
    if (m_pointer && !plot.IsEmpty()) {
        const int x = qRound(plot.PixelOf({*m_pointer, plot.left.from}).x);
        surface.Line({x, plot.rect.top}, {x, plot.rect.bottom - 1}, colours.frame);
    }
}

void CChartView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange) {
        emit GroundChanged();
    }
    QWidget::changeEvent(event);
}

void CChartView::MovePointer(std::optional<double> x)
{
    if (x == m_pointer) {
        return;
    }
    m_pointer = x;
    update();
    if (x) {
        emit Pointed(*x);
    } else {
        emit PointerGone();
    }
}

void CChartView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint place = event->position().toPoint();
    const ChartPlot plot = PlotOf(m_chart, width(), height());
    MovePointer(plot.Has({place.x(), place.y()}) ? std::optional(plot.PlaceOf({place.x(), place.y()}).x)
                                                 : std::nullopt);
}

void CChartView::leaveEvent(QEvent*) { MovePointer(std::nullopt); }

void CChartView::keyPressEvent(QKeyEvent* event)
{
    const ChartRange range = PlotOf(m_chart, width(), height()).x;
    const double step = (range.to - range.from) / (event->modifiers() & Qt::ControlModifier ? 20 : 200);
    const double from = m_pointer.value_or(range.from);
    switch (event->key()) {
    case Qt::Key_Left:
        MovePointer(std::max(from - step, range.from));
        break;
    case Qt::Key_Right:
        MovePointer(std::min(from + step, range.to));
        break;
    case Qt::Key_Home:
        MovePointer(range.from);
        break;
    case Qt::Key_End:
        MovePointer(range.to);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_pointer) {
            emit Clicked(*m_pointer);
        }
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void CChartView::mousePressEvent(QMouseEvent* event)
{
    const QPoint place = event->position().toPoint();
    const ChartPlot plot = PlotOf(m_chart, width(), height());
    if (event->button() == Qt::LeftButton && plot.Has({place.x(), place.y()})) {
        const auto at = plot.PlaceOf({place.x(), place.y()});
        emit Clicked(at.x);
        emit ClickedAt(at.x, at.y);
    }
}

#include "moc_ChartView.cpp"
