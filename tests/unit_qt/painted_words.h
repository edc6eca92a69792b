// What a widget writes on the screen.
#pragma once
#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QString>
#include <QTextItem>
#include <QWidget>
#include <set>

// The texts that a widget paints, and the pixels of the screen that their letters cover, from its upper left corner.
class Words : public QPaintDevice {
public:
    Words(QWidget& widget, QWidget::RenderFlags flags) : widget_(widget) { widget.render(this, {}, {}, flags); }

    QString Text() const { return text_; }          // without its blanks, as lines are broken there
    std::set<int> Sizes() const { return sizes_; }  // of its letters, in pixels of the screen
    bool IsInside() const { return Room().adjusted(-1, -1, 1, 1).contains(ink_); }

    QPaintEngine* paintEngine() const override { return &engine_; }

protected:
    int metric(PaintDeviceMetric metric) const override {
        switch (metric) {
            case PdmWidth:
                return widget_.width();
            case PdmHeight:
                return widget_.height();
            case PdmDevicePixelRatio:
                return static_cast<int>(widget_.devicePixelRatioF());
            case PdmDevicePixelRatioScaled:
                return static_cast<int>(widget_.devicePixelRatioF() * devicePixelRatioFScale());
            default:
                return widget_.logicalDpiX();  // in either direction, or a number that nobody asks for
        }
    }

private:
    QRectF Room() const { return {QPointF(), QSizeF(widget_.size()) * widget_.devicePixelRatioF()}; }

    class Engine : public QPaintEngine {
    public:
        explicit Engine(Words& words) : QPaintEngine(AllFeatures), words_(words) {}
        bool begin(QPaintDevice*) override { return true; }
        bool end() override { return true; }
        void updateState(const QPaintEngineState&) override {}
        void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
        void drawPath(const QPainterPath&) override {}
        void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
        Type type() const override { return User; }
        void drawTextItem(const QPointF& at, const QTextItem& item) override {
            const QRectF letters = QFontMetricsF(item.font()).tightBoundingRect(item.text()).translated(at);
            words_.text_ += QString(item.text()).remove(u' ');
            words_.sizes_.insert(item.font().pixelSize());
            words_.ink_ |= painter()->combinedTransform().mapRect(letters);
        }

    private:
        Words& words_;
    };

    QWidget& widget_;
    QString text_;
    std::set<int> sizes_;
    QRectF ink_;
    mutable Engine engine_{*this};
};
