#include "MainWindow.h"

#include "ConfirmSheet.h"
#include "NoticeBanner.h"
#include "RouteIcon.h"
#include "SidebarDelegate.h"
#include "look/FollowAppearance.h"
#include "look/Labels.h"
#include "model/AppModel.h"
#include "pages/AppsPage.h"
#include "pages/CpuPage.h"
#include "pages/DevelopersPage.h"
#include "pages/DiskPage.h"
#include "pages/GpuPage.h"
#include "pages/HistoryPage.h"
#include "pages/MemoryPage.h"
#include "pages/NetworkPage.h"
#include "pages/OverviewPage.h"
#include "pages/PowerPage.h"
#include "texts/Vexel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace vexel {

namespace {

constexpr int sidebarWidth = 210;

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QWidget(parent)
{
    setWindowTitle(Vexel::tr("Vexel"));
    setAutoFillBackground(true);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(buildSidebar());
    auto* content = new QVBoxLayout;
    content->setSpacing(0);
    m_banner = new NoticeBanner(this);
    content->addWidget(m_banner);
    m_pages = new QStackedWidget(this);
    buildPages();
    content->addWidget(m_pages, 1);
    m_toast = new ToastBar(this);
    content->addWidget(m_toast);
    layout->addLayout(content, 1);
    connect(this, &MainWindow::routeChanged, this,
        [this](Route route) { m_pages->setCurrentIndex(static_cast<int>(route)); });
    m_sheet = new ConfirmSheet(this);
    resize(960, 620);
}

void MainWindow::buildPages()
{
    m_routePages = {new OverviewPage(m_pages), new AppsPage(m_pages), new CpuPage(m_pages), new MemoryPage(m_pages),
        new DiskPage(m_pages), new NetworkPage(m_pages), new GpuPage(m_pages), new PowerPage(m_pages),
        new HistoryPage(m_pages), new DevelopersPage(m_pages)};
    for (auto* page : m_routePages)
        m_pages->addWidget(page);
}

void MainWindow::setMenuBar(QMenuBar* bar)
{
    layout()->setMenuBar(bar);
}

Page* MainWindow::page(Route route) const
{
    return m_routePages.at(static_cast<size_t>(route));
}

void MainWindow::focusSearch()
{
    showRoute(Route::apps);
    auto* search = static_cast<AppsPage*>(page(Route::apps))->searchField();
    search->setFocus(Qt::ShortcutFocusReason);
    search->selectAll();
}

OverviewPage* MainWindow::overview() const
{
    return static_cast<OverviewPage*>(page(Route::overview));
}

void MainWindow::bind(AppModel& model)
{
    for (auto* page : m_routePages)
        page->attach(model);
    showRoute(model.route());
    page(model.route())->present(model);
    connect(this, &MainWindow::routeChanged, &model, [this, &model](Route route) {
        model.setRoute(route);
        if (route == Route::history)
            model.loadHistory();
        page(route)->present(model);
    });
    connect(&model, &AppModel::changed, this, [this, &model](unsigned what) {
        if (auto* shown = page(currentRoute()); what & shown->shows())
            shown->present(model);
        if (what & AppModel::confirmChanged)
            m_sheet->show(model.confirm() ? &*model.confirm() : nullptr);
        if (what & AppModel::toastChanged)
            m_toast->show(model.toast());
        if (what & (AppModel::storeErrorChanged | AppModel::noticesChanged))
            m_banner->show(model.storeError(), model.notices());
    });
    m_banner->show(model.storeError(), model.notices());
    connect(m_banner, &NoticeBanner::noticeClosed, &model,
        [&model](int index) { model.dismissNotice(static_cast<size_t>(index)); });
    connect(m_sheet, &ConfirmSheet::confirmed, &model, &AppModel::confirmPending);
    connect(m_sheet, &ConfirmSheet::cancelled, &model, &AppModel::cancelPending);
    connect(m_toast, &ToastBar::closed, &model, &AppModel::dismissToast);
}

QWidget* MainWindow::buildSidebar()
{
    auto* panel = new QWidget(this);
    panel->setFixedWidth(sidebarWidth);
    panel->setAutoFillBackground(true);
    Look::keepColour(panel, QPalette::Window, Look::sidebar);
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 18, 0, 12);
    layout->setSpacing(10);

    auto* name = new QLabel(Vexel::tr("Vexel"), panel);
    name->setFont(Look::font(15, QFont::DemiBold));
    name->setContentsMargins(22, 0, 0, 4);
    layout->addWidget(name);

    m_sidebar = new QListWidget(panel);
    m_sidebar->setItemDelegate(new SidebarDelegate(m_sidebar));
    m_sidebar->setFrameShape(QFrame::NoFrame);
    m_sidebar->setFocusPolicy(Qt::StrongFocus); // arrow keys move between pages
    Look::keepColour(m_sidebar, QPalette::Base, Look::sidebar);
    m_sidebar->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_sidebar->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (const auto route : allRoutes) {
        auto* item = new QListWidgetItem(routeIcon(route), title(route), m_sidebar);
        item->setToolTip(QString::fromStdString(shortcut(route)));
        item->setData(Qt::UserRole, QString::fromStdString(identifier(route)));
    }
    m_sidebar->setCurrentRow(0);
    connect(m_sidebar, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0 && row < static_cast<int>(allRoutes.size()))
            emit routeChanged(allRoutes[static_cast<size_t>(row)]);
    });
    layout->addWidget(m_sidebar, 1);
    return panel;
}

Route MainWindow::currentRoute() const
{
    const int row = m_sidebar->currentRow();
    return row >= 0 ? allRoutes[static_cast<size_t>(row)] : Route::overview;
}

void MainWindow::showRoute(Route route)
{
    m_sidebar->setCurrentRow(static_cast<int>(route));
}

} // namespace vexel
