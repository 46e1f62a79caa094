#include "look/Labels.h"

#include <QLabel>

namespace vexel::Look {

namespace {

QLabel* secondary(const QString& text, Appearance appearance, QWidget* parent, double size)
{
    auto* label = new QLabel(text, parent);
    label->setWordWrap(true);
    label->setFont(font(size));
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, secondaryText(appearance));
    label->setPalette(palette);
    return label;
}

} // namespace

QLabel* centredNote(const QString& text, Appearance appearance, QWidget* parent)
{
    auto* label = secondary(text, appearance, parent, 13);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

QLabel* pageTitle(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setFont(font(17, QFont::DemiBold));
    return label;
}

QLabel* heading(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setFont(font(13, QFont::DemiBold));
    return label;
}

QLabel* figure(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setFont(font(22, QFont::DemiBold));
    return label;
}

QLabel* line(QWidget* parent, const QString& text)
{
    auto* label = new QLabel(text, parent);
    label->setFont(font(12));
    label->setWordWrap(true);
    return label;
}

QLabel* explanation(const QString& text, Appearance appearance, QWidget* parent)
{
    return secondary(text, appearance, parent, 11);
}

} // namespace vexel::Look
