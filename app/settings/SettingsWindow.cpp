#include "settings/SettingsWindow.h"

#include "model/AppModel.h"
#include "settings/AlertsTab.h"
#include "settings/GeneralTab.h"
#include "settings/HistoryTab.h"
#include "settings/PanelTab.h"
#include "texts/Vexel.h"

#include <QKeyEvent>
#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

namespace vexel {

SettingsWindow::SettingsWindow(DeveloperTab::Places places, QWidget* parent)
    : QWidget(parent, Qt::Window)
{
    setWindowTitle(Vexel::tr("Vexel Settings"));
    setAutoFillBackground(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    m_tabs = new QTabWidget(this);
    // Every tab in view, however long its name in the user's language: the window widens.
    m_tabs->setUsesScrollButtons(false);
    m_tabs->setFont(Look::font(12));
    m_pages = {new GeneralTab(m_tabs), new PanelTab(m_tabs), new AlertsTab(m_tabs), new HistoryTab(m_tabs),
        new DeveloperTab(std::move(places), m_tabs)};
    const QStringList titles{
        Vexel::tr("General"), Vexel::tr("Panel"), Vexel::tr("Alerts"), Vexel::tr("History"), Vexel::tr("Developer")};
    for (size_t i = 0; i < m_pages.size(); ++i)
        m_tabs->addTab(m_pages[i], titles[static_cast<int>(i)]);
    layout->addWidget(m_tabs);
    resize(560, 520);
}

void SettingsWindow::bind(AppModel& model)
{
    // The menu bar of a Mac is the panel of a Linux desktop.
    m_tabs->setTabText(
        static_cast<int>(Tab::panel), model.platform == Platform::macOS ? Vexel::tr("Menu Bar") : Vexel::tr("Panel"));
    for (auto* page : m_pages) {
        page->attach(model);
        page->showModel(model);
    }
    connect(&model, &AppModel::changed, this, [this, &model](unsigned what) {
        if (what
            & (AppModel::settingsChanged | AppModel::loginItemChanged | AppModel::totalsChanged
                | AppModel::storeErrorChanged))
            for (auto* page : m_pages)
                page->showModel(model);
    });
}

void SettingsWindow::showTab(Tab tab)
{
    m_tabs->setCurrentIndex(static_cast<int>(tab));
}

SettingsTab* SettingsWindow::tab(Tab tab) const
{
    return m_pages.at(static_cast<size_t>(tab));
}

QStringList SettingsWindow::tabTitles() const
{
    QStringList titles;
    for (int i = 0; i < m_tabs->count(); ++i)
        titles << m_tabs->tabText(i);
    return titles;
}

void SettingsWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

} // namespace vexel
