#pragma once

#include "pages/Page.h"

class QLabel;

namespace vexel {

class FigureRows;
class PaintedView;
class TopApps;

// Disk: read and write rates with their traces, each volume's free space,
// and the apps reading and writing most.
class DiskPage final : public Page {
public:
    explicit DiskPage(QWidget* parent);

    void showModel(const AppModel& model) override;
    [[nodiscard]] unsigned shows() const override;

    [[nodiscard]] QString ratesText() const;
    [[nodiscard]] QStringList volumes() const;

private:
    QLabel* m_rates = nullptr;
    PaintedView* m_readTrace = nullptr;
    PaintedView* m_writeTrace = nullptr;
    FigureRows* m_volumes = nullptr;
    QLabel* m_noVolumes = nullptr;
    TopApps* m_top = nullptr;
};

} // namespace vexel
