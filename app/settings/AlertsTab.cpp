#include "settings/AlertsTab.h"

#include "look/Labels.h"
#include "model/AppModel.h"
#include "settings/ChoiceBox.h"
#include "texts/Vexel.h"

#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace vexel {

namespace {

ChoiceBox::Choices percents(std::initializer_list<int> values, double scale)
{
    ChoiceBox::Choices choices;
    for (const int value : values)
        choices.emplace_back(QString::number(value) + "%", value / scale);
    return choices;
}

ChoiceBox::Choices megabytes(std::initializer_list<int> values)
{
    ChoiceBox::Choices choices;
    for (const int value : values)
        choices.emplace_back(
            value >= 1000 ? QString::number(value / 1000) + " GB" : QString::number(value) + " MB", value * 1e6);
    return choices;
}

} // namespace

AlertsTab::AlertsTab(QWidget* parent)
    : SettingsTab(parent)
{
    auto* amber = section(Vexel::tr("When readings turn amber and red"));
    m_diskAmber = new ChoiceBox(percents({5, 10, 15, 20, 25}, 100), this);
    amber->addRow(label(Vexel::tr("Disk amber below")), m_diskAmber);
    m_batteryAmber = new ChoiceBox(percents({10, 15, 20, 25, 30, 40}, 1), this);
    amber->addRow(label(Vexel::tr("Battery amber at")), m_batteryAmber);
    ChoiceBox::Choices falling;
    for (const int drop : {5, 8, 10, 12, 15, 20, 25})
        falling.emplace_back(Vexel::tr("%1% within an hour").arg(drop), drop);
    m_batteryFalling = new ChoiceBox(falling, this);
    amber->addRow(label(Vexel::tr("Battery falling")), m_batteryFalling);
    m_amberNote = Look::explanation({}, this);
    column()->insertWidget(column()->count() - 1, m_amberNote);

    auto* spikes = section(Vexel::tr("What counts as a spike in History"),
        Vexel::tr("Spikes are what History and “While you were away” list, each with the app most responsible."));
    m_cpuSpike = new ChoiceBox(percents({50, 60, 70, 80, 90}, 100), this);
    spikes->addRow(label(Vexel::tr("CPU above")), m_cpuSpike);
    m_cpuMinutes = new ChoiceBox({{Vexel::tr("1 minute"), 1}, {Vexel::tr("2 minutes"), 2}, {Vexel::tr("3 minutes"), 3},
                                     {Vexel::tr("5 minutes"), 5}, {Vexel::tr("10 minutes"), 10}},
        this);
    spikes->addRow(label(Vexel::tr("for at least")), m_cpuMinutes);
    m_diskSpike = new ChoiceBox(megabytes({50, 100, 150, 300, 500, 1000}), this);
    spikes->addRow(label(Vexel::tr("Disk writes per minute above")), m_diskSpike);
    m_netSpike = new ChoiceBox(megabytes({20, 60, 120, 300, 600}), this);
    spikes->addRow(label(Vexel::tr("Network per minute above")), m_netSpike);
    column()->addStretch(1);

    const auto on = [this](ChoiceBox* box, std::function<void(VexelSettings&, double)> edit) {
        connect(box, &QComboBox::currentIndexChanged, this,
            [this, box, edit] { change([box, edit](VexelSettings& settings) { edit(settings, box->value()); }); });
    };
    // Red stays at or beyond amber when amber moves past it.
    on(m_diskAmber, [](VexelSettings& s, double v) {
        s.strain.diskFreeElevated = v;
        s.strain.diskFreeStrained = std::min(s.strain.diskFreeStrained, v);
    });
    on(m_batteryAmber, [](VexelSettings& s, double v) {
        s.strain.batteryElevated = static_cast<int>(v);
        s.strain.batteryStrained = std::min(s.strain.batteryStrained, s.strain.batteryElevated);
    });
    on(m_batteryFalling, [](VexelSettings& s, double v) { s.spikes.batteryDrop = v; });
    on(m_cpuSpike, [](VexelSettings& s, double v) { s.spikes.cpu = v; });
    on(m_cpuMinutes, [](VexelSettings& s, double v) { s.spikes.cpuMinutes = static_cast<int>(v); });
    on(m_diskSpike, [](VexelSettings& s, double v) { s.spikes.diskPerMinute = v; });
    on(m_netSpike, [](VexelSettings& s, double v) { s.spikes.netPerMinute = v; });
}

void AlertsTab::showModel(const AppModel& model)
{
    m_filling = true;
    m_amberNote->setText(model.platform == Platform::macOS
            ? Vexel::tr("Amber means worth a look; red means under strain. Memory follows macOS's own pressure level, "
                        "and heat follows the thermal state.")
            : Vexel::tr("Amber means worth a look; red means under strain. Memory follows Linux's own pressure level, "
                        "and heat follows the thermal state."));
    const auto& settings = model.settings();
    m_diskAmber->select(settings.strain.diskFreeElevated);
    m_batteryAmber->select(settings.strain.batteryElevated);
    m_batteryFalling->select(settings.spikes.batteryDrop);
    m_cpuSpike->select(settings.spikes.cpu);
    m_cpuMinutes->select(settings.spikes.cpuMinutes);
    m_diskSpike->select(settings.spikes.diskPerMinute);
    m_netSpike->select(settings.spikes.netPerMinute);
    m_filling = false;
}

} // namespace vexel
