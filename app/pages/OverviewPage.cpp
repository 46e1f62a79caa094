#include "pages/OverviewPage.h"

#include "format/Fmt.h"
#include "look/BarBank.h"
#include "look/Buttons.h"
#include "look/FollowAppearance.h"
#include "look/Labels.h"
#include "look/PaintedView.h"
#include "model/AppModel.h"
#include "pages/OverviewFigures.h"
#include "pages/TimeTicks.h"
#include "pages/TopApps.h"
#include "texts/QtText.h"
#include "texts/Vexel.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace vexel {

namespace {

constexpr size_t busiestCount = 5;

constexpr int fullDial = 132;
constexpr int compactDial = 70;

} // namespace

OverviewPage::OverviewPage(QWidget* parent)
    : Page(parent)
{
    // Scrolls when the away card makes the page taller than the window.
    QWidget* inner = nullptr;
    auto* layout = scrollingColumn(&inner);
    m_content = new QWidget(inner);
    auto* content = new QVBoxLayout(m_content);
    content->setContentsMargins(0, 0, 0, 0);
    content->setSpacing(10);
    content->addWidget(Look::pageTitle(Vexel::tr("Overview"), m_content));
    m_away = buildAwayCard();
    content->addWidget(m_away);
    auto* grid = new QGridLayout;
    grid->setSpacing(8);
    for (size_t i = 0; i < m_dials.size(); ++i) {
        m_dials[i] = new PaintedView(QString(), QSize(fullDial, fullDial), m_content);
        grid->addWidget(m_dials[i], static_cast<int>(i / 3), static_cast<int>(i % 3));
    }
    content->addLayout(grid);
    // Today on the left, the busiest apps on the right.
    auto* lower = new QHBoxLayout;
    lower->setSpacing(28);
    auto* today = new QVBoxLayout;
    today->setSpacing(6);
    today->addWidget(Look::heading(Vexel::tr("Today"), m_content));
    m_today = new QLabel(m_content);
    m_today->setFont(Look::font(11));
    m_today->setWordWrap(true);
    today->addWidget(m_today);
    m_todayTrace = new PaintedView(Vexel::tr("CPU since midnight"), QSize(300, 68), m_content);
    today->addWidget(m_todayTrace);
    today->addWidget(Look::explanation(Vexel::tr("CPU since midnight"), m_content));
    m_week = new PaintedView(
        Vexel::tr("Data moved each day this week, as a share of the busiest day"), QSize(300, 46), m_content);
    today->addWidget(m_week);
    today->addWidget(Look::explanation(Vexel::tr("Data moved each day this week, today at the right"), m_content));
    today->addStretch(1);
    lower->addLayout(today, 3);
    auto* busiest = new QVBoxLayout;
    m_busiest = new TopApps(Vexel::tr("Busiest apps"), m_content);
    busiest->addWidget(m_busiest);
    busiest->addStretch(1);
    lower->addLayout(busiest, 2);
    content->addLayout(lower, 1);
    layout->addWidget(m_content, 1);
}

void OverviewPage::showModel(const AppModel& model)
{
    if (!model.frame())
        return; // "Taking the first reading…" covers the page

    m_shown = overviewDials(model);
    for (size_t i = 0; i < m_shown.size(); ++i) {
        m_dials[i]->setAccessibleName(m_shown[i].title);
        m_dials[i]->setDrawing(
            [dial = m_shown[i]](QPainter& painter, const QRectF& area, const QPalette& palette) {
                dial.paint(painter, area.adjusted(4, 4, -4, -4), palette);
            },
            m_shown[i].describe());
    }
    showToday(model);
    showAway(model);
    // The scale the settings ask for: a share of the whole machine, or of one core.
    const auto cores = model.cpuScaleCores();
    m_busiest->show(
        model, AppSort::cpu, busiestCount, [cores](const AppGroup& app) { return Fmt::cpu(app.cpu, cores); });
}

void OverviewPage::showToday(const AppModel& model)
{
    m_today->setText(model.today()
            ? todayLine(*model.today()).replace(QRegularExpression(QStringLiteral("\\s*·\\s*")), QStringLiteral("\n"))
            : QString());
    m_todayTrace->draw(todayChart(model));
    m_week->draw(weekBank(model.week(), model.zone));
}

QString OverviewPage::todayText() const
{
    return m_today->text().replace(QChar('\n'), QStringLiteral("  ·  "));
}

unsigned OverviewPage::shows() const
{
    return AppModel::frameChanged | AppModel::totalsChanged | AppModel::awayChanged | AppModel::settingsChanged;
}

QWidget* OverviewPage::buildAwayCard()
{
    auto* card = new QFrame(m_content);
    card->setFrameShape(QFrame::StyledPanel);
    card->setAutoFillBackground(true);
    Look::keepColour(card, QPalette::Window, Look::sidebar);
    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(14, 10, 14, 10);
    layout->setSpacing(4);
    auto* top = new QHBoxLayout;
    m_awayTitle = Look::heading({}, card);
    top->addWidget(m_awayTitle, 1);
    auto* dismiss = Look::button(Vexel::tr("Dismiss"), card);
    connect(dismiss, &QPushButton::clicked, this, &OverviewPage::dismissAway);
    top->addWidget(dismiss);
    layout->addLayout(top);
    m_awaySpan = Look::explanation({}, card);
    layout->addWidget(m_awaySpan);
    m_awayLines = Look::line(card);
    layout->addWidget(m_awayLines);
    card->hide();
    return card;
}

void OverviewPage::showAway(const AppModel& model)
{
    m_away->setVisible(model.awaySince().has_value());
    // With the card, the dials step down a size, so that the page still fits its window.
    const int side = model.awaySince() ? compactDial : fullDial;
    for (auto* dial : m_dials)
        dial->setPreferred({side, side});
    if (!model.awaySince())
        return;
    m_awayTitle->setText(Vexel::tr("While you were away"));
    m_awaySpan->setText(
        Vexel::tr("From %1 to %2")
            .arg(momentText(*model.awaySince(), model.zone), momentText(model.frame()->time, model.zone)));
    QStringList lines;
    for (const auto& spike : model.awaySpikes())
        lines << Vexel::say(spike.summary); // it names the app behind it
    if (lines.isEmpty())
        lines << Vexel::tr("Nothing unusual: no long CPU spikes, memory pressure, big writes or downloads, heat "
                           "or fast battery drain.");
    m_awayLines->setText(lines.join('\n'));
}

void OverviewPage::dismissAway()
{
    if (model())
        model()->dismissAway();
}

QStringList OverviewPage::awayLines() const
{
    if (m_away->isHidden())
        return {};
    return m_awayLines->text().split('\n');
}

QString OverviewPage::awaySpan() const
{
    return m_away->isHidden() ? QString() : m_awaySpan->text();
}

QStringList OverviewPage::busiestRows() const
{
    return m_busiest->rows();
}

} // namespace vexel
