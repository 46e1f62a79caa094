#pragma once

#include "pages/Page.h"

class QLabel;
class QLineEdit;
class QStackedWidget;
class QTreeWidget;

namespace vexel {

class AppInspector;

// Apps, not processes: one row per app, service family or tool with every
// helper counted in it, a search by name or PID, and the inspector of the
// selected app beside the list.
class AppsPage final : public Page {
public:
    explicit AppsPage(QWidget* parent);

    void showModel(const AppModel& model) override;
    [[nodiscard]] unsigned shows() const override;

    // For tests and pictures: the rows' app names, the search field, the inspector.
    [[nodiscard]] QStringList rowNames() const;
    [[nodiscard]] QLineEdit* searchField() const { return m_search; }
    [[nodiscard]] QTreeWidget* list() const { return m_list; }
    [[nodiscard]] AppInspector* inspector() const { return m_inspector; }
    [[nodiscard]] bool inspectorShown() const;

private:
    void fillList(const AppModel& model);

    QLineEdit* m_search = nullptr;
    QTreeWidget* m_list = nullptr;
    QLabel* m_noMatch = nullptr;
    QStackedWidget* m_side = nullptr;
    AppInspector* m_inspector = nullptr;
};

} // namespace vexel
