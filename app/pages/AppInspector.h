#pragma once

#include "Appearance.h"

#include <QWidget>

#include <optional>
#include <string>

class QLabel;
class QPushButton;
class QTreeWidget;
class QVBoxLayout;

namespace vexel {

class AppModel;
class CommandLine;
struct AppGroup;

// The Apps page's inspector of the selected app: its processes, where it
// lives, Quit and Force Quit where the app may be quit from here, what to
// run when it hangs, and why some of its processes show less.
class AppInspector final : public QWidget {
public:
    explicit AppInspector(QWidget* parent);

    void attach(AppModel& model) { m_model = &model; }
    void showApp(const AppGroup& app, const AppModel& model);

    // For tests: whether Quit and Force Quit are offered, and the notes shown.
    [[nodiscard]] bool offersQuit() const;
    [[nodiscard]] QStringList notes() const;
    [[nodiscard]] int processRows() const;

private:
    void buildHangingSection(QVBoxLayout* layout);

    AppModel* m_model = nullptr;
    std::string m_appId;
    std::optional<std::string> m_path;
    int32_t m_mainPid = 0;
    QLabel* m_name = nullptr;
    QLabel* m_summary = nullptr;
    QLabel* m_where = nullptr;
    QPushButton* m_reveal = nullptr;
    QPushButton* m_quit = nullptr;
    QPushButton* m_forceQuit = nullptr;
    QTreeWidget* m_processes = nullptr;
    QLabel* m_otherUsers = nullptr;
    QLabel* m_zombies = nullptr;
    QLabel* m_system = nullptr;
    CommandLine* m_sampleCommand = nullptr;
    CommandLine* m_reportCommand = nullptr;
    QLabel* m_reportNote = nullptr;
};

} // namespace vexel
