#include "look/FollowAppearance.h"

#include <QEvent>
#include <QWidget>

namespace vexel::Look {

namespace {

// Watches its widget's palette changes; the colours a restyle sets leave the
// appearance as it is, so a restyle never calls itself again.
class AppearanceFollower final : public QObject {
public:
    AppearanceFollower(QWidget* widget, std::function<void(QWidget*, Appearance)> restyle)
        : QObject(widget)
        , m_widget(widget)
        , m_restyle(std::move(restyle))
        , m_shown(appearanceOf(widget->palette()))
    {
        m_restyle(m_widget, m_shown);
        widget->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == m_widget && event->type() == QEvent::PaletteChange) {
            if (const auto now = appearanceOf(m_widget->palette()); now != m_shown) {
                m_shown = now;
                m_restyle(m_widget, now);
            }
        }
        return false;
    }

private:
    QWidget* m_widget;
    std::function<void(QWidget*, Appearance)> m_restyle;
    Appearance m_shown;
};

} // namespace

void followAppearance(QWidget* widget, std::function<void(QWidget*, Appearance)> restyle)
{
    new AppearanceFollower(widget, std::move(restyle));
}

void keepColour(QWidget* widget, QPalette::ColorRole role, std::function<QColor(Appearance)> colour)
{
    followAppearance(widget, [role, colour = std::move(colour)](QWidget* target, Appearance appearance) {
        QPalette palette = target->palette();
        palette.setColor(role, colour(appearance));
        target->setPalette(palette);
    });
}

} // namespace vexel::Look
