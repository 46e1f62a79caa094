#include "look/FigureRows.h"

#include "look/Labels.h"

#include <QGridLayout>
#include <QLabel>

namespace vexel {

FigureRows::FigureRows(QWidget* parent)
    : QWidget(parent)
{
    m_grid = new QGridLayout(this);
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(16);
    m_grid->setVerticalSpacing(4);
    m_grid->setColumnStretch(0, 1);
}

void FigureRows::setRows(const Rows& rows)
{
    while (m_labels.size() < rows.size()) {
        const int row = static_cast<int>(m_labels.size());
        auto* name = Look::line(this); // wraps: a long name must not widen the page
        auto* value = Look::line(this);
        value->setWordWrap(false);
        value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_grid->addWidget(name, row, 0);
        m_grid->addWidget(value, row, 1);
        m_labels.emplace_back(name, value);
    }
    for (size_t i = 0; i < m_labels.size(); ++i) {
        const bool used = i < rows.size();
        m_labels[i].first->setVisible(used);
        m_labels[i].second->setVisible(used);
        if (used) {
            m_labels[i].first->setText(rows[i].first);
            m_labels[i].second->setText(rows[i].second);
        }
    }
}

QStringList FigureRows::rows() const
{
    QStringList shown;
    for (const auto& [name, value] : m_labels)
        if (!name->isHidden())
            shown << name->text() + "  " + value->text();
    return shown;
}

} // namespace vexel
