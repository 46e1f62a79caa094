#include "pages/AppsPage.h"

#include "format/Fmt.h"
#include "look/Labels.h"
#include "model/AppModel.h"
#include "pages/AppInspector.h"
#include "texts/Vexel.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace vexel {

namespace {

constexpr int inspectorWidth = 340;

enum Column { name, cpu, memory };

} // namespace

AppsPage::AppsPage(QWidget* parent)
    : Page(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 24, 28, 24);
    layout->setSpacing(10);
    layout->addWidget(Look::pageTitle(Vexel::tr("Apps"), this));
    layout->addWidget(Look::explanation(Vexel::tr("Apps, not processes: every helper process counted with its "
                                                  "app, processes grouped under the apps and services that "
                                                  "started them."),
        this));
    m_search = new QLineEdit(this);
    m_search->setPlaceholderText(Vexel::tr("Find an app, process or PID"));
    m_search->setAccessibleName(m_search->placeholderText());
    m_search->setClearButtonEnabled(true);
    m_search->setFont(Look::font(12));
    layout->addWidget(m_search);
    connect(m_search, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (model())
            model()->setAppSearch(text.toStdString());
    });

    auto* body = new QHBoxLayout;
    body->setSpacing(18);
    auto* listColumn = new QVBoxLayout;
    m_list = new QTreeWidget(this);
    m_list->setHeaderLabels({Vexel::tr("App"), Vexel::tr("CPU"), Vexel::tr("Memory")});
    m_list->setRootIsDecorated(false);
    m_list->setFont(Look::font(12));
    m_list->setUniformRowHeights(true);
    m_list->header()->setSectionResizeMode(Column::name, QHeaderView::Stretch);
    for (const int column : {Column::cpu, Column::memory})
        m_list->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    listColumn->addWidget(m_list, 1);
    m_noMatch = Look::centredNote(Vexel::tr("No app, process or PID matches."), this);
    m_noMatch->hide();
    listColumn->addWidget(m_noMatch);
    body->addLayout(listColumn, 1);
    connect(m_list, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (model() && item)
            model()->selectApp(item->data(Column::name, Qt::UserRole).toString().toStdString());
    });

    m_side = new QStackedWidget(this);
    m_side->setFixedWidth(inspectorWidth);
    m_side->addWidget(Look::centredNote(Vexel::tr("Select an app to see its processes."), m_side));
    // The inspector scrolls: an app with many processes and notes is taller than the window.
    auto* scroll = new QScrollArea(m_side);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_inspector = new AppInspector(scroll);
    scroll->setWidget(m_inspector);
    m_side->addWidget(scroll);
    body->addWidget(m_side);
    layout->addLayout(body, 1);
}

unsigned AppsPage::shows() const
{
    return AppModel::frameChanged | AppModel::selectionChanged | AppModel::settingsChanged;
}

void AppsPage::showModel(const AppModel& model)
{
    if (m_search->text().toStdString() != model.appSearch) {
        const QSignalBlocker quiet(m_search);
        m_search->setText(QString::fromStdString(model.appSearch));
    }
    fillList(model);
    const AppGroup* selected = model.selected();
    m_side->setCurrentIndex(selected ? 1 : 0);
    if (selected)
        m_inspector->showApp(*selected, model);
}

void AppsPage::fillList(const AppModel& model)
{
    const auto apps = model.searchedApps();
    const auto cores = model.cpuScaleCores();
    // Rebuilt at every frame; the selection follows the app, not the row.
    const QSignalBlocker quiet(m_list);
    const int scrolled = m_list->verticalScrollBar()->value();
    m_list->clear();
    for (const auto& app : apps) {
        auto* item = new QTreeWidgetItem(m_list);
        item->setText(Column::name, QString::fromStdString(app.name));
        item->setData(Column::name, Qt::UserRole, QString::fromStdString(app.id));
        item->setText(Column::cpu, QString::fromStdString(Fmt::cpu(app.cpu, cores)));
        item->setText(Column::memory, QString::fromStdString(Fmt::memory(app.memory)));
        for (const int column : {Column::cpu, Column::memory})
            item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
        if (model.selectedApp == app.id)
            m_list->setCurrentItem(item);
    }
    m_list->verticalScrollBar()->setValue(scrolled);
    const bool empty = apps.empty() && !model.appSearch.empty();
    m_noMatch->setVisible(empty);
}

QStringList AppsPage::rowNames() const
{
    QStringList names;
    for (int row = 0; row < m_list->topLevelItemCount(); ++row)
        names << m_list->topLevelItem(row)->text(Column::name);
    return names;
}

bool AppsPage::inspectorShown() const
{
    return m_side->currentIndex() == 1;
}

} // namespace vexel
