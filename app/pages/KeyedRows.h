#pragma once

#include <QAbstractTableModel>
#include <QStringList>

class QSortFilterProxyModel;
class QTreeView;

#include <vector>

namespace vexel {

// The rows of a table that keep their identity from one reading to the next.
// A row is known by its key (an app's id, a process's PID), so a view's
// selection and scroll position stay on it while its figures change and
// other rows come and go around it: rows are updated in place, never rebuilt.
class KeyedRows final : public QAbstractTableModel {
public:
    struct Cell {
        QString text;
        QVariant order; // what the column sorts on: a number, or the text
    };
    struct Row {
        QString key;
        std::vector<Cell> cells; // one per header
    };

    // The role that gives a cell's sort value, and the one that gives its row's key.
    static constexpr int orderRole = Qt::UserRole + 1;
    static constexpr int keyRole = Qt::UserRole + 2;

    KeyedRows(QStringList headers, QObject* parent);

    // The rows now: those gone are removed, those still there updated where
    // they stand, new ones added at the end.
    void setRows(std::vector<Row> rows);
    // The row of `key` in `column`; invalid when there is none.
    [[nodiscard]] QModelIndex indexOf(const QString& key, int column = 0) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void removeGone(const std::vector<Row>& rows);

    QStringList m_headers;
    std::vector<Row> m_rows;
};

// Keyed rows under a list that sorts them: a row is picked whole, the first
// column takes the width left over, and the list scrolls by pixels.
struct SortedTable {
    KeyedRows* rows = nullptr;
    QSortFilterProxyModel* sorted = nullptr;
    QTreeView* view = nullptr;
};
[[nodiscard]] SortedTable sortedTable(const QStringList& headers, const QString& name, QWidget* parent);

} // namespace vexel
