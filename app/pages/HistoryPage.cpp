#include "pages/HistoryPage.h"

#include "format/CFormat.h"
#include "format/Fmt.h"
#include "history/Downsample.h"
#include "look/Buttons.h"
#include "look/Chart.h"
#include "look/FigureRows.h"
#include "look/Labels.h"
#include "look/PaintedView.h"
#include "model/AppModel.h"
#include "pages/HistoryCharts.h"
#include "texts/QtText.h"
#include "texts/Vexel.h"
#include "time/TimeZone.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace vexel {

namespace {

constexpr int chartsShown = 4;

std::string spikeTime(const Spike& spike, const TimeZone& zone)
{
    int weekday = 0;
    const CivilTime civil = zone.civil(spike.start, &weekday);
    return cformat("%d/%d %02d:%02d", civil.day, civil.month, civil.hour, civil.minute);
}

} // namespace

HistoryPage::HistoryPage(QWidget* parent)
    : Page(parent)
{
    auto* column = scrollingColumn(Vexel::tr("History"));
    auto* picker = new QHBoxLayout;
    picker->setSpacing(4);
    m_ranges = new QButtonGroup(this);
    for (const auto range : allHistoryRanges) {
        auto* button = Look::button(Vexel::words(title(range)), this);
        button->setCheckable(true);
        m_ranges->addButton(button, static_cast<int>(range));
        picker->addWidget(button);
    }
    picker->addStretch(1);
    column->addLayout(picker);
    connect(m_ranges, &QButtonGroup::idClicked, this, [this](int id) { pick(id); });

    m_body = new QStackedWidget(this);
    auto* empty = new QWidget(m_body);
    auto* emptyLayout = new QVBoxLayout(empty);
    emptyLayout->setContentsMargins(0, 40, 0, 40);
    m_emptyHeading = Look::heading({}, empty);
    m_emptyHeading->setAlignment(Qt::AlignCenter);
    emptyLayout->addWidget(m_emptyHeading);
    m_emptyNote = Look::centredNote({}, empty);
    emptyLayout->addWidget(m_emptyNote);
    emptyLayout->addStretch(1);
    m_body->addWidget(empty);

    m_charts = new QWidget(m_body);
    auto* charts = new QVBoxLayout(m_charts);
    charts->setContentsMargins(0, 0, 0, 0);
    charts->setSpacing(8);
    for (const QString& name : {Vexel::tr("CPU"), Vexel::tr("Memory"), Vexel::tr("Disk"), Vexel::tr("Network")}) {
        charts->addWidget(Look::heading(name, m_charts));
        m_chartViews.push_back(new PaintedView(name, QSize(560, 120), m_charts));
        charts->addWidget(m_chartViews.back());
    }
    m_gapNote = Look::explanation({}, m_charts);
    charts->addWidget(m_gapNote);
    charts->addSpacing(6);
    charts->addWidget(Look::heading(Vexel::tr("Spikes"), m_charts));
    m_spikes = new FigureRows(m_charts);
    charts->addWidget(m_spikes);
    m_noSpikes = Look::explanation(Vexel::tr("Nothing unusual: no long CPU spikes, memory pressure, big writes or "
                                             "downloads, heat or fast battery drain."),
        m_charts);
    charts->addWidget(m_noSpikes);
    charts->addSpacing(6);
    charts->addWidget(Look::heading(Vexel::tr("Core time by app"), m_charts));
    m_coreTime = new FigureRows(m_charts);
    charts->addWidget(m_coreTime);
    charts->addWidget(Look::explanation(Vexel::tr("Core time: an hour of one core fully busy. Apps that never made "
                                                  "the top dozen at a moment aren't kept, so small ones may be "
                                                  "missing."),
        m_charts));
    m_body->addWidget(m_charts);
    column->addWidget(m_body);
    column->addStretch(1);
}

unsigned HistoryPage::shows() const
{
    return AppModel::historyChanged | AppModel::settingsChanged | AppModel::storeErrorChanged;
}

void HistoryPage::pick(int index)
{
    if (model() && index >= 0 && index < static_cast<int>(allHistoryRanges.size()))
        model()->setHistoryRange(allHistoryRanges[static_cast<size_t>(index)]);
}

void HistoryPage::showModel(const AppModel& model)
{
    // The range in use stands out in the accent, as the sidebar's page does.
    for (auto* button : m_ranges->buttons()) {
        const bool current = m_ranges->id(button) == static_cast<int>(model.historyRange());
        button->setChecked(current);
        QPalette palette;
        if (current) {
            palette.setColor(QPalette::Button, this->palette().color(QPalette::Highlight));
            palette.setColor(QPalette::ButtonText, this->palette().color(QPalette::HighlightedText));
        }
        button->setPalette(palette);
    }
    const auto& history = model.history();
    // A history that couldn't be read is said so, never shown as an empty one.
    if (!history || (history->error && history->points.empty())) {
        if (model.storeError())
            showEmpty(Vexel::tr("History can't be read."), qs(*model.storeError()));
        else
            showEmpty(Vexel::tr("Reading the history…"), {});
        return;
    }
    if (!history->first) {
        showEmpty(Vexel::tr("History starts now."),
            Vexel::tr("Vexel takes a reading every few seconds and keeps up to a year, thinning old readings to "
                      "hourly so the file stays small. Come back in a few minutes."));
        return;
    }
    if (history->points.empty()) {
        // History began inside this range but hasn't reached its tier yet; or the machine was away all of it.
        showEmpty(*history->first >= history->from ? Vexel::tr("No samples yet for this range.")
                                                   : Vexel::tr("Nothing recorded in this range."),
            {});
        return;
    }
    m_body->setCurrentWidget(m_charts);
    showCharts(model);
    showSpikes(model);
}

void HistoryPage::showEmpty(const QString& heading, const QString& note)
{
    m_body->setCurrentIndex(0);
    m_emptyHeading->setText(heading);
    m_emptyNote->setText(note);
    m_emptyNote->setVisible(!note.isEmpty());
}

void HistoryPage::showCharts(const AppModel& model)
{
    const auto& history = *model.history();
    const auto& points = history.points;
    const Chart frame = chartFrame(points, history.from, history.to, model.historyRange(), model.zone);
    const std::array<Chart, chartsShown> charts{
        shareChart(points, frame, {{Vexel::tr("Average"), &SysPoint::cpu}, {Vexel::tr("Peak"), &SysPoint::cpuMax}}),
        shareChart(points, frame, {{Vexel::tr("In use"), &SysPoint::mem}}),
        rateChart(points, frame, {{Vexel::tr("Read"), &SysPoint::diskR}, {Vexel::tr("Write"), &SysPoint::diskW}},
            Fmt::RateUnit::bytes),
        rateChart(points, frame, {{Vexel::tr("Download"), &SysPoint::netIn}, {Vexel::tr("Upload"), &SysPoint::netOut}},
            model.networkUnit())};
    for (size_t i = 0; i < charts.size(); ++i)
        m_chartViews[i]->draw(charts[i]);
    bool gaps = false;
    for (size_t i = 1; i < points.size(); ++i)
        gaps = gaps || points[i].t - points[i - 1].t > frame.gapAfter;
    m_gapNote->setText(model.platform == Platform::macOS
            ? Vexel::tr("The lines break where readings stop. Your Mac was off, asleep or Vexel wasn't running.")
            : Vexel::tr("The lines break where readings stop. Your computer was off, asleep or Vexel wasn't running."));
    m_gapNote->setVisible(gaps);

    const SysPoint whole = Downsample::rollup(points, history.from, 0);
    FigureRows::Rows rows;
    for (const auto& app : Downsample::busiestApps(history.apps, history.from, whole.dur)) {
        const double hours = app.cpu * whole.dur / 3600;
        // Under half a minute is still some: never "0 min" for an app that was busy.
        rows.emplace_back(qs(app.name),
            hours >= 1 ? qs(cformat("%.1f h", hours))
                       : (hours * 60 >= 0.5 ? qs(cformat("%.0f min", hours * 60)) : Vexel::tr("under a minute")));
    }
    m_coreTime->setRows(rows);
}

void HistoryPage::showSpikes(const AppModel& model)
{
    FigureRows::Rows rows;
    for (const auto& spike : model.history()->spikes) {
        // A summary that names the app already leaves only its share to say.
        const bool named = spike.culprit && std::ranges::any_of(spike.summary.values, [&](const auto& value) {
            return value.text == *spike.culprit;
        });
        QString culprit;
        if (named)
            culprit = spike.share ? Vexel::tr("%1 of it").arg(qs(Fmt::percent(*spike.share))) : QString();
        else if (spike.culprit && spike.share)
            culprit = Vexel::tr("mostly %1 (%2)").arg(qs(*spike.culprit), qs(Fmt::percent(*spike.share)));
        else if (spike.culprit)
            culprit = Vexel::tr("mostly %1").arg(qs(*spike.culprit));
        rows.emplace_back(
            qs(spikeTime(spike, model.zone)) + QStringLiteral("   ") + Vexel::say(spike.summary), culprit);
    }
    m_spikes->setRows(rows);
    m_noSpikes->setVisible(rows.empty());
}

QStringList HistoryPage::emptyState() const
{
    if (m_body->currentWidget() == m_charts)
        return {};
    QStringList state{m_emptyHeading->text()};
    if (!m_emptyNote->isHidden())
        state << m_emptyNote->text();
    return state;
}

QStringList HistoryPage::spikeRows() const
{
    return m_spikes->rows();
}

QStringList HistoryPage::coreTimeRows() const
{
    return m_coreTime->rows();
}

int HistoryPage::chartCount() const
{
    return m_body->currentWidget() == m_charts ? static_cast<int>(m_chartViews.size()) : 0;
}

} // namespace vexel
