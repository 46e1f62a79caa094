#include "look/Buttons.h"

#include <QPushButton>

namespace vexel::Look {

QPushButton* button(const QString& text, QWidget* parent)
{
    auto* button = new QPushButton(text, parent);
    button->setFont(font(12));
    return button;
}

QPushButton* destructiveButton(const QString& text, Appearance appearance, QWidget* parent)
{
    auto* made = button(text, parent);
    QPalette palette = made->palette();
    palette.setColor(QPalette::ButtonText, destructive(appearance));
    made->setPalette(palette);
    return made;
}

} // namespace vexel::Look
