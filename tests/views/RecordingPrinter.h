#pragma once

#include <QPaintEngine>
#include <QPrintEngine>
#include <QPrinter>
#include <QString>

#include <vector>

/// A printer without paper, of so many pixels a page at the screen's resolution, that keeps what is printed.
class RecordingPrinter : public QPrinter {
public:
    struct Text {
        QString text;
        int pixelSize;
    };

    explicit RecordingPrinter(QSize page) : m_job(page) { setEngines(&m_job, &m_paint); }

    const std::vector<Text>& Texts() const { return m_paint.texts; }
    const std::vector<QRectF>& Rects() const { return m_paint.rects; }

private:
    class Paint : public QPaintEngine {
    public:
        Paint() : QPaintEngine(QPaintEngine::AllFeatures) {}

        bool begin(QPaintDevice*) override { return true; }
        bool end() override { return true; }
        void updateState(const QPaintEngineState&) override {}
        void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
        void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
        void drawRects(const QRectF* drawn, int count) override
        {
            rects.insert(rects.end(), drawn, drawn + count);
        }
        void drawRects(const QRect* drawn, int count) override
        {
            rects.insert(rects.end(), drawn, drawn + count);
        }
        void drawTextItem(const QPointF&, const QTextItem& item) override
        {
            texts.push_back({item.text(), item.font().pixelSize()});
        }
        Type type() const override { return QPaintEngine::User; }

        std::vector<Text> texts;
        std::vector<QRectF> rects;
    };

    class Job : public QPrintEngine {
    public:
        explicit Job(QSize size) : m_size(size) {}

        void setProperty(PrintEnginePropertyKey, const QVariant&) override {}
        QVariant property(PrintEnginePropertyKey) const override { return {}; }
        bool newPage() override { return true; }
        bool abort() override { return true; }
        QPrinter::PrinterState printerState() const override { return QPrinter::Idle; }
        int metric(QPaintDevice::PaintDeviceMetric wanted) const override
        {
            constexpr int kDotsPerInch = 96;
            switch (wanted) {
            case QPaintDevice::PdmWidth:
                return m_size.width();
            case QPaintDevice::PdmHeight:
                return m_size.height();
            case QPaintDevice::PdmDevicePixelRatio:
                return 1;
            case QPaintDevice::PdmDevicePixelRatioScaled:
                return static_cast<int>(QPaintDevice::devicePixelRatioFScale());
            default:
                return kDotsPerInch;
            }
        }

    private:
        QSize m_size;
    };

    Job m_job;
    Paint m_paint;
};
