#pragma once

#include "pages/Page.h"

class QLabel;

namespace vexel {

class PaintedView;

// GPU: the whole GPU's use and its trace where the driver reports it, and
// otherwise the sentence that says it doesn't; why there is no GPU per app.
class GpuPage final : public Page {
public:
    explicit GpuPage(QWidget* parent);

    void showModel(const AppModel& model) override;
    [[nodiscard]] unsigned shows() const override;

    [[nodiscard]] bool showsChart() const;
    [[nodiscard]] QString unavailableText() const;

private:
    QLabel* m_use = nullptr;
    QLabel* m_name = nullptr;
    PaintedView* m_trace = nullptr;
    QLabel* m_traceCaption = nullptr;
    QLabel* m_unavailable = nullptr;
    QLabel* m_perApp = nullptr;
    QLabel* m_neuralEngine = nullptr;
};

} // namespace vexel
