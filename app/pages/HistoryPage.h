#pragma once

#include "pages/Page.h"

#include <vector>

class QButtonGroup;
class QLabel;
class QStackedWidget;

namespace vexel {

class FigureRows;
class PaintedView;

// History: the range picker, a chart per reading with its legend, the
// spikes found with the app most responsible, and each app's core time;
// every empty state says which kind of empty it is.
class HistoryPage final : public Page {
public:
    explicit HistoryPage(QWidget* parent);

    void showModel(const AppModel& model) override;
    [[nodiscard]] unsigned shows() const override;

    // The heading and note of the empty state shown, or empty when charts show.
    [[nodiscard]] QStringList emptyState() const;
    [[nodiscard]] QStringList spikeRows() const;
    [[nodiscard]] QStringList coreTimeRows() const;
    [[nodiscard]] int chartCount() const;
    // Picks a range as the range buttons do.
    void pick(int index);

private:
    void showEmpty(const QString& heading, const QString& note);
    void showCharts(const AppModel& model);
    void showSpikes(const AppModel& model);

    QButtonGroup* m_ranges = nullptr;
    QStackedWidget* m_body = nullptr;
    QLabel* m_emptyHeading = nullptr;
    QLabel* m_emptyNote = nullptr;
    QWidget* m_charts = nullptr;
    std::vector<PaintedView*> m_chartViews;
    QLabel* m_gapNote = nullptr;
    FigureRows* m_spikes = nullptr;
    QLabel* m_noSpikes = nullptr;
    FigureRows* m_coreTime = nullptr;
};

} // namespace vexel
