#pragma once

#include <QLayout>
#include <QList>

namespace vexel {

// A row of buttons that wraps onto the next line when the window, or a
// longer language, leaves no room for all of them side by side, rather than
// pushing the last ones out of sight.
class FlowRow final : public QLayout {
public:
    explicit FlowRow(int spacing);
    FlowRow(const FlowRow&) = delete;
    FlowRow& operator=(const FlowRow&) = delete;
    ~FlowRow() override;

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override { return static_cast<int>(m_items.size()); }
    [[nodiscard]] QLayoutItem* itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem* takeAt(int index) override;

    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

private:
    // Places the items in `rect` (only measures with `place` false) and gives the height they take.
    int arrange(const QRect& rect, bool place) const;

    QList<QLayoutItem*> m_items;
    int m_gap;
};

} // namespace vexel
