#include "pages/KeyedRows.h"

#include <QHeaderView>
#include <QSet>
#include <QSortFilterProxyModel>
#include <QTreeView>

#include <unordered_map>

namespace vexel {

KeyedRows::KeyedRows(QStringList headers, QObject* parent)
    : QAbstractTableModel(parent)
    , m_headers(std::move(headers))
{
}

void KeyedRows::removeGone(const std::vector<Row>& rows)
{
    QSet<QString> kept;
    for (const auto& row : rows)
        kept.insert(row.key);
    // From the end, a run of gone rows at a time, so that indices ahead stay right.
    for (int last = static_cast<int>(m_rows.size()) - 1; last >= 0; --last) {
        if (kept.contains(m_rows[static_cast<size_t>(last)].key))
            continue;
        int first = last;
        while (first > 0 && !kept.contains(m_rows[static_cast<size_t>(first - 1)].key))
            --first;
        beginRemoveRows({}, first, last);
        m_rows.erase(m_rows.begin() + first, m_rows.begin() + last + 1);
        endRemoveRows();
        last = first;
    }
}

void KeyedRows::setRows(std::vector<Row> rows)
{
    removeGone(rows);
    std::unordered_map<QString, size_t> at;
    for (size_t i = 0; i < m_rows.size(); ++i)
        at.emplace(m_rows[i].key, i);
    std::vector<Row> added;
    for (auto& row : rows) {
        if (const auto found = at.find(row.key); found != at.end())
            m_rows[found->second].cells = std::move(row.cells);
        else
            added.push_back(std::move(row));
    }
    if (!m_rows.empty())
        emit dataChanged(index(0, 0), index(static_cast<int>(m_rows.size()) - 1, columnCount() - 1));
    if (added.empty())
        return;
    const int first = static_cast<int>(m_rows.size());
    beginInsertRows({}, first, first + static_cast<int>(added.size()) - 1);
    for (auto& row : added)
        m_rows.push_back(std::move(row));
    endInsertRows();
}

QModelIndex KeyedRows::indexOf(const QString& key, int column) const
{
    for (size_t i = 0; i < m_rows.size(); ++i)
        if (m_rows[i].key == key)
            return index(static_cast<int>(i), column);
    return {};
}

int KeyedRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int KeyedRows::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_headers.size());
}

QVariant KeyedRows::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount() || index.column() >= columnCount())
        return {};
    const Row& row = m_rows[static_cast<size_t>(index.row())];
    if (role == keyRole)
        return row.key;
    if (static_cast<size_t>(index.column()) >= row.cells.size())
        return {};
    const Cell& cell = row.cells[static_cast<size_t>(index.column())];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole: return cell.text;
    case orderRole: return cell.order.isValid() ? cell.order : QVariant(cell.text);
    // Names at the left, figures at the right, where their digits line up.
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(
            index.column() == 0 ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignRight | Qt::AlignVCenter);
    default: return {};
    }
}

QVariant KeyedRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= m_headers.size())
        return {};
    if (role == Qt::DisplayRole)
        return m_headers[section];
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(section == 0 ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

SortedTable sortedTable(const QStringList& headers, const QString& name, QWidget* parent)
{
    SortedTable table;
    table.rows = new KeyedRows(headers, parent);
    table.sorted = new QSortFilterProxyModel(parent);
    table.sorted->setSourceModel(table.rows);
    table.sorted->setSortRole(KeyedRows::orderRole);
    table.sorted->setDynamicSortFilter(true);
    table.view = new QTreeView(parent);
    table.view->setModel(table.sorted);
    table.view->setAccessibleName(name);
    table.view->setRootIsDecorated(false);
    table.view->setUniformRowHeights(true);
    table.view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    table.view->setSelectionBehavior(QAbstractItemView::SelectRows);
    table.view->setSelectionMode(QAbstractItemView::SingleSelection);
    table.view->header()->setStretchLastSection(false);
    table.view->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    return table;
}

} // namespace vexel
