#include "settings/PanelTab.h"

#include "look/Buttons.h"
#include "look/Labels.h"
#include "model/AppModel.h"
#include "texts/QtText.h"
#include "texts/Vexel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace vexel {

PanelTab::PanelTab(QWidget* parent)
    : SettingsTab(parent)
{
    m_heading = Look::heading({}, this);
    column()->addWidget(m_heading);
    m_note = Look::explanation({}, this);
    column()->addWidget(m_note);
    m_grid = new QGridLayout;
    m_grid->setHorizontalSpacing(10);
    m_grid->setColumnStretch(0, 1);
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

void PanelTab::restoreDefaults()
{
    change([](VexelSettings& settings) { settings.menuItems = defaultMenuItems(); });
}

void PanelTab::showModel(const AppModel& model)
{
    m_filling = true;
    const bool mac = model.platform == Platform::macOS;
    m_heading->setText(mac ? Vexel::tr("Readings in the menu bar") : Vexel::tr("Readings in the panel"));
    m_note->setText(mac ? Vexel::tr("Each reading is its own item, shown left to right in this order. Use the "
                                    "arrows to reorder. A reading turns amber or red in the menu bar when it's "
                                    "under strain; thresholds are in Alerts.")
                        : Vexel::tr("Each reading is its own item, shown left to right in this order. Use the "
                                    "arrows to reorder. A reading turns amber or red in the panel when it's "
                                    "under strain; thresholds are in Alerts."));
    m_keeps->setText(mac ? Vexel::tr("With no menu bar items, Vexel keeps its Dock icon so you can always get back "
                                     "to it.")
                         : Vexel::tr("With no panel items, Vexel keeps its window in the taskbar so you can always "
                                     "get back to it."));
    for (auto* cell : m_cells)
        cell->deleteLater();
    m_cells.clear();
    m_rows.clear();
    const auto& items = model.settings.menuItems;
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
        m_grid->addWidget(enabled, row, 0);
        m_grid->addWidget(style, row, 1);
        m_grid->addWidget(up, row, 2);
        m_grid->addWidget(down, row, 3);
        m_cells.insert(m_cells.end(), {enabled, style, up, down});
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
