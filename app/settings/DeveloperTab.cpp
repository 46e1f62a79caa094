#include "settings/DeveloperTab.h"

#include "BackgroundWork.h"
#include "actions/CommandLineSetup.h"
#include "look/Buttons.h"
#include "look/Labels.h"
#include "model/AppModel.h"
#include "settings/ChoiceBox.h"
#include "texts/Vexel.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace vexel {

DeveloperTab::DeveloperTab(Places places, QWidget* parent)
    : SettingsTab(parent)
    , m_places(std::move(places))
{
    auto* servers = section(Vexel::tr("Dev servers"),
        Vexel::tr("A server counts as idle when it hasn't used any CPU (served a request, rebuilt) for this long. "
                  "Vexel only flags it — stopping is always up to you, and it asks first."));
    m_idle = new ChoiceBox({{Vexel::tr("12 hours"), 0.5}, {Vexel::tr("1 day"), 1}, {Vexel::tr("2 days"), 2},
                               {Vexel::tr("3 days"), 3}, {Vexel::tr("1 week"), 7}},
        this);
    servers->addRow(label(Vexel::tr("Flag servers idle for")), m_idle);
    connect(m_idle, &QComboBox::currentIndexChanged, this,
        [this] { change([this](VexelSettings& settings) { settings.idleDays = m_idle->value(); }); });

    column()->addWidget(Look::heading(Vexel::tr("Command line and MCP"), this));
    auto* install = Look::button(Vexel::tr("Install Command"), this);
    column()->addWidget(install, 0, Qt::AlignLeft);
    column()->addWidget(Look::explanation(Vexel::tr("Installs the vexel command (read-only)."), this));
    auto* claude = Look::button(Vexel::tr("Add to Claude Code"), this);
    column()->addWidget(claude, 0, Qt::AlignLeft);
    column()->addWidget(Look::explanation(Vexel::tr("Adds Vexel's read-only MCP server to Claude Code."), this));
    m_install = install;
    m_claude = claude;
    m_outcome = Look::line(this);
    m_outcome->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_outcome->hide();
    column()->addWidget(m_outcome);
    column()->addStretch(1);
    connect(install, &QPushButton::clicked, this, &DeveloperTab::installCommand);
    connect(claude, &QPushButton::clicked, this, &DeveloperTab::addToClaude);
}

void DeveloperTab::showModel(const AppModel& model)
{
    m_filling = true;
    m_idle->select(model.settings().idleDays);
    m_filling = false;
}

void DeveloperTab::installCommand()
{
    runStep(m_install, Vexel::tr("Installing…"),
        [places = m_places] { return CommandLineSetup::installCommand(places.vexel, places.home); });
}

void DeveloperTab::addToClaude()
{
    // claude may take seconds to answer (it is given twenty).
    runStep(m_claude, Vexel::tr("Adding…"),
        [places = m_places] { return CommandLineSetup::addToClaude(places.findClaude(), places.home); });
}

void DeveloperTab::runStep(QPushButton* button, const QString& working, std::function<CommandLineSetup::Outcome()> step)
{
    const QString label = button->text();
    button->setText(working);
    button->setEnabled(false);
    inBackground<CommandLineSetup::Outcome>(
        this, std::move(step), [this, button, label](CommandLineSetup::Outcome outcome) {
            button->setText(label);
            button->setEnabled(true);
            m_outcome->setText(Vexel::say(outcome.text));
            m_outcome->show();
            emit stepDone();
        });
}

QString DeveloperTab::outcomeText() const
{
    return m_outcome->isHidden() ? QString() : m_outcome->text();
}

} // namespace vexel
