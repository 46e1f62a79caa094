#include "settings/DeveloperTab.h"

#include "actions/CommandLineSetup.h"
#include "look/Buttons.h"
#include "look/Labels.h"
#include "model/AppModel.h"
#include "settings/ChoiceBox.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace vexel {

DeveloperTab::DeveloperTab(Appearance appearance, Places places, QWidget* parent)
    : SettingsTab(appearance, parent)
    , m_places(std::move(places))
{
    auto* servers = section(QStringLiteral("Dev servers"),
        QStringLiteral("A server counts as idle when it hasn't used any CPU (served a request, rebuilt) for this long. "
                       "Vexel only flags it — stopping is always up to you, and it asks first."));
    m_idle
        = new ChoiceBox({{QStringLiteral("12 hours"), 0.5}, {QStringLiteral("1 day"), 1}, {QStringLiteral("2 days"), 2},
                            {QStringLiteral("3 days"), 3}, {QStringLiteral("1 week"), 7}},
            this);
    servers->addRow(label(QStringLiteral("Flag servers idle for")), m_idle);
    connect(m_idle, &QComboBox::currentIndexChanged, this,
        [this] { change([this](VexelSettings& settings) { settings.idleDays = m_idle->value(); }); });

    column()->addWidget(Look::heading(QStringLiteral("Command line and MCP"), this));
    auto* install = Look::button(QStringLiteral("Install Command"), this);
    column()->addWidget(install, 0, Qt::AlignLeft);
    column()->addWidget(Look::explanation(QStringLiteral("Installs the vexel command (read-only)."), appearance, this));
    auto* claude = Look::button(QStringLiteral("Add to Claude Code"), this);
    column()->addWidget(claude, 0, Qt::AlignLeft);
    column()->addWidget(
        Look::explanation(QStringLiteral("Adds Vexel's read-only MCP server to Claude Code."), appearance, this));
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
    m_idle->select(model.settings.idleDays);
    m_filling = false;
}

void DeveloperTab::installCommand()
{
    const auto outcome = CommandLineSetup::installCommand(m_places.vexel, m_places.home);
    m_outcome->setText(QString::fromStdString(outcome.text));
    m_outcome->show();
}

void DeveloperTab::addToClaude()
{
    const auto outcome = CommandLineSetup::addToClaude(m_places.findClaude(), m_places.home);
    m_outcome->setText(QString::fromStdString(outcome.text));
    m_outcome->show();
}

QString DeveloperTab::outcomeText() const
{
    return m_outcome->isHidden() ? QString() : m_outcome->text();
}

} // namespace vexel
