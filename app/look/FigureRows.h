#pragma once

#include <QWidget>

#include <utility>
#include <vector>

class QGridLayout;
class QLabel;

namespace vexel {

// Rows of a name at the left and its figure at the right ("Wired  3.1 GB").
class FigureRows final : public QWidget {
public:
    using Rows = std::vector<std::pair<QString, QString>>;

    explicit FigureRows(QWidget* parent);

    void setRows(const Rows& rows);
    // "Wired  3.1 GB" per shown row.
    [[nodiscard]] QStringList rows() const;

private:
    QGridLayout* m_grid = nullptr;
    std::vector<std::pair<QLabel*, QLabel*>> m_labels;
};

} // namespace vexel
