#pragma once

#include "devservers/DevServers.h"
#include "grouping/AppSort.h"
#include "pages/Page.h"

#include <optional>
#include <tuple>

#include <vector>

class QLabel;
class QVBoxLayout;

namespace vexel {

class CommandLine;
class FigureRows;
class ServerRow;

// Developers: dev servers grouped by project folder, the other listening
// ports, Docker's containers in each of its states, and how to install the
// command line and the MCP server.
class DevelopersPage final : public Page {
public:
    explicit DevelopersPage(QWidget* parent);

    void showModel(const AppModel& model) override;
    [[nodiscard]] unsigned shows() const override;

    // For tests: the servers section's state and rows, the ports, the containers.
    [[nodiscard]] QStringList serverState() const;
    [[nodiscard]] QStringList serverRows() const;
    [[nodiscard]] QStringList otherPorts() const;
    [[nodiscard]] QStringList dockerState() const;

private:
    void showServers(const AppModel& model);
    void showDocker(const AppModel& model);
    void buildToolsSection(QVBoxLayout* column);

    std::optional<std::tuple<bool, std::vector<ProjectGroup>, std::vector<ListenSocket>, CPUScale>> m_shown;
    QLabel* m_serversHeading = nullptr;
    QLabel* m_serversNote = nullptr;
    QVBoxLayout* m_projects = nullptr;
    std::vector<QWidget*> m_projectWidgets;
    std::vector<ServerRow*> m_rows;
    FigureRows* m_ports = nullptr;
    QLabel* m_noPorts = nullptr;
    QLabel* m_dockerHeading = nullptr;
    QLabel* m_dockerNote = nullptr;
    FigureRows* m_containers = nullptr;
    QLabel* m_installNote = nullptr;
    CommandLine* m_installCommand = nullptr;
    CommandLine* m_mcpCommand = nullptr;
};

} // namespace vexel
