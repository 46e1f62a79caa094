#pragma once

#include "settings/SettingsTab.h"

class QLabel;

namespace vexel {

class ChoiceBox;

// Alerts: where readings turn amber, and what counts as a spike in History.
class AlertsTab final : public SettingsTab {
public:
    explicit AlertsTab(QWidget* parent);

    void showModel(const AppModel& model) override;

    [[nodiscard]] ChoiceBox* diskAmber() const { return m_diskAmber; }
    [[nodiscard]] ChoiceBox* batteryAmber() const { return m_batteryAmber; }

private:
    QLabel* m_amberNote = nullptr;
    ChoiceBox* m_diskAmber = nullptr;
    ChoiceBox* m_batteryAmber = nullptr;
    ChoiceBox* m_batteryFalling = nullptr;
    ChoiceBox* m_cpuSpike = nullptr;
    ChoiceBox* m_cpuMinutes = nullptr;
    ChoiceBox* m_diskSpike = nullptr;
    ChoiceBox* m_netSpike = nullptr;
};

} // namespace vexel
