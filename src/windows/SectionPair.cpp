#include "windows/SectionPair.h"

#include "drawing/SectionMapping.h"
#include "drawing/SectionPicture.h"
#include "painting/PainterSurface.h"

#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kGap = 6; // pixels between the two

} // namespace

CSectionPair::CSectionPair(QWidget* parent) : QWidget(parent)
{
    setMinimumSize(320, 120);
    ShowDesigns({}, {});
}

void CSectionPair::ShowDesigns(const TelescopeFields& left, const TelescopeFields& right)
{
    m_designs[0] = std::make_unique<DesignCopy>(left);
    m_designs[1] = std::make_unique<DesignCopy>(right);
    update();
}

QSize CSectionPair::HalfSize() const { return {(width() - kGap) / 2, height()}; }

void CSectionPair::paintEvent(QPaintEvent*)
{
    const Pixel half{HalfSize().width(), HalfSize().height()};
    double scale = HUGE_VAL;
    for (const auto& design : m_designs) {
        scale = std::min(scale, FitSection(design->State().record, half).scale);
    }
    if (!(std::isfinite(scale) && scale > 0)) {
        scale = 1; // a telescope without any size
    }
    QPainter window(this);
    int left = 0;
    for (const auto& design : m_designs) {
        QPixmap pixmap(HalfSize());
        if (pixmap.isNull()) {
            return;
        }
        QPainter painter(&pixmap);
        PainterSurface surface(painter, half.x, half.y);
        PaintSectionAtScale(surface, design->State().record, scale);
        painter.end();
        window.drawPixmap(left, 0, pixmap);
        left = width() - half.x;
    }
}

#include "moc_SectionPair.cpp"
