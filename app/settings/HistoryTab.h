#pragma once

#include "settings/SettingsTab.h"

class QLabel;

namespace vexel {

class ChoiceBox;

// History: how long it is kept, how large the file may grow, its size now,
// and erasing it (asked first).
class HistoryTab final : public SettingsTab {
public:
    explicit HistoryTab(QWidget* parent);

    void showModel(const AppModel& model) override;
    [[nodiscard]] unsigned shows() const override;

    [[nodiscard]] ChoiceBox* keep() const { return m_keep; }
    [[nodiscard]] QString sizeText() const;
    void erase();

private:
    ChoiceBox* m_keep = nullptr;
    ChoiceBox* m_cap = nullptr;
    QLabel* m_size = nullptr;
};

} // namespace vexel
