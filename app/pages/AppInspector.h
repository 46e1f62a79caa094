#pragma once

#include "Appearance.h"

#include <QWidget>

#include <optional>
#include <string>

class QLabel;
class QPushButton;
class QSortFilterProxyModel;
class QTreeView;
class QVBoxLayout;

namespace vexel {

class AppModel;
class CommandLine;
class KeyedRows;
struct AppGroup;

// The Apps page's inspector of the selected app: its processes, where it
// lives, Quit and Force Quit where the app may be quit from here, Force Stop
// for one process of the user's own, what to run when it hangs, and why some
// of its processes show less.
class AppInspector final : public QWidget {
public:
    explicit AppInspector(QWidget* parent);

    void attach(AppModel& model) { m_model = &model; }
    void showApp(const AppGroup& app, const AppModel& model);

    // For tests: whether Quit and Force Quit are offered, the notes shown,
    // the process list, and whether the selected process may be stopped.
    [[nodiscard]] bool offersQuit() const;
    [[nodiscard]] QStringList notes() const;
    [[nodiscard]] int processRows() const;
    [[nodiscard]] QTreeView* processList() const { return m_processes; }
    [[nodiscard]] bool offersStop() const;

private:
    void buildProcessList(QVBoxLayout* layout);
    void buildHangingSection(QVBoxLayout* layout);
    void showProcesses(const AppGroup& app, const AppModel& model);
    // The Force Stop button follows the process selected, when it is the user's own.
    void followSelectedProcess();

    AppModel* m_model = nullptr;
    std::string m_appId;
    std::string m_shownApp; // whose processes the list holds
    std::optional<std::string> m_path;
    int32_t m_mainPid = 0;
    QLabel* m_name = nullptr;
    QLabel* m_summary = nullptr;
    QLabel* m_where = nullptr;
    QPushButton* m_reveal = nullptr;
    QPushButton* m_quit = nullptr;
    QPushButton* m_forceQuit = nullptr;
    KeyedRows* m_rows = nullptr;
    QSortFilterProxyModel* m_sorted = nullptr;
    QTreeView* m_processes = nullptr;
    QPushButton* m_stopProcess = nullptr;
    std::vector<int32_t> m_stoppable; // the PIDs shown that this user may stop
    QLabel* m_otherUsers = nullptr;
    QLabel* m_zombies = nullptr;
    QLabel* m_system = nullptr;
    CommandLine* m_sampleCommand = nullptr;
    CommandLine* m_reportCommand = nullptr;
    QLabel* m_reportNote = nullptr;
};

} // namespace vexel
