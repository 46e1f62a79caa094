#include "pages/Page.h"

#include "look/Labels.h"
#include "model/AppModel.h"
#include "texts/Vexel.h"

#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

namespace vexel {

Page::Page(QWidget* parent)
    : QWidget(parent)
{
}

void Page::present(const AppModel& model)
{
    const bool waiting = !model.frame() && waitsForFrames();
    if (waiting && m_waiting == nullptr) {
        m_waiting = Look::centredNote(Vexel::tr("Taking the first reading…"), this);
        m_waiting->setAutoFillBackground(true);
        m_waiting->setGeometry(rect());
    }
    if (m_waiting != nullptr) {
        m_waiting->setVisible(waiting);
        m_waiting->raise();
    }
    showModel(model);
}

bool Page::waitingShown() const
{
    return m_waiting != nullptr && !m_waiting->isHidden();
}

bool Page::waitsForFrames() const
{
    return (shows() & AppModel::frameChanged) != 0;
}

void Page::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_waiting != nullptr)
        m_waiting->setGeometry(rect());
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
