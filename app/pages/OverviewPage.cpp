#include "pages/OverviewPage.h"

#include "format/Fmt.h"
#include "look/DialView.h"
#include "look/Labels.h"
#include "model/AppModel.h"
#include "pages/OverviewDials.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace vexel {

namespace {

constexpr size_t busiestCount = 5;

QLabel* heading(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setFont(Look::font(13, QFont::DemiBold));
    return label;
}

} // namespace

OverviewPage::OverviewPage(Appearance appearance, QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 24, 28, 24);
    m_waiting = Look::centredNote(QStringLiteral("Taking the first reading…"), appearance, this);
    layout->addWidget(m_waiting, 1);

    m_content = new QWidget(this);
    auto* content = new QVBoxLayout(m_content);
    content->setContentsMargins(0, 0, 0, 0);
    content->setSpacing(14);
    content->addWidget(heading(QStringLiteral("Overview"), m_content));
    auto* grid = new QGridLayout;
    grid->setSpacing(8);
    for (size_t i = 0; i < m_dials.size(); ++i) {
        m_dials[i] = new DialView(appearance, m_content);
        grid->addWidget(m_dials[i], static_cast<int>(i / 3), static_cast<int>(i % 3));
    }
    content->addLayout(grid);
    content->addWidget(heading(QStringLiteral("Busiest apps"), m_content));
    m_busiest = new QVBoxLayout;
    m_busiest->setSpacing(4);
    content->addLayout(m_busiest);
    content->addStretch(1);
    layout->addWidget(m_content, 1);
    m_content->hide();
}

void OverviewPage::showModel(const AppModel& model)
{
    const bool waiting = !model.frame;
    m_waiting->setVisible(waiting);
    m_content->setVisible(!waiting);
    if (waiting)
        return;
    const auto dials = overviewDials(model);
    for (size_t i = 0; i < dials.size(); ++i)
        m_dials[i]->setDial(dials[i]);
    const auto apps = model.apps(AppSort::cpu, busiestCount);
    // The scale the settings ask for: a share of the whole machine, or of one core.
    const auto cores = model.settings.cpuScale == CPUScale::mac ? std::optional(model.cores) : std::nullopt;
    while (m_rows.size() < apps.size()) {
        m_rows.push_back(new QLabel(m_content));
        m_rows.back()->setFont(Look::font(12));
        m_busiest->addWidget(m_rows.back());
    }
    for (size_t i = 0; i < m_rows.size(); ++i) {
        m_rows[i]->setVisible(i < apps.size());
        if (i < apps.size())
            m_rows[i]->setText(QString::fromStdString(apps[i].name + "   " + Fmt::cpu(apps[i].cpu, cores)));
    }
}

QStringList OverviewPage::busiestRows() const
{
    QStringList rows;
    for (const auto* row : m_rows)
        if (!row->isHidden())
            rows << row->text();
    return rows;
}

bool OverviewPage::waitingForFirstReading() const
{
    return !m_waiting->isHidden();
}

} // namespace vexel
