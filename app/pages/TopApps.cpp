#include "pages/TopApps.h"

#include "grouping/AppGrouper.h"
#include "look/FigureRows.h"
#include "look/Labels.h"
#include "model/AppModel.h"
#include "texts/Vexel.h"

#include <QLabel>
#include <QVBoxLayout>

namespace vexel {

TopApps::TopApps(const QString& heading, QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(Look::heading(heading, this));
    m_rows = new FigureRows(this);
    layout->addWidget(m_rows);
    m_empty = Look::explanation(Vexel::tr("No app is using any right now."), this);
    m_empty->hide();
    layout->addWidget(m_empty);
    m_note = Look::explanation({}, this);
    m_note->hide();
    layout->addWidget(m_note);
}

void TopApps::show(const AppModel& model, AppSort order, size_t count, const Figure& figure)
{
    FigureRows::Rows rows;
    for (const auto& app : model.apps(order, count))
        if (AppGrouper::sortValue(app, order) > 0) // an app idle in this reading is no news
            rows.emplace_back(QString::fromStdString(app.name), QString::fromStdString(figure(app)));
    m_empty->setVisible(rows.empty());
    m_rows->setRows(rows);
}

void TopApps::setNote(const QString& note)
{
    m_note->setText(note);
    m_note->setVisible(!note.isEmpty());
}

QStringList TopApps::rows() const
{
    return m_rows->rows();
}

} // namespace vexel
