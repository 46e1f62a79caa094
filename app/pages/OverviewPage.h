#pragma once

#include "look/Dial.h"
#include "pages/Page.h"

#include <array>

class QLabel;
class QVBoxLayout;

namespace vexel {

class AppModel;
class PaintedView;
class TopApps;

// The Overview: dials for CPU, memory, disk, network, GPU and power in their
// strain's colours; today's totals, today's CPU trace and the week strip;
// the busiest apps. Before the first frame it says that the first reading is
// being taken.
class OverviewPage final : public Page {
public:
    explicit OverviewPage(QWidget* parent);

    void showModel(const AppModel& model) override;
    [[nodiscard]] unsigned shows() const override;

    // The dials as shown, CPU first.
    [[nodiscard]] const std::array<Dial, 6>& dials() const { return m_shown; }
    // The busiest apps' rows as shown ("Google Chrome  12%").
    [[nodiscard]] QStringList busiestRows() const;
    // Today's totals as shown; empty until the history has been read.
    [[nodiscard]] QString todayText() const;
    // The "While you were away" card's lines, empty when it is not shown.
    [[nodiscard]] QStringList awayLines() const;
    // "From Tue 19:06 to Wed 11:06": the time away the card covers.
    [[nodiscard]] QString awaySpan() const;
    void dismissAway();

private:
    void showToday(const AppModel& model);
    void showAway(const AppModel& model);
    QWidget* buildAwayCard();

    QWidget* m_content = nullptr;
    std::array<PaintedView*, 6> m_dials{};
    std::array<Dial, 6> m_shown;
    QLabel* m_today = nullptr;
    PaintedView* m_todayTrace = nullptr;
    PaintedView* m_week = nullptr;
    TopApps* m_busiest = nullptr;
    QWidget* m_away = nullptr;
    QLabel* m_awayTitle = nullptr;
    QLabel* m_awaySpan = nullptr;
    QLabel* m_awayLines = nullptr;
};

} // namespace vexel
