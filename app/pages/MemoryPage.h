#pragma once

#include "pages/Page.h"

class QLabel;

namespace vexel {

class FigureRows;
class PaintedView;
class TopApps;

// Memory: what is in use of the whole, the pressure and swap, what's in
// memory, and the apps with the largest footprints.
class MemoryPage final : public Page {
public:
    explicit MemoryPage(QWidget* parent);

    void showModel(const AppModel& model) override;
    [[nodiscard]] unsigned shows() const override;

    [[nodiscard]] QString usedText() const;
    [[nodiscard]] QStringList contents() const;

private:
    QLabel* m_used = nullptr;
    QLabel* m_pressure = nullptr;
    PaintedView* m_trace = nullptr;
    QLabel* m_traceCaption = nullptr;
    FigureRows* m_contents = nullptr;
    QLabel* m_note = nullptr;
    TopApps* m_top = nullptr;
};

} // namespace vexel
