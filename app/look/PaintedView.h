#pragma once

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
    [[nodiscard]] QSize sizeHint() const override { return m_preferred; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize m_preferred;
    Drawing m_drawing;
};

} // namespace vexel
