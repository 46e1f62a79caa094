#pragma once

#include <QWidget>

#include <functional>

namespace vexel {

// A widget that shows one of the house look's drawings (a trace, a bank of
// bars), so that pages lay drawings out without painting themselves.
class PaintedView final : public QWidget {
public:
    // Draws in the area with the colours of the palette the view is shown in.
    using Drawing = std::function<void(QPainter&, const QRectF&, const QPalette&)>;

    PaintedView(QSize preferred, QWidget* parent);

    void setDrawing(Drawing drawing);
    // Shows one of the house look's drawings (anything with paint(painter, area, palette)).
    template <typename Drawable> void draw(Drawable drawable)
    {
        setDrawing([drawable = std::move(drawable)](QPainter& painter, const QRectF& area, const QPalette& palette) {
            drawable.paint(painter, area, palette);
        });
    }
    [[nodiscard]] QSize sizeHint() const override { return m_preferred; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize m_preferred;
    Drawing m_drawing;
};

} // namespace vexel
