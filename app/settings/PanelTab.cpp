#include "settings/PanelTab.h"

#include "look/Buttons.h"
#include "look/Labels.h"
#include "model/AppModel.h"
#include "texts/QtText.h"
#include "texts/Vexel.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDrag>
#include <QDropEvent>
#include <QGridLayout>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace vexel {

namespace {

// The handle a row is dragged by.
class DragGrip final : public QLabel {
public:
    DragGrip(size_t row, QWidget* parent)
        : QLabel(QStringLiteral("⋮⋮"), parent)
        , m_row(row)
    {
        setCursor(Qt::OpenHandCursor);
        setToolTip(Vexel::tr("Drag to reorder"));
        setAccessibleName(Vexel::tr("Drag to reorder"));
    }

protected:
    void mousePressEvent(QMouseEvent* event) override { m_pressed = event->position().toPoint(); }
    void mouseMoveEvent(QMouseEvent* event) override
    {
        if (!(event->buttons() & Qt::LeftButton)
            || (event->position().toPoint() - m_pressed).manhattanLength() < QApplication::startDragDistance())
            return;
        auto* carried = new QMimeData;
        carried->setData(QString::fromLatin1(PanelTab::rowMime), QByteArray::number(static_cast<qulonglong>(m_row)));
        auto* drag = new QDrag(this);
        drag->setMimeData(carried);
        drag->setPixmap(parentWidget()->grab(geometry().united(geometry().translated(width(), 0))));
        drag->exec(Qt::MoveAction);
    }

private:
    size_t m_row;
    QPoint m_pressed;
};

} // namespace

PanelTab::PanelTab(QWidget* parent)
    : SettingsTab(parent)
{
    setAcceptDrops(true);
    m_heading = Look::heading({}, this);
    column()->addWidget(m_heading);
    m_note = Look::explanation({}, this);
    column()->addWidget(m_note);
    m_grid = new QGridLayout;
    m_grid->setHorizontalSpacing(10);
    m_grid->setColumnStretch(1, 1);
    column()->addLayout(m_grid);
    m_keeps = Look::explanation({}, this);
    column()->addWidget(m_keeps);
    auto* restore = Look::button(Vexel::tr("Restore Defaults"), this);
    connect(restore, &QPushButton::clicked, this, &PanelTab::restoreDefaults);
    column()->addWidget(restore, 0, Qt::AlignLeft);
    column()->addStretch(1);
}

void PanelTab::move(size_t index, int step)
{
    change([index, step](VexelSettings& settings) {
        auto& items = settings.menuItems;
        const auto target = static_cast<long>(index) + step;
        if (index < items.size() && target >= 0 && target < static_cast<long>(items.size()))
            std::swap(items[index], items[static_cast<size_t>(target)]);
    });
}

void PanelTab::place(size_t from, size_t to)
{
    change([from, to](VexelSettings& settings) {
        auto& items = settings.menuItems;
        if (from >= items.size() || to >= items.size() || from == to)
            return;
        const auto item = items[from];
        items.erase(items.begin() + static_cast<long>(from));
        items.insert(items.begin() + static_cast<long>(to), item);
    });
}

size_t PanelTab::rowAt(QPoint point) const
{
    const size_t rows = m_cells.size() / cellsPerRow;
    for (size_t row = 0; row < rows; ++row)
        if (point.y() <= m_cells[row * cellsPerRow + 1]->geometry().bottom())
            return row;
    return rows > 0 ? rows - 1 : 0;
}

void PanelTab::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasFormat(QString::fromLatin1(rowMime)))
        event->acceptProposedAction();
}

void PanelTab::dragMoveEvent(QDragMoveEvent* event)
{
    if (event->mimeData()->hasFormat(QString::fromLatin1(rowMime)))
        event->acceptProposedAction();
}

void PanelTab::dropEvent(QDropEvent* event)
{
    bool read = false;
    const auto from = event->mimeData()->data(QString::fromLatin1(rowMime)).toULongLong(&read);
    if (!read)
        return;
    event->acceptProposedAction();
    place(static_cast<size_t>(from), rowAt(event->position().toPoint()));
}

void PanelTab::restoreDefaults()
{
    change([](VexelSettings& settings) { settings.menuItems = defaultMenuItems(); });
}

void PanelTab::showModel(const AppModel& model)
{
    m_filling = true;
    const bool mac = model.platform == Platform::macOS;
    m_heading->setText(mac ? Vexel::tr("Readings in the menu bar") : Vexel::tr("Readings in the panel"));
    m_note->setText(mac ? Vexel::tr("Each reading is its own item, shown left to right in this order. Drag a "
                                    "reading by its grip, or use the arrows, to reorder. A reading turns amber or "
                                    "red in the menu bar when it's under strain; thresholds are in Alerts.")
                        : Vexel::tr("Each reading is its own item, shown left to right in this order. Drag a "
                                    "reading by its grip, or use the arrows, to reorder. A reading turns amber or "
                                    "red in the panel when it's under strain; thresholds are in Alerts."));
    m_keeps->setText(mac ? Vexel::tr("With no menu bar items, Vexel keeps its Dock icon so you can always get back "
                                     "to it.")
                         : Vexel::tr("With no panel items, Vexel keeps its window in the taskbar so you can always "
                                     "get back to it."));
    for (auto* cell : m_cells)
        cell->deleteLater();
    m_cells.clear();
    m_rows.clear();
    const auto& items = model.settings().menuItems;
    for (size_t i = 0; i < items.size(); ++i) {
        const auto item = items[i];
        const int row = static_cast<int>(i);
        auto* enabled = new QCheckBox(Vexel::words(title(item.kind)), this);
        enabled->setFont(Look::font(12));
        enabled->setChecked(item.enabled);
        connect(enabled, &QCheckBox::toggled, this, [this, i](bool on) {
            change([i, on](VexelSettings& settings) { settings.menuItems.at(i).enabled = on; });
        });
        auto* style = new QComboBox(this);
        style->setFont(Look::font(12));
        const std::vector<MenuItemStyle> styles = canGraph(item.kind)
            ? std::vector{MenuItemStyle::value, MenuItemStyle::graph, MenuItemStyle::both}
            : std::vector{MenuItemStyle::value};
        for (const auto choice : styles) {
            style->addItem(Vexel::words(title(choice)), static_cast<int>(choice));
            if (choice == item.style)
                style->setCurrentIndex(style->count() - 1);
        }
        connect(style, &QComboBox::currentIndexChanged, this, [this, i, style] {
            const auto chosen = static_cast<MenuItemStyle>(style->currentData().toInt());
            change([i, chosen](VexelSettings& settings) { settings.menuItems.at(i).style = chosen; });
        });
        auto* up = Look::button(QStringLiteral("↑"), this);
        auto* down = Look::button(QStringLiteral("↓"), this);
        for (auto* arrow : {up, down})
            arrow->setFixedWidth(36);
        up->setEnabled(i > 0);
        down->setEnabled(i + 1 < items.size());
        connect(up, &QPushButton::clicked, this, [this, i] { move(i, -1); });
        connect(down, &QPushButton::clicked, this, [this, i] { move(i, 1); });
        auto* grip = new DragGrip(i, this);
        m_grid->addWidget(grip, row, 0);
        m_grid->addWidget(enabled, row, 1);
        m_grid->addWidget(style, row, 2);
        m_grid->addWidget(up, row, 3);
        m_grid->addWidget(down, row, 4);
        m_cells.insert(m_cells.end(), {grip, enabled, style, up, down});
        m_rows << (item.enabled ? Vexel::tr("%1 on, %2") : Vexel::tr("%1 off, %2"))
                      .arg(Vexel::words(title(item.kind)), Vexel::words(title(item.style)));
    }
    m_filling = false;
}

QStringList PanelTab::rows() const
{
    return m_rows;
}

} // namespace vexel
