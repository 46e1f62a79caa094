#pragma once

#include "Appearance.h"

#include <QWidget>

#include <functional>

namespace vexel {

// A widget that shows one of the house look's drawings (a trace, a bank of
// bars), so that pages lay drawings out without painting themselves.
class PaintedView final : public QWidget {
public:
    using Drawing = std::function<void(QPainter&, const QRectF&)>;

    PaintedView(QSize preferred, QWidget* parent);

    void setDrawing(Drawing drawing);
    // Shows one of the house look's drawings (anything with paint(painter, area, appearance)).
    template <typename Drawable> void draw(Drawable drawable, Appearance appearance)
    {
        setDrawing([drawable = std::move(drawable), appearance](
                       QPainter& painter, const QRectF& area) { drawable.paint(painter, area, appearance); });
    }
    [[nodiscard]] QSize sizeHint() const override { return m_preferred; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize m_preferred;
    Drawing m_drawing;
};

} // namespace vexel
