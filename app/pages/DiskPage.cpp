#include "pages/DiskPage.h"

#include "format/Fmt.h"
#include "look/FigureRows.h"
#include "look/Labels.h"
#include "look/PaintedView.h"
#include "model/AppModel.h"
#include "pages/TopApps.h"
#include "pages/Traces.h"
#include "texts/PageTexts.h"
#include "texts/QtText.h"
#include "texts/Vexel.h"

#include <QLabel>
#include <QVBoxLayout>

namespace vexel {

namespace {

std::string rate(double bytesPerSecond)
{
    return Fmt::rate(bytesPerSecond, Fmt::RateUnit::bytes);
}

} // namespace

DiskPage::DiskPage(QWidget* parent)
    : Page(parent)
{
    auto* column = scrollingColumn(Vexel::tr("Disk"));
    m_rates = Look::figure(this);
    column->addWidget(m_rates);
    column->addWidget(Look::explanation(Vexel::tr("Read"), this));
    m_readTrace = new PaintedView(Vexel::tr("Disk reads, last few minutes"), QSize(480, 84), this);
    column->addWidget(m_readTrace);
    column->addWidget(Look::explanation(Vexel::tr("Write"), this));
    m_writeTrace = new PaintedView(Vexel::tr("Disk writes, last few minutes"), QSize(480, 84), this);
    column->addWidget(m_writeTrace);
    column->addSpacing(6);
    column->addWidget(Look::heading(Vexel::tr("Volumes"), this));
    m_volumes = new FigureRows(this);
    column->addWidget(m_volumes);
    m_noVolumes = Look::explanation(Vexel::tr("No volumes could be read."), this);
    column->addWidget(m_noVolumes);
    column->addSpacing(6);
    m_top = new TopApps(Vexel::tr("Reading and writing most"), this);
    column->addWidget(m_top);
    column->addStretch(1);
}

unsigned DiskPage::shows() const
{
    return AppModel::frameChanged;
}

void DiskPage::showModel(const AppModel& model)
{
    if (!model.frame())
        return;
    const auto& disk = model.frame()->system.disk;
    m_rates->setText(Vexel::tr("Read %1  ·  Write %2").arg(qs(rate(disk.readRate)), qs(rate(disk.writeRate))));
    m_readTrace->draw(rateTrace(model.ring(), &RingSample::diskR, Strain::calm));
    m_writeTrace->draw(rateTrace(model.ring(), &RingSample::diskW, Strain::calm));
    FigureRows::Rows rows;
    for (const auto& volume : disk.volumes)
        rows.emplace_back(qs(volume.name + "  (" + volume.path + ")"),
            Vexel::tr("%1 free of %2").arg(qs(Fmt::bytes(volume.available)), qs(Fmt::bytes(volume.total))));
    m_volumes->setRows(rows);
    m_noVolumes->setVisible(rows.empty());
    m_top->show(model, AppSort::disk, 8, [](const AppGroup& app) { return rate(app.diskRead + app.diskWrite); });
    m_top->setNote(PageTexts::diskPerAppNote(model.platform));
}

QString DiskPage::ratesText() const
{
    return m_rates->text();
}

QStringList DiskPage::volumes() const
{
    return m_volumes->rows();
}

} // namespace vexel
