#include "pages/OverviewPage.h"

#include "format/Fmt.h"
#include "look/BarBank.h"
#include "look/Labels.h"
#include "look/PaintedView.h"
#include "look/Sparkline.h"
#include "model/AppModel.h"
#include "pages/OverviewFigures.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace vexel {

namespace {

constexpr size_t busiestCount = 5;

QLabel* heading(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setFont(Look::font(13, QFont::DemiBold));
    return label;
}

} // namespace

OverviewPage::OverviewPage(Appearance appearance, QWidget* parent)
    : QWidget(parent)
    , m_appearance(appearance)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 24, 28, 24);
    m_waiting = Look::centredNote(QStringLiteral("Taking the first reading…"), appearance, this);
    layout->addWidget(m_waiting, 1);

    m_content = new QWidget(this);
    auto* content = new QVBoxLayout(m_content);
    content->setContentsMargins(0, 0, 0, 0);
    content->setSpacing(14);
    content->addWidget(heading(QStringLiteral("Overview"), m_content));
    auto* grid = new QGridLayout;
    grid->setSpacing(8);
    for (size_t i = 0; i < m_dials.size(); ++i) {
        m_dials[i] = new PaintedView(QSize(132, 132), m_content);
        grid->addWidget(m_dials[i], static_cast<int>(i / 3), static_cast<int>(i % 3));
    }
    content->addLayout(grid);
    // Today on the left, the busiest apps on the right.
    auto* lower = new QHBoxLayout;
    lower->setSpacing(28);
    auto* today = new QVBoxLayout;
    today->setSpacing(6);
    today->addWidget(heading(QStringLiteral("Today"), m_content));
    m_today = new QLabel(m_content);
    m_today->setFont(Look::font(11));
    m_today->setWordWrap(true);
    today->addWidget(m_today);
    m_todayTrace = new PaintedView(QSize(300, 56), m_content);
    today->addWidget(m_todayTrace);
    m_week = new PaintedView(QSize(300, 40), m_content);
    today->addWidget(m_week);
    auto* weekCaption
        = Look::centredNote(QStringLiteral("Data moved each day this week, today at the right"), appearance, m_content);
    weekCaption->setFont(Look::font(10));
    weekCaption->setAlignment(Qt::AlignLeft);
    today->addWidget(weekCaption);
    today->addStretch(1);
    lower->addLayout(today, 3);
    auto* busiest = new QVBoxLayout;
    busiest->setSpacing(6);
    busiest->addWidget(heading(QStringLiteral("Busiest apps"), m_content));
    m_busiest = new QVBoxLayout;
    m_busiest->setSpacing(4);
    busiest->addLayout(m_busiest);
    busiest->addStretch(1);
    lower->addLayout(busiest, 2);
    content->addLayout(lower, 1);
    layout->addWidget(m_content, 1);
    m_content->hide();
}

void OverviewPage::showModel(const AppModel& model)
{
    const bool waiting = !model.frame;
    m_waiting->setVisible(waiting);
    m_content->setVisible(!waiting);
    if (waiting)
        return;
    m_shown = overviewDials(model);
    const Appearance appearance = m_appearance;
    for (size_t i = 0; i < m_shown.size(); ++i)
        m_dials[i]->setDrawing([dial = m_shown[i], appearance](QPainter& painter, const QRectF& area) {
            dial.paint(painter, area.adjusted(4, 4, -4, -4), appearance);
        });
    showToday(model);
    const auto apps = model.apps(AppSort::cpu, busiestCount);
    // The scale the settings ask for: a share of the whole machine, or of one core.
    const auto cores = model.settings.cpuScale == CPUScale::mac ? std::optional(model.cores) : std::nullopt;
    while (m_rows.size() < apps.size()) {
        m_rows.push_back(new QLabel(m_content));
        m_rows.back()->setFont(Look::font(12));
        m_busiest->addWidget(m_rows.back());
    }
    for (size_t i = 0; i < m_rows.size(); ++i) {
        m_rows[i]->setVisible(i < apps.size());
        if (i < apps.size())
            m_rows[i]->setText(QString::fromStdString(apps[i].name + "   " + Fmt::cpu(apps[i].cpu, cores)));
    }
}

void OverviewPage::showToday(const AppModel& model)
{
    m_today->setText(model.today ? todayLine(*model.today) : QString());
    Sparkline trace;
    for (const auto& point : model.todaySeries)
        trace.values.push_back(point.cpu);
    trace.strain = model.strain(MenuItemKind::cpu);
    const Appearance appearance = m_appearance;
    m_todayTrace->setDrawing(
        [trace, appearance](QPainter& painter, const QRectF& area) { trace.paint(painter, area, appearance); });
    const BarBank week{weekShares(model.week)};
    m_week->setDrawing(
        [week, appearance](QPainter& painter, const QRectF& area) { week.paint(painter, area, appearance); });
}

QString OverviewPage::todayText() const
{
    return m_today->text();
}

QStringList OverviewPage::busiestRows() const
{
    QStringList rows;
    for (const auto* row : m_rows)
        if (!row->isHidden())
            rows << row->text();
    return rows;
}

bool OverviewPage::waitingForFirstReading() const
{
    return !m_waiting->isHidden();
}

} // namespace vexel
