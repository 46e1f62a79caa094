#include "settings/SettingsTab.h"

#include "look/Labels.h"
#include "model/AppModel.h"

#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace vexel {

SettingsTab::SettingsTab(QWidget* parent)
    : Page(parent)
{
    m_column = new QVBoxLayout(this);
    m_column->setContentsMargins(24, 20, 24, 20);
    m_column->setSpacing(10);
}

unsigned SettingsTab::shows() const
{
    return AppModel::settingsChanged;
}

void SettingsTab::change(const std::function<void(VexelSettings&)>& edit)
{
    if (m_filling || model() == nullptr)
        return;
    VexelSettings changed = model()->settings();
    edit(changed);
    if (changed != model()->settings())
        model()->changeSettings(changed);
}

QFormLayout* SettingsTab::section(const QString& heading, const QString& explanation)
{
    m_column->addWidget(Look::heading(heading, this));
    auto* form = new QFormLayout;
    form->setLabelAlignment(Qt::AlignLeft);
    form->setHorizontalSpacing(14);
    m_column->addLayout(form);
    m_forms.push_back(form);
    if (!explanation.isEmpty())
        m_column->addWidget(Look::explanation(explanation, this));
    m_column->addSpacing(8);
    return form;
}

void SettingsTab::showEvent(QShowEvent* event)
{
    int widest = 0;
    std::vector<QWidget*> names;
    for (auto* form : m_forms)
        for (int row = 0; row < form->rowCount(); ++row)
            if (auto* item = form->itemAt(row, QFormLayout::LabelRole); item && item->widget()) {
                names.push_back(item->widget());
                widest = std::max(widest, item->widget()->sizeHint().width());
            }
    for (auto* name : names)
        name->setMinimumWidth(widest);
    Page::showEvent(event);
}

QLabel* SettingsTab::label(const QString& text)
{
    auto* made = Look::line(this, text);
    made->setWordWrap(false);
    return made;
}

} // namespace vexel
