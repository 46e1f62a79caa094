#include "pages/AppsPage.h"

#include "format/Fmt.h"
#include "grouping/AppGrouper.h"
#include "look/Labels.h"
#include "model/AppModel.h"
#include "pages/AppInspector.h"
#include "pages/KeyedRows.h"
#include "pages/MachineSummary.h"
#include "texts/QtText.h"
#include "texts/Vexel.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>
#include <QStackedWidget>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace vexel {

namespace {

constexpr int pageMargin = 28;
constexpr int besideSpacing = 18;
constexpr int inspectorLeast = 300;
constexpr int nameLeast = 130;
constexpr int nameMost = 200;
constexpr int cellPadding = 18;

enum Column { name, cpu, memory, energy, disk, network, columns };

// Each figure's column and the order it stands for, in the order columns are
// given room when the list can't show them all.
constexpr std::array<std::pair<Column, AppSort>, 5> figureColumns{{
    {Column::cpu, AppSort::cpu},
    {Column::memory, AppSort::memory},
    {Column::energy, AppSort::energy},
    {Column::disk, AppSort::disk},
    {Column::network, AppSort::network},
}};

Column columnOf(AppSort sort)
{
    return std::ranges::find(figureColumns, sort, &std::pair<Column, AppSort>::second)->first;
}

KeyedRows::Row rowOf(const AppGroup& app, const AppModel& model)
{
    const auto cores = model.cpuScaleCores();
    const auto order = [&app](AppSort sort) { return QVariant(AppGrouper::sortValue(app, sort)); };
    return {qs(app.id),
        {
            {qs(app.name), qs(app.name).toLower()},
            {qs(Fmt::cpu(app.cpu, cores)), order(AppSort::cpu)},
            {qs(Fmt::memory(app.memory)), order(AppSort::memory)},
            {app.energyW ? qs(Fmt::watts(*app.energyW)) : QStringLiteral("—"), order(AppSort::energy)},
            {qs(Fmt::rate(app.diskRead + app.diskWrite, Fmt::RateUnit::bytes)), order(AppSort::disk)},
            {qs(Fmt::rate(app.netIn + app.netOut, model.networkUnit())), order(AppSort::network)},
        }};
}

} // namespace

AppsPage::AppsPage(QWidget* parent)
    : Page(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(pageMargin, 24, pageMargin, 24);
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
    body->setSpacing(besideSpacing);
    auto* listColumn = new QVBoxLayout;
    const auto table = sortedTable({Vexel::tr("App"), Vexel::tr("CPU"), Vexel::tr("Memory"), Vexel::tr("Energy"),
                                       Vexel::tr("Disk"), Vexel::tr("Network")},
        Vexel::tr("Apps"), this);
    m_rows = table.rows;
    m_sorted = table.sorted;
    m_list = table.view;
    m_list->setFont(Look::font(12));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->header()->setSectionsClickable(true);
    m_list->header()->setSortIndicatorShown(true);
    connect(m_list->header(), &QHeaderView::sectionClicked, this, [this](int column) { sortBy(column); });
    connect(m_list->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this](const QModelIndex& now) {
        if (model() && !m_showing && now.isValid())
            model()->selectApp(now.data(KeyedRows::keyRole).toString().toStdString());
    });
    listColumn->addWidget(m_list, 1);
    m_noMatch = Look::centredNote(Vexel::tr("No app, process or PID matches."), this);
    m_noMatch->hide();
    listColumn->addWidget(m_noMatch);
    body->addLayout(listColumn, 0);

    m_side = new QStackedWidget(this);
    m_side->setMinimumWidth(inspectorLeast);
    m_summary = new MachineSummary(m_side);
    m_side->addWidget(m_summary);
    // The inspector scrolls: an app with many processes and notes is taller than the window.
    auto* scroll = new QScrollArea(m_side);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_inspector = new AppInspector(scroll);
    scroll->setWidget(m_inspector);
    m_side->addWidget(scroll);
    body->addWidget(m_side, 1);
    layout->addLayout(body, 1);
}

void AppsPage::attach(AppModel& model)
{
    Page::attach(model);
    m_inspector->attach(model); // the inspector's buttons act on the same model
}

unsigned AppsPage::shows() const
{
    return AppModel::frameChanged | AppModel::selectionChanged | AppModel::settingsChanged;
}

void AppsPage::showModel(const AppModel& model)
{
    if (m_search->text().toStdString() != model.appSearch()) {
        const QSignalBlocker quiet(m_search);
        m_search->setText(QString::fromStdString(model.appSearch()));
    }
    m_sort = model.settings().appSort;
    fillList(model);
    showSelection(model);
    const AppGroup* selected = model.selected();
    m_side->setCurrentIndex(selected ? 1 : 0);
    if (selected)
        m_inspector->showApp(*selected, model);
    else
        m_summary->showModel(model);
}

void AppsPage::fillList(const AppModel& model)
{
    const auto apps = model.searchedApps();
    std::vector<KeyedRows::Row> rows;
    rows.reserve(apps.size());
    for (const auto& app : apps)
        rows.push_back(rowOf(app, model));
    m_showing = true;
    m_rows->setRows(std::move(rows));
    if (m_byName)
        m_sorted->sort(Column::name, Qt::AscendingOrder);
    else
        m_sorted->sort(columnOf(m_sort), Qt::DescendingOrder);
    m_list->header()->setSortIndicator(m_sorted->sortColumn(), m_sorted->sortOrder());
    m_showing = false;
    m_noMatch->setVisible(apps.empty() && !model.appSearch().empty());
    fitColumns();
}

void AppsPage::showSelection(const AppModel& model)
{
    const QModelIndex wanted
        = model.selectedApp() ? m_sorted->mapFromSource(m_rows->indexOf(qs(*model.selectedApp()))) : QModelIndex();
    if (m_list->currentIndex().row() == wanted.row() && m_list->currentIndex().isValid() == wanted.isValid())
        return;
    m_showing = true;
    if (wanted.isValid())
        m_list->selectionModel()->setCurrentIndex(
            wanted, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    else
        m_list->selectionModel()->clear();
    m_showing = false;
}

void AppsPage::sortBy(int column)
{
    m_byName = column == Column::name;
    if (!m_byName && model()) {
        const auto figure
            = std::ranges::find(figureColumns, static_cast<Column>(column), &std::pair<Column, AppSort>::first);
        if (figure != figureColumns.end())
            model()->setAppSort(figure->second);
    }
    if (model())
        showModel(*model());
}

void AppsPage::fitColumns()
{
    const QFontMetrics metrics(m_list->font());
    const auto widthOf = [&](int column) {
        // The header's words, with room for the sort arrow.
        int widest = QFontMetrics(m_list->header()->font())
                         .horizontalAdvance(m_rows->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString())
            + cellPadding;
        for (int row = 0; row < m_rows->rowCount(); ++row)
            widest = std::max(widest, metrics.horizontalAdvance(m_rows->index(row, column).data().toString()));
        return widest + cellPadding;
    };
    const int room = width() - 2 * pageMargin - besideSpacing - inspectorLeast;
    const int nameWidth = std::clamp(widthOf(Column::name), nameLeast, nameMost);
    int used = nameWidth + 2 * m_list->frameWidth() + m_list->verticalScrollBar()->sizeHint().width();
    // The sort's column first, then the others as long as they fit.
    std::vector<Column> wanted{m_byName ? Column::cpu : columnOf(m_sort)};
    for (const auto& [column, sort] : figureColumns)
        if (column != wanted.front())
            wanted.push_back(column);
    for (const Column column : wanted) {
        const int needed = widthOf(column);
        const bool fits = column == wanted.front() || used + needed <= room;
        m_list->setColumnHidden(column, !fits);
        if (!fits)
            continue;
        m_list->header()->resizeSection(column, needed);
        used += needed;
    }
    m_list->setFixedWidth(used);
}

void AppsPage::resizeEvent(QResizeEvent* event)
{
    Page::resizeEvent(event);
    fitColumns();
}

QStringList AppsPage::rowNames() const
{
    QStringList names;
    for (int row = 0; row < m_sorted->rowCount(); ++row)
        names << m_sorted->index(row, Column::name).data().toString();
    return names;
}

QStringList AppsPage::shownColumns() const
{
    QStringList shown;
    for (int column = 0; column < Column::columns; ++column)
        if (!m_list->isColumnHidden(column))
            shown << m_rows->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    return shown;
}

bool AppsPage::inspectorShown() const
{
    return m_side->currentIndex() == 1;
}

} // namespace vexel
