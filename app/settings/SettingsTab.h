#pragma once

#include "Appearance.h"
#include "settings/VexelSettings.h"

#include <QWidget>

#include <functional>

class QFormLayout;
class QLabel;
class QVBoxLayout;

namespace vexel {

class AppModel;

// One tab of the settings. It shows the model's settings and saves each
// change at once through the model, which reschedules what depends on it.
class SettingsTab : public QWidget {
public:
    SettingsTab(Appearance appearance, QWidget* parent);

    virtual void showModel(const AppModel& model) = 0;
    void attach(AppModel& model) { m_model = &model; }

protected:
    [[nodiscard]] Appearance appearance() const { return m_appearance; }
    [[nodiscard]] AppModel* model() const { return m_model; }
    // Applies `edit` to a copy of the settings and saves it; nothing while
    // the tab itself is filling its controls from the model.
    void change(const std::function<void(VexelSettings&)>& edit);
    // The tab's column, and a form under a heading in it.
    [[nodiscard]] QVBoxLayout* column() const { return m_column; }
    QFormLayout* section(const QString& heading, const QString& explanation = {});
    // A form row's name, on one line.
    QLabel* label(const QString& text);

    bool m_filling = false;

private:
    Appearance m_appearance;
    AppModel* m_model = nullptr;
    QVBoxLayout* m_column = nullptr;
};

} // namespace vexel
