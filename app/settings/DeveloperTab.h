#pragma once

#include "actions/CommandLineSetup.h"
#include "settings/SettingsTab.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

class QLabel;
class QPushButton;

namespace vexel {

class ChoiceBox;

// Developer: when a dev server counts as idle, and setting up the command
// line and the MCP server for AI assistants.
class DeveloperTab final : public SettingsTab {
    Q_OBJECT

public:
    // Where things are: the vexel command beside the app, the home folder,
    // and Claude Code's claude command when it is installed.
    struct Places {
        std::filesystem::path vexel;
        std::filesystem::path home;
        std::function<std::optional<std::string>()> findClaude;
    };

    DeveloperTab(Places places, QWidget* parent);

    void showModel(const AppModel& model) override;

    [[nodiscard]] ChoiceBox* idle() const { return m_idle; }
    // Each step runs away from the window: its button says it is working
    // until the outcome shows below.
    void installCommand();
    void addToClaude();
    [[nodiscard]] QString outcomeText() const;
    [[nodiscard]] QPushButton* claudeButton() const { return m_claude; }

signals:
    void stepDone();

private:
    void runStep(QPushButton* button, const QString& working, std::function<CommandLineSetup::Outcome()> step);

    Places m_places;
    ChoiceBox* m_idle = nullptr;
    QPushButton* m_install = nullptr;
    QPushButton* m_claude = nullptr;
    QLabel* m_outcome = nullptr;
};

} // namespace vexel
