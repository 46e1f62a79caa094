#include "settings/ChoiceBox.h"

#include "look/Labels.h"

#include <cmath>

namespace vexel {

ChoiceBox::ChoiceBox(const Choices& choices, QWidget* parent)
    : QComboBox(parent)
    , m_choices(choices)
{
    setFont(Look::font(12));
    for (const auto& [name, value] : m_choices)
        addItem(name);
}

void ChoiceBox::select(double value)
{
    int nearest = 0;
    for (int i = 1; i < static_cast<int>(m_choices.size()); ++i)
        if (std::abs(m_choices[static_cast<size_t>(i)].second - value)
            < std::abs(m_choices[static_cast<size_t>(nearest)].second - value))
            nearest = i;
    setCurrentIndex(nearest);
}

double ChoiceBox::value() const
{
    const int index = currentIndex();
    return index >= 0 ? m_choices[static_cast<size_t>(index)].second : 0;
}

} // namespace vexel
