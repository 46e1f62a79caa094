#pragma once

#include <QWidget>

class QLabel;

namespace vexel {

class AppModel;
class FigureRows;

// The whole machine in a few rows, where the Apps page's inspector stands
// while no app is selected: how many apps and processes, and what they use
// together.
class MachineSummary final : public QWidget {
public:
    explicit MachineSummary(QWidget* parent);

    void showModel(const AppModel& model);
    // "Apps  42" per row, for tests.
    [[nodiscard]] QStringList rows() const;

private:
    QLabel* m_heading = nullptr;
    FigureRows* m_rows = nullptr;
};

} // namespace vexel
