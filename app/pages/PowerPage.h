#pragma once

#include "pages/Page.h"

class QLabel;

namespace vexel {

class FigureRows;
class PaintedView;
class TopApps;

// Power & Heat: the battery (or the sentence for mains power), the apps
// using most energy with how their figures were had, and the thermal scale.
class PowerPage final : public Page {
public:
    explicit PowerPage(QWidget* parent);

    void showModel(const AppModel& model) override;
    [[nodiscard]] unsigned shows() const override;

    [[nodiscard]] QString batteryText() const; // the charge, or the mains-power sentence
    [[nodiscard]] QStringList batteryRows() const;
    [[nodiscard]] QStringList energyRows() const;
    [[nodiscard]] QString thermalText() const;
    // "CPU · Tctl  62 °C", "Laptop · fan1  2960 rpm": what Linux's sensors say.
    [[nodiscard]] QStringList sensorRows() const;

private:
    void showBattery(const AppModel& model);
    void showSensors(const AppModel& model);

    QLabel* m_charge = nullptr;
    QLabel* m_state = nullptr;
    FigureRows* m_battery = nullptr;
    QLabel* m_capacityNote = nullptr;
    TopApps* m_energy = nullptr;
    QLabel* m_thermal = nullptr;
    PaintedView* m_scale = nullptr;
    QLabel* m_thermalNote = nullptr;
    FigureRows* m_sensors = nullptr;
    QLabel* m_noSensors = nullptr;
};

} // namespace vexel
