#pragma once

#include "Appearance.h"
#include "Route.h"

#include <QWidget>

class QLabel;
class QListWidget;
class QStackedWidget;

namespace vexel {

class AppModel;
class ConfirmSheet;
class OverviewPage;
class ToastBar;

// The main window: the sidebar of routes beside the page in view. Until the
// first frame arrives every page says that the first reading is being taken.
class MainWindow final : public QWidget {
    Q_OBJECT

public:
    explicit MainWindow(Appearance appearance, QWidget* parent = nullptr);

    [[nodiscard]] Route currentRoute() const;
    void showRoute(Route route);

    // The sidebar's titles, top to bottom.
    [[nodiscard]] QStringList sidebarTitles() const;
    // The text the page area shows.
    [[nodiscard]] QString pageText() const;

    // Shows the model's questions and toasts, and answers them back.
    void bind(AppModel& model);
    [[nodiscard]] ConfirmSheet* sheet() const { return m_sheet; }
    [[nodiscard]] ToastBar* toast() const { return m_toast; }
    [[nodiscard]] OverviewPage* overview() const { return m_overview; }

signals:
    void routeChanged(vexel::Route route);

private:
    QWidget* buildSidebar(Appearance appearance);
    QWidget* buildPlaceholder(Appearance appearance);

    QListWidget* m_sidebar = nullptr;
    QStackedWidget* m_pages = nullptr;
    QLabel* m_placeholder = nullptr;
    OverviewPage* m_overview = nullptr;
    ConfirmSheet* m_sheet = nullptr;
    ToastBar* m_toast = nullptr;
};

} // namespace vexel
Q_DECLARE_METATYPE(vexel::Route)
