#include "look/Buttons.h"

#include "look/FollowAppearance.h"

#include <QPushButton>

namespace vexel::Look {

QPushButton* button(const QString& text, QWidget* parent)
{
    return new QPushButton(text, parent);
}

QPushButton* destructiveButton(const QString& text, QWidget* parent)
{
    auto* made = button(text, parent);
    keepColour(made, QPalette::ButtonText, destructive);
    return made;
}

} // namespace vexel::Look
