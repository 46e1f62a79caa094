#include "pages/PowerPage.h"

#include "format/CFormat.h"
#include "format/Fmt.h"
#include "look/FigureRows.h"
#include "look/Labels.h"
#include "look/LevelScale.h"
#include "look/PaintedView.h"
#include "model/AppModel.h"
#include "pages/TopApps.h"
#include "texts/PageTexts.h"
#include "texts/QtText.h"
#include "texts/Readings.h"
#include "texts/Vexel.h"

#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace vexel {

PowerPage::PowerPage(QWidget* parent)
    : Page(parent)
{
    auto* column = scrollingColumn(Vexel::tr("Power & Heat"));
    column->addWidget(Look::heading(Vexel::tr("Battery"), this));
    m_charge = Look::figure(this);
    column->addWidget(m_charge);
    m_state = Look::line(this);
    column->addWidget(m_state);
    m_battery = new FigureRows(this);
    column->addWidget(m_battery);
    m_capacityNote = Look::explanation(
        Vexel::tr("Capacity left compares the battery's full charge today with when it was new. Below "
                  "80% it holds noticeably less."),
        this);
    column->addWidget(m_capacityNote);
    column->addSpacing(8);
    column->addWidget(Look::heading(Vexel::tr("Heat"), this));
    m_thermal = Look::line(this);
    column->addWidget(m_thermal);
    m_scale = new PaintedView(Vexel::tr("Thermal state"), QSize(420, 36), this);
    column->addWidget(m_scale);
    m_thermalNote = Look::explanation({}, this);
    column->addWidget(m_thermalNote);
    m_sensors = new FigureRows(this);
    column->addWidget(m_sensors);
    m_noSensors = Look::explanation({}, this);
    column->addWidget(m_noSensors);
    column->addSpacing(8);
    m_energy = new TopApps(Vexel::tr("Using most energy"), this);
    column->addWidget(m_energy);
    column->addStretch(1);
}

unsigned PowerPage::shows() const
{
    return AppModel::frameChanged;
}

void PowerPage::showModel(const AppModel& model)
{
    if (!model.frame())
        return;
    showBattery(model);
    // Energy per app is measured where the system meters it and estimated from CPU time elsewhere.
    const auto apps = model.apps(AppSort::energy, 8);
    const bool mixed = std::ranges::any_of(apps, [](const AppGroup& app) {
        return app.energyW && !app.energyEstimated;
    }) && std::ranges::any_of(apps, [](const AppGroup& app) { return app.energyW && app.energyEstimated; });
    m_energy->show(model, AppSort::energy, 8, [mixed](const AppGroup& app) {
        const std::string watts = Fmt::watts(app.energyW.value_or(0));
        if (!mixed)
            return watts;
        const QString told = app.energyEstimated ? Vexel::tr("%1  estimated") : Vexel::tr("%1  measured");
        return told.arg(qs(watts)).toStdString();
    });
    const bool allEstimated = std::ranges::all_of(apps, [](const AppGroup& app) { return app.energyEstimated; });
    const Platform platform = model.platform;
    m_energy->setNote(PageTexts::energyNote(platform,
        mixed              ? PageTexts::EnergySource::mixed
            : allEstimated ? PageTexts::EnergySource::estimated
                           : PageTexts::EnergySource::measured));

    const ThermalLevel level = model.frame()->system.thermal;
    m_thermal->setText(Vexel::say(detail(level, platform))); // "Hot. macOS is slowing the processor…"
    LevelScale scale;
    for (const auto step : allThermalLevels)
        scale.steps.push_back({Vexel::words(title(step)), model.settings().strain.thermal(step)});
    scale.current = static_cast<size_t>(rawValue(level));
    m_scale->draw(scale);
    m_thermalNote->setText(PageTexts::thermalNote(platform));
    showSensors(model);
}

void PowerPage::showSensors(const AppModel& model)
{
    const auto& sensors = model.frame()->system.sensors;
    FigureRows::Rows rows;
    for (const auto& t : sensors.temperatures)
        rows.emplace_back(Readings::sensorName(t.chip, t.label), qs(cformat("%.0f °C", t.celsius)));
    for (const auto& fan : sensors.fans)
        rows.emplace_back(Readings::sensorName(fan.chip, fan.label), qs(cformat("%.0f rpm", fan.rpm)));
    m_sensors->setRows(rows);
    // A Mac keeps its sensors private; a Linux machine without any says so.
    const bool none = rows.empty() && model.platform != Platform::macOS;
    m_noSensors->setText(model.platform == Platform::macOS
            ? Vexel::tr("No temperature or fan sensors can be read on this Mac.")
            : Vexel::tr("No temperature or fan sensors can be read on this computer."));
    m_noSensors->setVisible(none);
}

void PowerPage::showBattery(const AppModel& model)
{
    const auto& battery = model.frame()->system.battery;
    m_state->setVisible(battery.has_value());
    m_battery->setVisible(battery.has_value());
    m_capacityNote->setVisible(battery && battery->health());
    if (!battery) {
        m_charge->setFont(Look::font(13));
        m_charge->setWordWrap(true);
        m_charge->setText(PageTexts::mainsPower(model.platform));
        return;
    }
    m_charge->setFont(Look::font(22, QFont::DemiBold));
    m_charge->setText(qs(std::to_string(battery->percent) + "%"));
    m_state->setText(Readings::batteryState(*battery));
    FigureRows::Rows rows;
    if (battery->powerW)
        rows.emplace_back(*battery->powerW < 0 ? Vexel::tr("Drawing") : Vexel::tr("Charging at"),
            qs(Fmt::watts(std::abs(*battery->powerW))));
    if (const auto health = battery->health())
        rows.emplace_back(Vexel::tr("Capacity left"), qs(Fmt::percent(*health)));
    if (battery->cycles)
        rows.emplace_back(Vexel::tr("Charge cycles"), QString::number(*battery->cycles));
    if (battery->condition)
        rows.emplace_back(Vexel::tr("Condition"), qs(*battery->condition));
    m_battery->setRows(rows);
}

QString PowerPage::batteryText() const
{
    return m_charge->text();
}

QStringList PowerPage::batteryRows() const
{
    return m_battery->isHidden() ? QStringList() : m_battery->rows();
}

QStringList PowerPage::energyRows() const
{
    return m_energy->rows();
}

QStringList PowerPage::sensorRows() const
{
    return m_sensors->rows();
}

QString PowerPage::thermalText() const
{
    return m_thermal->text();
}

} // namespace vexel
