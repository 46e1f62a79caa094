#pragma once

#include "grouping/AppSort.h"
#include "pages/Page.h"

class QLabel;
class QLineEdit;
class QSortFilterProxyModel;
class QStackedWidget;
class QTreeView;

namespace vexel {

class AppInspector;
class KeyedRows;
class MachineSummary;

// Apps, not processes: one row per app, service family or tool with every
// helper counted in it, a search by name or PID, and beside the list the
// inspector of the selected app, or the machine's summary while none is.
// Rows keep their identity from tick to tick, so the selection and the
// scroll position stay where the user left them as the figures change.
class AppsPage final : public Page {
public:
    explicit AppsPage(QWidget* parent);

    void attach(AppModel& model) override;
    void showModel(const AppModel& model) override;
    [[nodiscard]] unsigned shows() const override;

    // For tests and pictures: the rows' app names in the order shown, the
    // search field, the list, the columns shown, the inspector.
    [[nodiscard]] QStringList rowNames() const;
    [[nodiscard]] QLineEdit* searchField() const { return m_search; }
    [[nodiscard]] QTreeView* list() const { return m_list; }
    [[nodiscard]] QStringList shownColumns() const;
    [[nodiscard]] AppInspector* inspector() const { return m_inspector; }
    [[nodiscard]] MachineSummary* summary() const { return m_summary; }
    [[nodiscard]] bool inspectorShown() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fillList(const AppModel& model);
    void showSelection(const AppModel& model);
    void sortBy(int column);
    // Shows the columns that fit beside the inspector, the sort's first.
    void fitColumns();

    QLineEdit* m_search = nullptr;
    KeyedRows* m_rows = nullptr;
    QSortFilterProxyModel* m_sorted = nullptr;
    QTreeView* m_list = nullptr;
    QLabel* m_noMatch = nullptr;
    QStackedWidget* m_side = nullptr;
    MachineSummary* m_summary = nullptr;
    AppInspector* m_inspector = nullptr;
    AppSort m_sort = AppSort::cpu;
    bool m_byName = false; // sorted by name for this run: the settings keep a figure's order
    bool m_showing = false; // the list changes under the model's hand, not the user's
};

} // namespace vexel
