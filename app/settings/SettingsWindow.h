#pragma once

#include "Appearance.h"
#include "settings/DeveloperTab.h"

#include <QWidget>

#include <vector>

class QTabWidget;

namespace vexel {

class AppModel;
class SettingsTab;

// The settings: General, Panel, Alerts, History and Developer tabs. Every
// change is saved at once; the window follows the model's settings.
class SettingsWindow final : public QWidget {
public:
    enum class Tab { general, panel, alerts, history, developer };

    explicit SettingsWindow(DeveloperTab::Places places, QWidget* parent = nullptr);

    void bind(AppModel& model);
    void showTab(Tab tab);
    [[nodiscard]] SettingsTab* tab(Tab tab) const;
    [[nodiscard]] QStringList tabTitles() const;

protected:
    // Escape closes the settings, as it does any dialog.
    void keyPressEvent(QKeyEvent* event) override;

private:
    QTabWidget* m_tabs = nullptr;
    std::vector<SettingsTab*> m_pages;
};

} // namespace vexel
