#include "pages/DevelopersPage.h"

#include "format/CFormat.h"
#include "format/Fmt.h"
#include "look/Buttons.h"
#include "look/FigureRows.h"
#include "look/Labels.h"
#include "model/AppModel.h"
#include "pages/CommandLine.h"
#include "pages/ServerRow.h"
#include "platform/Environment.h"
#include "text/HomePath.h"
#include "texts/PageTexts.h"
#include "texts/QtText.h"
#include "texts/Vexel.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <set>

namespace vexel {

namespace {

// Where the vexel command lives: beside the app, or in the Mac app's bundle.
std::string vexelPath(const AppModel& model)
{
    if (model.platform == Platform::macOS)
        return "/Applications/Vexel.app/Contents/MacOS/vexel";
    return model.programFolder + "/vexel";
}

} // namespace

DevelopersPage::DevelopersPage(QWidget* parent)
    : Page(parent)
{
    auto* column = scrollingColumn(Vexel::tr("Developers"));
    column->addWidget(Look::explanation(Vexel::tr("Dev servers grouped by project folder."), this));
    m_serversHeading = Look::heading({}, this);
    column->addWidget(m_serversHeading);
    m_serversNote = Look::explanation({}, this);
    column->addWidget(m_serversNote);
    m_projects = new QVBoxLayout;
    m_projects->setSpacing(8);
    column->addLayout(m_projects);
    column->addSpacing(8);

    column->addWidget(Look::heading(Vexel::tr("Other listening ports"), this));
    column->addWidget(Look::explanation(Vexel::tr("apps and services, not dev servers"), this));
    m_ports = new FigureRows(this);
    column->addWidget(m_ports);
    m_noPorts = Look::explanation(Vexel::tr("None."), this);
    column->addWidget(m_noPorts);
    column->addSpacing(8);

    column->addWidget(Look::heading(Vexel::tr("Containers"), this));
    m_dockerHeading = Look::line(this);
    column->addWidget(m_dockerHeading);
    m_dockerNote = Look::explanation({}, this);
    column->addWidget(m_dockerNote);
    m_containers = new FigureRows(this);
    column->addWidget(m_containers);
    column->addSpacing(8);
    buildToolsSection(column);
    column->addStretch(1);
}

void DevelopersPage::buildToolsSection(QVBoxLayout* column)
{
    column->addWidget(Look::heading(Vexel::tr("Command line and AI tools"), this));
    m_installNote = Look::explanation({}, this);
    column->addWidget(m_installNote);
    const auto copy = [this](const std::string& command) {
        if (model())
            model()->copyCommand(command);
    };
    m_installCommand = new CommandLine(this, copy);
    column->addWidget(m_installCommand);
    auto* status = new CommandLine(this);
    status->setText(QStringLiteral("vexel status"));
    column->addWidget(status);
    column->addWidget(Look::explanation(Vexel::tr("Add the read-only MCP server to Claude Code:"), this));
    m_mcpCommand = new CommandLine(this, copy);
    column->addWidget(m_mcpCommand);
    column->addWidget(Look::explanation(Vexel::tr("Your assistant can ask what's busy, what happened overnight, "
                                                  "which dev servers are idle and what's on a port. It can't "
                                                  "quit or stop anything — it has to ask you to do it here."),
        this));
}

unsigned DevelopersPage::shows() const
{
    return AppModel::serversChanged | AppModel::dockerChanged | AppModel::settingsChanged;
}

void DevelopersPage::showModel(const AppModel& model)
{
    showServers(model);
    showDocker(model);
    m_installNote->setText(PageTexts::installInTerminal(model.platform));
    m_installCommand->setText(qs(PageTexts::installCommand(model.platform, vexelPath(model))));
    m_mcpCommand->setText(qs(PageTexts::mcpAddCommand(model.platform)));
}

void DevelopersPage::showServers(const AppModel& model)
{
    // Rebuilt only when a scan changed something: the rows hold buttons.
    const auto shown
        = std::make_tuple(model.serversLoaded(), model.servers(), model.listeners(), model.settings().cpuScale);
    if (m_shown == shown)
        return;
    m_shown = shown;
    for (auto* widget : m_projectWidgets) {
        widget->hide();
        m_projects->removeWidget(widget);
        widget->deleteLater(); // a row's own button may be what asked for this
    }
    m_projectWidgets.clear();
    m_rows.clear();
    if (!model.serversLoaded()) {
        m_serversHeading->setText(Vexel::tr("Looking for servers…"));
        m_serversNote->hide();
    } else if (model.servers().empty()) {
        m_serversHeading->setText(Vexel::tr("No dev servers running."));
        m_serversNote->setText(Vexel::tr("When node, python, rails, a database or your own build listens on a "
                                         "port, it shows up here under its project."));
        m_serversNote->show();
    } else {
        m_serversHeading->setText(Vexel::tr("Servers"));
        m_serversNote->hide();
    }
    const std::string& home = model.home;
    std::set<int32_t> serverPids;
    for (const auto& group : model.serversLoaded() ? model.servers() : std::vector<ProjectGroup>{}) {
        auto* project = new QWidget(this);
        auto* layout = new QVBoxLayout(project);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(2);
        auto* name = Look::line(project, qs(group.project.name));
        name->setFont(Look::font(13, QFont::DemiBold));
        layout->addWidget(name);
        layout->addWidget(Look::explanation(qs(shownPath(group.project.path, home)), project));
        for (const auto& server : group.servers) {
            auto* row = new ServerRow(server, model, project);
            if (auto* acting = Page::model())
                row->attach(*acting);
            layout->addWidget(row);
            m_rows.push_back(row);
            serverPids.insert(server.pid);
        }
        m_projects->addWidget(project);
        m_projectWidgets.push_back(project);
    }
    FigureRows::Rows ports;
    for (const auto& socket : model.listeners())
        if (!serverPids.contains(socket.pid))
            ports.emplace_back(qs(":" + std::to_string(socket.port) + "  " + socket.command),
                (reachableFromNetwork(socket) ? Vexel::tr("process %1, reachable from the network")
                                              : Vexel::tr("process %1"))
                    .arg(socket.pid));
    m_ports->setRows(ports);
    m_noPorts->setVisible(model.serversLoaded() && ports.empty());
}

void DevelopersPage::showDocker(const AppModel& model)
{
    FigureRows::Rows rows;
    const auto& docker = model.docker();
    m_dockerNote->hide();
    if (!docker) {
        m_dockerHeading->setText(Vexel::tr("Looking for containers…"));
    } else if (docker->kind == DockerState::Kind::notInstalled) {
        m_dockerHeading->setText(Vexel::tr("Docker isn't installed"));
        m_dockerNote->setText(
            Vexel::tr("Vexel looks for the docker command from %1.").arg(PageTexts::dockerEngines(model.platform)));
        m_dockerNote->show();
    } else if (docker->kind == DockerState::Kind::notRunning) {
        m_dockerHeading->setText(Vexel::tr("Docker isn't running"));
        // The engine may run but refuse this user: then its own sentence says what to do.
        const bool refused = docker->message == DockerState::notAllowed().message;
        m_dockerNote->setText(
            refused ? qs(docker->message) : Vexel::tr("Start Docker Desktop (or your engine) and this fills in."));
        m_dockerNote->show();
    } else if (docker->containers.empty()) {
        m_dockerHeading->setText(Vexel::tr("Docker is running with no containers."));
    } else {
        m_dockerHeading->setText(Vexel::tr("%n container(s)", nullptr, static_cast<int>(docker->containers.size())));
        for (const auto& container : docker->containers) {
            QString load = qs(container.status);
            if (container.cpu)
                load += Vexel::tr("  ·  CPU %1").arg(qs(cformat("%.1f%%", *container.cpu)));
            if (container.memory)
                load += QStringLiteral("  ·  ") + qs(Fmt::memory(*container.memory));
            rows.emplace_back(qs(container.name + "  (" + container.image + ")"), load);
        }
    }
    m_containers->setRows(rows);
}

QStringList DevelopersPage::serverState() const
{
    QStringList state{m_serversHeading->text()};
    if (!m_serversNote->isHidden())
        state << m_serversNote->text();
    return state;
}

QStringList DevelopersPage::serverRows() const
{
    QStringList rows;
    for (const auto* row : m_rows)
        rows << row->summary();
    return rows;
}

QStringList DevelopersPage::otherPorts() const
{
    return m_ports->rows();
}

QStringList DevelopersPage::dockerState() const
{
    QStringList state{m_dockerHeading->text()};
    if (!m_dockerNote->isHidden())
        state << m_dockerNote->text();
    state << m_containers->rows();
    return state;
}

} // namespace vexel
