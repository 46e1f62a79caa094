#pragma once

#include "Appearance.h"
#include "look/Dial.h"

#include <QWidget>

#include <array>

class QLabel;
class QVBoxLayout;

namespace vexel {

class AppModel;
class PaintedView;

// The Overview: dials for CPU, memory, disk, network, GPU and power in their
// strain's colours; today's totals, today's CPU trace and the week strip;
// the busiest apps. Before the first frame it says that the first reading is
// being taken.
class OverviewPage final : public QWidget {
public:
    OverviewPage(Appearance appearance, QWidget* parent);

    // Shows what the model holds now.
    void showModel(const AppModel& model);

    // The dials as shown, CPU first.
    [[nodiscard]] const std::array<Dial, 6>& dials() const { return m_shown; }
    // The busiest apps' rows as shown ("Google Chrome  12%").
    [[nodiscard]] QStringList busiestRows() const;
    [[nodiscard]] bool waitingForFirstReading() const;
    // Today's totals as shown; empty until the history has been read.
    [[nodiscard]] QString todayText() const;

private:
    void showToday(const AppModel& model);

    Appearance m_appearance;
    QLabel* m_waiting = nullptr;
    QWidget* m_content = nullptr;
    std::array<PaintedView*, 6> m_dials{};
    std::array<Dial, 6> m_shown;
    QLabel* m_today = nullptr;
    PaintedView* m_todayTrace = nullptr;
    PaintedView* m_week = nullptr;
    QVBoxLayout* m_busiest = nullptr;
    std::vector<QLabel*> m_rows;
};

} // namespace vexel
