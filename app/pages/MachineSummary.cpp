#include "pages/MachineSummary.h"

#include "format/Fmt.h"
#include "look/FigureRows.h"
#include "look/Labels.h"
#include "model/AppModel.h"
#include "texts/PageTexts.h"
#include "texts/QtText.h"
#include "texts/Vexel.h"

#include <QLabel>
#include <QVBoxLayout>

namespace vexel {

MachineSummary::MachineSummary(QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    m_heading = Look::heading({}, this);
    layout->addWidget(m_heading);
    m_rows = new FigureRows(this);
    layout->addWidget(m_rows);
    layout->addWidget(Look::explanation(Vexel::tr("Select an app to see its processes."), this));
    layout->addStretch(1);
}

void MachineSummary::showModel(const AppModel& model)
{
    m_heading->setText(PageTexts::thisMachine(model.platform));
    if (!model.frame()) {
        m_rows->setRows({});
        return;
    }
    const Frame& frame = *model.frame();
    const auto& system = frame.system;
    const auto unit = model.networkUnit();
    const FigureRows::Rows rows{
        {Vexel::tr("Apps"), QString::number(frame.apps.size())},
        {Vexel::tr("Processes"), QString::number(frame.records.size())},
        {Vexel::tr("CPU"), qs(Fmt::percent(system.cpu.user + system.cpu.system))},
        {Vexel::tr("Memory"),
            Vexel::tr("%1 of %2").arg(qs(Fmt::memory(system.memory.used())), qs(Fmt::memory(system.memory.total)))},
        {Vexel::tr("Disk read"), qs(Fmt::rate(system.disk.readRate, Fmt::RateUnit::bytes))},
        {Vexel::tr("Disk written"), qs(Fmt::rate(system.disk.writeRate, Fmt::RateUnit::bytes))},
        {Vexel::tr("Download"), qs(Fmt::rate(system.net.inRate, unit))},
        {Vexel::tr("Upload"), qs(Fmt::rate(system.net.outRate, unit))},
    };
    m_rows->setRows(rows);
}

QStringList MachineSummary::rows() const
{
    return m_rows->rows();
}

} // namespace vexel
