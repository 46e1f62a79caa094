#pragma once

#include "settings/SettingsTab.h"

#include <vector>

class QGridLayout;
class QLabel;

namespace vexel {

// Panel: the readings placed in the desktop panel, in order; each can be
// switched on or off, shown as a value, a graph or both, and moved by
// dragging its grip or with its arrows; "Restore Defaults" brings back the
// first-run set.
class PanelTab final : public SettingsTab {
public:
    explicit PanelTab(QWidget* parent);

    void showModel(const AppModel& model) override;

    // Moves item `index` one place up (-1) or down (+1), as its arrows do.
    void move(size_t index, int step);
    // Moves item `from` to place `to`, the others closing up, as a drag does.
    void place(size_t from, size_t to);
    // The kind of data a dragged row carries: its index.
    static constexpr const char* rowMime = "application/x-vexel-panel-row";
    void restoreDefaults();
    // "CPU on, Both" per item, in order: what the tab shows.
    [[nodiscard]] QStringList rows() const;

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    // The row under a point of the tab: the nearest one above or below the list.
    [[nodiscard]] size_t rowAt(QPoint point) const;

    QLabel* m_heading = nullptr;
    QLabel* m_note = nullptr;
    QLabel* m_keeps = nullptr;
    QGridLayout* m_grid = nullptr;
    static constexpr size_t cellsPerRow = 5; // grip, switch, style, up, down
    std::vector<QWidget*> m_cells;
    QStringList m_rows;
};

} // namespace vexel
