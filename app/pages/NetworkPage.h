#pragma once

#include "pages/Page.h"

class QLabel;

namespace vexel {

class PaintedView;
class TopApps;

// Network: download and upload rates with their traces, and the apps
// moving most, in bytes or bits as the settings ask.
class NetworkPage final : public Page {
public:
    explicit NetworkPage(QWidget* parent);

    void showModel(const AppModel& model) override;
    [[nodiscard]] unsigned shows() const override;

    [[nodiscard]] QString ratesText() const;

private:
    QLabel* m_rates = nullptr;
    PaintedView* m_inTrace = nullptr;
    PaintedView* m_outTrace = nullptr;
    TopApps* m_top = nullptr;
};

} // namespace vexel
