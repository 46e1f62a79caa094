#pragma once

#include "pages/Page.h"

class QLabel;

namespace vexel {

class PaintedView;
class TopApps;

// CPU: the whole machine's use and its trace, the bank of cores, the load
// averages against the core count, the scale in use and the busiest apps.
class CpuPage final : public Page {
public:
    explicit CpuPage(QWidget* parent);

    void showModel(const AppModel& model) override;
    [[nodiscard]] unsigned shows() const override;

    [[nodiscard]] QString totalText() const;
    [[nodiscard]] QString loadNote() const;
    [[nodiscard]] QString scaleText() const;
    [[nodiscard]] QStringList topRows() const;

private:
    QLabel* m_total = nullptr;
    QLabel* m_split = nullptr;
    PaintedView* m_trace = nullptr;
    QLabel* m_traceCaption = nullptr;
    QLabel* m_coresCaption = nullptr;
    PaintedView* m_cores = nullptr;
    QLabel* m_load = nullptr;
    QLabel* m_loadNote = nullptr;
    QLabel* m_scale = nullptr;
    TopApps* m_top = nullptr;
};

} // namespace vexel
