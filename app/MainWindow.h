#pragma once

#include "Appearance.h"
#include "Route.h"

#include <QWidget>

#include <vector>

class QLabel;
class QListWidget;
class QMenuBar;
class QStackedWidget;

namespace vexel {

class AppModel;
class ConfirmSheet;
class NoticeBanner;
class OverviewPage;
class Page;
class ToastBar;

// The main window: the sidebar of routes beside the page in view. Only the
// page in view follows the model's changes; a page coming into view is shown
// the model as it stands.
class MainWindow final : public QWidget {
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);

    [[nodiscard]] Route currentRoute() const;
    void showRoute(Route route);

    // Ctrl+F: the Apps page, its search field focused and its text selected.
    void focusSearch();
    // The page of a route.
    [[nodiscard]] Page* page(Route route) const;

    // Puts the app's command menu above the sidebar and the page.
    void setMenuBar(QMenuBar* bar);

    // Shows the model's questions and toasts, and answers them back.
    void bind(AppModel& model);
    [[nodiscard]] ConfirmSheet* sheet() const { return m_sheet; }
    [[nodiscard]] ToastBar* toast() const { return m_toast; }
    [[nodiscard]] NoticeBanner* banner() const { return m_banner; }
    [[nodiscard]] OverviewPage* overview() const;

signals:
    void routeChanged(vexel::Route route);

private:
    QWidget* buildSidebar();
    void buildPages();

    QListWidget* m_sidebar = nullptr;
    QStackedWidget* m_pages = nullptr;
    std::vector<Page*> m_routePages; // in the sidebar's order
    ConfirmSheet* m_sheet = nullptr;
    ToastBar* m_toast = nullptr;
    NoticeBanner* m_banner = nullptr;
};

} // namespace vexel
Q_DECLARE_METATYPE(vexel::Route)
