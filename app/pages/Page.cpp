#include "pages/Page.h"

#include "look/Labels.h"

#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

namespace vexel {

Page::Page(QWidget* parent)
    : QWidget(parent)
{
}

QVBoxLayout* Page::scrollingColumn(const QString& title)
{
    QWidget* content = nullptr;
    auto* column = scrollingColumn(&content);
    column->addWidget(Look::pageTitle(title, content));
    return column;
}

QVBoxLayout* Page::scrollingColumn(QWidget** holder)
{
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* content = new QWidget(scroll);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(28, 24, 28, 24);
    column->setSpacing(10);
    scroll->setWidget(content);
    outer->addWidget(scroll);
    if (holder != nullptr)
        *holder = content;
    return column;
}

} // namespace vexel
