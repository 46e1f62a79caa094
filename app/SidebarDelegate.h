#pragma once

#include "Appearance.h"

#include <QStyledItemDelegate>

namespace vexel {

// Draws one route of the sidebar: its title with room around it, and a
// rounded highlight behind the route in view.
class SidebarDelegate final : public QStyledItemDelegate {
public:
    explicit SidebarDelegate(QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
};

} // namespace vexel
