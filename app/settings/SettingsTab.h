#pragma once

#include "pages/Page.h"
#include "settings/VexelSettings.h"

#include <functional>
#include <vector>

class QFormLayout;
class QLabel;
class QVBoxLayout;

namespace vexel {

// One tab of the settings: a page that shows the model's settings and saves
// each change at once through the model, which reschedules what depends on it.
class SettingsTab : public Page {
public:
    explicit SettingsTab(QWidget* parent);

    // The settings, by default: a tab that shows more says so.
    [[nodiscard]] unsigned shows() const override;

protected:
    // Applies `edit` to a copy of the settings and saves it; nothing while
    // the tab itself is filling its controls from the model.
    void change(const std::function<void(VexelSettings&)>& edit);
    // The tab's column, and a form under a heading in it.
    [[nodiscard]] QVBoxLayout* column() const { return m_column; }
    QFormLayout* section(const QString& heading, const QString& explanation = {});
    // A form row's name, on one line.
    QLabel* label(const QString& text);

    // The forms of the tab line up as one: each one's names take the width
    // of the widest name on the tab.
    void showEvent(QShowEvent* event) override;

    bool m_filling = false;

private:
    QVBoxLayout* m_column = nullptr;
    std::vector<QFormLayout*> m_forms;
};

} // namespace vexel
