#include "look/Labels.h"

#include <QLabel>

namespace vexel::Look {

QLabel* centredNote(const QString& text, Appearance appearance, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setFont(font(13));
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, secondaryText(appearance));
    label->setPalette(palette);
    return label;
}

} // namespace vexel::Look
