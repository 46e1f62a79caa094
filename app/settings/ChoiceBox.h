#pragma once

#include <QComboBox>

#include <utility>
#include <vector>

namespace vexel {

// A drop-down of named values ("5 seconds" = 5). A value that is none of
// the choices (a hand-edited settings file) shows as the nearest one.
class ChoiceBox final : public QComboBox {
public:
    using Choices = std::vector<std::pair<QString, double>>;

    ChoiceBox(const Choices& choices, QWidget* parent);

    void select(double value);
    [[nodiscard]] double value() const;

private:
    Choices m_choices;
};

} // namespace vexel
