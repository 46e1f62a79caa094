#include "look/PaintedView.h"

#include "texts/Vexel.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <mutex>

namespace vexel {

namespace {

// A painted view as assistive technologies read it: a chart, its name the
// widget's accessible name, its value the drawing's words.
class PaintedViewAccessible final : public QAccessibleWidget {
public:
    explicit PaintedViewAccessible(PaintedView* view)
        : QAccessibleWidget(view, QAccessible::Chart)
    {
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        const auto* view = static_cast<const PaintedView*>(widget());
        switch (kind) {
        case QAccessible::Value:
        case QAccessible::Description: return view->value();
        default: return QAccessibleWidget::text(kind);
        }
    }
};

QAccessibleInterface* paintedViews(const QString&, QObject* object)
{
    if (auto* view = dynamic_cast<PaintedView*>(object))
        return new PaintedViewAccessible(view);
    return nullptr;
}

} // namespace

PaintedView::PaintedView(const QString& name, QSize preferred, QWidget* parent)
    : QWidget(parent)
    , m_preferred(preferred)
{
    static std::once_flag factory;
    std::call_once(factory, [] { QAccessible::installFactory(paintedViews); });
    setAccessibleName(name);
    setMinimumHeight(preferred.height());
}

void PaintedView::setPreferred(QSize preferred)
{
    if (preferred == m_preferred)
        return;
    m_preferred = preferred;
    setMinimumHeight(preferred.height());
    updateGeometry();
}

void PaintedView::setDrawing(Drawing drawing, const QString& value, Hover hover)
{
    m_drawing = std::move(drawing);
    m_hover = std::move(hover);
    if (QString words = spoken(value); words != m_value) {
        m_value = std::move(words);
        if (QAccessible::isActive()) {
            QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
            QAccessible::updateAccessibility(&changed);
        }
    }
    update();
}

void PaintedView::paintEvent(QPaintEvent*)
{
    if (!m_drawing)
        return;
    QPainter painter(this);
    m_drawing(painter, QRectF(rect()), palette());
}

QString PaintedView::valueAt(const QPointF& point) const
{
    return m_hover ? m_hover(point, QRectF(rect())) : QString();
}

bool PaintedView::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QString words = valueAt(help->pos());
    if (words.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(help->globalPos(), words, this);
    return true;
}

QString spoken(QString text)
{
    return text.replace(QStringLiteral("%"), Vexel::tr(" percent", "read out after a figure: 15 percent"));
}

} // namespace vexel
