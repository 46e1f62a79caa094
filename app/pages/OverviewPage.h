#pragma once

#include "Appearance.h"

#include <QWidget>

#include <array>

class QLabel;
class QVBoxLayout;

namespace vexel {

class AppModel;
class DialView;

// The Overview: dials for CPU, memory, disk, network, GPU and power in their
// strain's colours, and the busiest apps. Before the first frame it says
// that the first reading is being taken.
class OverviewPage final : public QWidget {
public:
    OverviewPage(Appearance appearance, QWidget* parent);

    // Shows what the model holds now.
    void showModel(const AppModel& model);

    [[nodiscard]] const std::array<DialView*, 6>& dials() const { return m_dials; }
    // The busiest apps' rows as shown ("Google Chrome  12%").
    [[nodiscard]] QStringList busiestRows() const;
    [[nodiscard]] bool waitingForFirstReading() const;

private:
    QLabel* m_waiting = nullptr;
    QWidget* m_content = nullptr;
    std::array<DialView*, 6> m_dials{};
    QVBoxLayout* m_busiest = nullptr;
    std::vector<QLabel*> m_rows;
};

} // namespace vexel
