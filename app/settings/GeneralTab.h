#pragma once

#include "settings/SettingsTab.h"

class QCheckBox;
class QLabel;
class QRadioButton;

namespace vexel {

class ChoiceBox;

// General: how often the machine is read while the window is closed, the
// CPU scale, network rates in bits, and opening Vexel at login.
class GeneralTab final : public SettingsTab {
public:
    explicit GeneralTab(QWidget* parent);

    void showModel(const AppModel& model) override;
    [[nodiscard]] unsigned shows() const override;

    [[nodiscard]] ChoiceBox* interval() const { return m_interval; }
    [[nodiscard]] QRadioButton* perCore() const { return m_perCore; }
    [[nodiscard]] QCheckBox* atLogin() const { return m_atLogin; }
    [[nodiscard]] QString loginError() const;

private:
    QLabel* m_intervalLabel = nullptr;
    QLabel* m_intervalNote = nullptr;
    ChoiceBox* m_interval = nullptr;
    QRadioButton* m_wholeMachine = nullptr;
    QRadioButton* m_perCore = nullptr;
    QCheckBox* m_bits = nullptr;
    QCheckBox* m_atLogin = nullptr;
    QLabel* m_loginError = nullptr;
};

} // namespace vexel
