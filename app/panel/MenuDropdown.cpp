#include "panel/MenuDropdown.h"

#include "format/CFormat.h"
#include "format/Fmt.h"
#include "look/Buttons.h"
#include "look/Dial.h"
#include "look/FigureRows.h"
#include "look/Labels.h"
#include "look/PaintedView.h"
#include "look/Sparkline.h"
#include "model/AppModel.h"
#include "pages/OverviewFigures.h"
#include "pages/TopApps.h"
#include "pages/Traces.h"
#include "panel/MenuReading.h"
#include "texts/PageTexts.h"
#include "texts/QtText.h"
#include "texts/Readings.h"
#include "texts/Vexel.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace vexel {

namespace {

constexpr size_t appsShown = 5;
constexpr size_t sensorsShown = 4;

// The Overview's dial of the kind; heat has a dial of its own, a step a level.
Dial dialOf(const AppModel& model, MenuItemKind kind)
{
    const auto dials = overviewDials(model);
    switch (kind) {
    case MenuItemKind::cpu: return dials[0];
    case MenuItemKind::memory: return dials[1];
    case MenuItemKind::disk: return dials[2];
    case MenuItemKind::network: return dials[3];
    case MenuItemKind::gpu: return dials[4];
    case MenuItemKind::battery: return dials[5];
    case MenuItemKind::thermal: break;
    }
    const ThermalLevel level = model.frame() ? model.frame()->system.thermal : ThermalLevel::nominal;
    return {rawValue(level) / 3.0, std::nullopt, model.strain(kind), Vexel::words(title(level)), Vexel::tr("Heat")};
}

FigureRows::Rows readoutsOf(const AppModel& model, MenuItemKind kind)
{
    if (!model.frame())
        return {};
    const auto& system = model.frame()->system;
    const auto unit = model.networkUnit();
    const auto cores = model.cpuScaleCores();
    switch (kind) {
    case MenuItemKind::cpu:
        return {{Vexel::tr("User"), qs(Fmt::cpu(system.cpu.user * model.cores(), cores))},
            {Vexel::tr("System"), qs(Fmt::cpu(system.cpu.system * model.cores(), cores))},
            {Vexel::tr("Load"), qs(cformat("%.2f", system.cpu.load1))}};
    case MenuItemKind::memory:
        return {{Vexel::tr("In use"),
                    Readings::partOf(Fmt::memory(system.memory.used()), Fmt::memory(system.memory.total))},
            {Vexel::tr("Pressure"), Vexel::words(title(system.memory.pressure))},
            {Vexel::tr("Swap used"), qs(Fmt::memory(system.memory.swapUsed))}};
    case MenuItemKind::network:
        return {{Vexel::tr("Download"), qs(Fmt::rate(system.net.inRate, unit))},
            {Vexel::tr("Upload"), qs(Fmt::rate(system.net.outRate, unit))}};
    case MenuItemKind::disk: {
        FigureRows::Rows rows{{Vexel::tr("Read"), qs(Fmt::rate(system.disk.readRate, Fmt::RateUnit::bytes))},
            {Vexel::tr("Write"), qs(Fmt::rate(system.disk.writeRate, Fmt::RateUnit::bytes))}};
        if (const auto main = system.disk.main())
            rows.emplace_back(qs(main->name), Vexel::tr("%1 free").arg(qs(Fmt::bytes(main->available))));
        return rows;
    }
    case MenuItemKind::gpu:
        if (!system.gpu)
            return {{Vexel::tr("GPU"), PageTexts::noGpuUtilisation(model.platform)}};
        return {{qs(system.gpu->name), Vexel::tr("%1 busy").arg(qs(Fmt::percent(system.gpu->utilisation)))}};
    case MenuItemKind::battery:
        if (!system.battery)
            return {};
        return {{Vexel::tr("Charge"), qs(std::to_string(system.battery->percent) + "%")},
            {Vexel::tr("State"),
                system.battery->charging   ? Vexel::tr("Charging")
                    : system.battery->onAC ? Vexel::tr("On power adapter")
                                           : Vexel::tr("On battery")}};
    case MenuItemKind::thermal: {
        FigureRows::Rows rows{{Vexel::tr("Level"), Vexel::words(title(system.thermal))}};
        // The hottest sensors, where the system reports them.
        auto temperatures = system.sensors.temperatures;
        std::ranges::sort(temperatures, std::greater{}, &Temperature::celsius);
        for (size_t i = 0; i < temperatures.size() && i < sensorsShown; ++i)
            rows.emplace_back(Readings::sensorName(temperatures[i].chip, temperatures[i].label),
                qs(cformat("%.0f °C", temperatures[i].celsius)));
        for (const auto& fan : system.sensors.fans)
            rows.emplace_back(Readings::sensorName(fan.chip, fan.label), qs(cformat("%.0f rpm", fan.rpm)));
        return rows;
    }
    }
    return {};
}

} // namespace

MenuDropdown::MenuDropdown(const AppModel& model, MenuItemKind kind, Actions actions)
    : QFrame(nullptr, placedByCompositor() ? Qt::Window : Qt::Popup)
    , m_kind(kind)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(Vexel::tr("%1 — Vexel").arg(Vexel::words(title(kind))));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    // As wide as its buttons need in the user's language, and never narrower than 340.
    setMinimumWidth(340);
    setMaximumWidth(520);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 14, 16, 14);
    layout->setSpacing(8);
    layout->addWidget(Look::heading(Vexel::words(title(kind)), this));
    auto* top = new QHBoxLayout;
    m_dial = new PaintedView(Vexel::words(title(kind)), QSize(96, 96), this);
    m_dial->setFixedSize(96, 96);
    top->addWidget(m_dial);
    m_readouts = new FigureRows(this);
    top->addWidget(m_readouts, 1);
    layout->addLayout(top);
    m_trace = new PaintedView(Vexel::tr("%1, last few minutes").arg(Vexel::words(title(kind))), QSize(308, 72), this);
    layout->addWidget(m_trace);
    m_traceCaption = Look::explanation(Vexel::tr("Last few minutes"), this);
    layout->addWidget(m_traceCaption);
    m_apps = new TopApps(Vexel::tr("Apps"), this);
    layout->addWidget(m_apps);
    m_note = Look::explanation({}, this);
    layout->addWidget(m_note);
    auto* buttons = new QHBoxLayout;
    auto* open = Look::button(Vexel::tr("Open Vexel Window"), this);
    auto* settings = Look::button(PageTexts::panelSettings(model.platform), this);
    buttons->addWidget(open);
    buttons->addWidget(settings);
    layout->addLayout(buttons);
    connect(open, &QPushButton::clicked, this, [this, actions] {
        close();
        actions.openWindow();
    });
    connect(settings, &QPushButton::clicked, this, [this, actions] {
        close();
        actions.openPanelSettings();
    });
    showModel(model);
}

void MenuDropdown::showModel(const AppModel& model)
{
    m_dial->draw(dialOf(model, m_kind));
    m_readouts->setRows(readoutsOf(model, m_kind));
    const MenuReading reading = menuReading(model, {m_kind, true, MenuItemStyle::graph});
    Sparkline trace{reading.trace, reading.traceTop, reading.strain, shareText, true, minuteMarks(model.ring())};
    if (const auto unit = rateUnit(model, m_kind))
        trace.valueText = [unit = *unit](double value) { return rateText(value, unit); };
    m_trace->draw(trace);
    m_trace->setVisible(canGraph(m_kind));
    m_traceCaption->setVisible(canGraph(m_kind));

    // The apps behind the reading, where there are per-app figures.
    const auto cores = model.cpuScaleCores();
    const auto unit = model.networkUnit();
    const bool battery = model.frame() && model.frame()->system.battery;
    QString note;
    switch (m_kind) {
    case MenuItemKind::cpu:
        m_apps->show(model, AppSort::cpu, appsShown, [cores](const AppGroup& a) { return Fmt::cpu(a.cpu, cores); });
        break;
    case MenuItemKind::memory:
        m_apps->show(model, AppSort::memory, appsShown, [](const AppGroup& a) { return Fmt::memory(a.memory); });
        break;
    case MenuItemKind::network:
        m_apps->show(model, AppSort::network, appsShown,
            [unit](const AppGroup& a) { return Fmt::rate(a.netIn + a.netOut, unit); });
        break;
    case MenuItemKind::disk:
        m_apps->show(model, AppSort::disk, appsShown,
            [](const AppGroup& a) { return Fmt::rate(a.diskRead + a.diskWrite, Fmt::RateUnit::bytes); });
        break;
    case MenuItemKind::battery:
        if (battery)
            m_apps->show(
                model, AppSort::energy, appsShown, [](const AppGroup& a) { return Fmt::watts(a.energyW.value_or(0)); });
        else
            note = PageTexts::dropdownNoBattery(model.platform);
        break;
    case MenuItemKind::gpu: note = PageTexts::dropdownGpuNote(model.platform); break;
    case MenuItemKind::thermal: note = PageTexts::dropdownThermalNote(model.platform); break;
    }
    const bool perApp = note.isEmpty();
    m_apps->setVisible(perApp);
    m_note->setText(note);
    m_note->setVisible(!perApp);
    adjustSize();
}

bool MenuDropdown::placedByCompositor()
{
    return QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

void MenuDropdown::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QFrame::keyPressEvent(event);
}

void MenuDropdown::changeEvent(QEvent* event)
{
    // The window form closes once the user leaves it, as the popup does.
    if (event->type() == QEvent::ActivationChange && windowType() == Qt::Window && !isActiveWindow())
        close();
    QFrame::changeEvent(event);
}

QStringList MenuDropdown::readouts() const
{
    return m_readouts->rows();
}

QStringList MenuDropdown::appRows() const
{
    return m_apps->isHidden() ? QStringList() : m_apps->rows();
}

QString MenuDropdown::note() const
{
    return m_note->isHidden() ? QString() : m_note->text();
}

} // namespace vexel
