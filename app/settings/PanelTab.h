#pragma once

#include "settings/SettingsTab.h"

#include <vector>

class QGridLayout;
class QLabel;

namespace vexel {

// Panel: the readings placed in the desktop panel, in order; each can be
// switched on or off, shown as a value, a graph or both, and moved up or
// down; "Restore Defaults" brings back the first-run set.
class PanelTab final : public SettingsTab {
public:
    explicit PanelTab(QWidget* parent);

    void showModel(const AppModel& model) override;

    // Moves item `index` one place up (-1) or down (+1), as its arrows do.
    void move(size_t index, int step);
    void restoreDefaults();
    // "CPU on, Both" per item, in order: what the tab shows.
    [[nodiscard]] QStringList rows() const;

private:
    QLabel* m_heading = nullptr;
    QLabel* m_note = nullptr;
    QLabel* m_keeps = nullptr;
    QGridLayout* m_grid = nullptr;
    std::vector<QWidget*> m_cells;
    QStringList m_rows;
};

} // namespace vexel
