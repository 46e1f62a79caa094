#pragma once

#include <QString>
#include <QWidget>

#include <functional>
#include <memory>

namespace vexel {

// A widget that shows one of the house look's drawings (a trace, a bank of
// bars), so that pages lay drawings out without painting themselves. To
// assistive technologies it is a chart with a name (what it shows) and a
// value (what it shows now, in words).
class PaintedView final : public QWidget {
public:
    // Draws in the area with the colours of the palette the view is shown in.
    using Drawing = std::function<void(QPainter&, const QRectF&, const QPalette&)>;
    // What the drawing shows under a point of the area, in words; nothing where it shows nothing.
    using Hover = std::function<QString(const QPointF&, const QRectF&)>;

    PaintedView(const QString& name, QSize preferred, QWidget* parent);

    // Shows a drawing, and what it shows now in words, as a whole and (as a
    // tool tip) under the pointer.
    void setDrawing(Drawing drawing, const QString& value, Hover hover = {});
    // Shows one of the house look's drawings (anything with
    // paint(painter, area, palette) and describe(), and perhaps describeAt(point, area)).
    template <typename Drawable> void draw(Drawable drawable)
    {
        // One copy, shared by the painting and the tool tip: a chart holds a range's readings.
        const auto shown = std::make_shared<const Drawable>(std::move(drawable));
        Hover hover;
        if constexpr (requires { shown->describeAt(QPointF(), QRectF()); })
            hover = [shown](const QPointF& point, const QRectF& area) { return shown->describeAt(point, area); };
        setDrawing([shown](QPainter& painter, const QRectF& area,
                       const QPalette& palette) { shown->paint(painter, area, palette); },
            shown->describe(), std::move(hover));
    }
    // What the drawing shows under `point`, as its tool tip says it.
    [[nodiscard]] QString valueAt(const QPointF& point) const;
    // What the drawing shows now, in words: "15 percent".
    [[nodiscard]] const QString& value() const { return m_value; }
    [[nodiscard]] QSize sizeHint() const override { return m_preferred; }
    // The size the view asks for, and the least height it takes.
    void setPreferred(QSize preferred);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    QSize m_preferred;
    Drawing m_drawing;
    Hover m_hover;
    QString m_value;
};

// A figure as it is read out: "%" says "percent".
[[nodiscard]] QString spoken(QString text);

} // namespace vexel
