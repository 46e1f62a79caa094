#include "look/Labels.h"

#include <QLabel>

namespace vexel::Look {

namespace {

QLabel* secondary(const QString& text, QWidget* parent, double size)
{
    auto* label = new QLabel(text, parent);
    label->setWordWrap(true);
    label->setFont(font(size));
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

} // namespace

QLabel* centredNote(const QString& text, QWidget* parent)
{
    auto* label = secondary(text, parent, 13);
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

QLabel* explanation(const QString& text, QWidget* parent)
{
    return secondary(text, parent, 11);
}

} // namespace vexel::Look
